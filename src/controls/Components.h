#pragma once
// Everything the program's logic talks to outside itself, handed in by whoever builds the
// program: the real components in the program, fakes in tests. No singletons.
#include <QString>

#include "controls/CdReader.h"
#include "controls/ChildProcess.h"
#include "controls/DataControl.h"
#include "controls/Desktop.h"
#include "controls/Dialogs.h"
#include "controls/Errors.h"
#include "controls/EventLoop.h"
#include "controls/Mp3Encoder.h"
#include "controls/Mp3Player.h"
#include "controls/PeakMeter.h"
#include "controls/Picture.h"
#include "controls/ToneMixer.h"
#include "controls/Volumes.h"

namespace sonarium {

struct Components {
    EventLoop& loop;
    Dialogs& dialogs;
    Desktop& desktop;
    PictureLoader& pictures;
    Volumes& volumes;
    Mp3Player& mp3;   // plays the queue and does the scanner's reads
    Mp3Player& mp32;  // writes tags from the grid, previews sections
    Mp3Encoder& encoder;
    CdReader& cd;
    ToneMixer& mixer;
    PeakMeter& peak;
    DataControl& data;
    ChildProcesses& processes;
    ErrorReporter& errors;  // failures that the skip-on-error rule swallows
    // The command line as one string, taken whole (no splitting, no removal of quotes).
    QString commandLine;
    // The directory that is current when the program starts; its own files live there.
    QString startDir;
};

}  // namespace sonarium
