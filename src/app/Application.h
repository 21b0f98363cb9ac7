#pragma once
// Builds the real program: the Qt event loop, dialogs and desktop, the picture loader, the
// mounted volumes and the components, the program's own units, and the windows that mirror
// them. No singletons: each part is handed what it needs.
// SIGTERM, SIGINT and SIGHUP save the settings and end the program at once, whatever it is
// doing; the window's own close keeps its wait for the song.
#include <QString>
#include <memory>

#include "app/DebugErrorLog.h"
#include "app/StartFolder.h"
#include "controls/Components.h"
#include "engine/EngineMixer.h"
#include "engine/EnginePeakMeter.h"
#include "engine/LinuxVolumes.h"
#include "engine/QtPictureLoader.h"
#include "engine/audio/SoundProcessor.h"
#include "engine/cd/CdioCdReader.h"
#include "engine/data/SqliteDataControl.h"
#include "engine/encoder/LameEncoder.h"
#include "engine/player/Mp3Play.h"
#include "engine/process/PosixChildProcesses.h"
#include "playback/MediaControls.h"
#include "shell/Program.h"
#include "ui/QtDesktop.h"
#include "ui/QtDialogs.h"
#include "ui/QtEventLoop.h"
#include "ui/TerminationSignals.h"
#include "ui/Views.h"

namespace sonarium {

class MprisService;

class Application {
public:
    // Before the QApplication exists: on a Wayland session the program runs on XWayland
    // (xcb), which can place and shape its windows, unless the user chose a platform; and
    // high-DPI factors are rounded so skin pieces keep whole pixels.
    static void prepareProcess();

    // `commandLine` the song name the program was given, if any; `startDir` the directory the
    // program starts in, where its own files live.
    Application(const QString& commandLine, const QString& startDir);
    ~Application();

    // Runs the program's entry procedure once the event loop is running. The process ends
    // when the program asks the desktop to quit.
    void start();

    Views& views() { return views_; }

private:
    DebugErrorLog errors_;
    QtEventLoop loop_;
    QtDialogs dialogs_;
    QtDesktop desktop_{sharedFile(QStringLiteral("help/index.html"))};
    QtPictureLoader pictures_;
    LinuxVolumes volumes_;
    // Treble and bass, and the peak level, are shared by both players' output paths.
    ToneSettings tone_;
    PeakLevel peakLevel_;
    Mp3Play mp3_, mp32_;
    LameEncoder encoder_{loop_};
    // CD images named in SONARIUM_CD_IMAGES stand beside the drives.
    CdioCdReader cd_{loop_, qEnvironmentVariable("SONARIUM_CD_IMAGES")};
    EngineMixer mixer_;
    EnginePeakMeter peak_;
    SqliteDataControl data_;
    PosixChildProcesses processes_;
    Components components_;
    Program program_;
    Views views_;
    TerminationSignals signals_;
    // Media keys and the desktop's player applets; absent without a session bus.
    MediaControls mediaControls_;
    std::unique_ptr<MprisService> mpris_;
};

// The platform to ask Qt for, given the session's XDG_SESSION_TYPE and WAYLAND_DISPLAY and the
// user's own QT_QPA_PLATFORM: "xcb" on a Wayland session the user left alone, else nothing.
QByteArray platformFor(const QByteArray& sessionType, const QByteArray& waylandDisplay,
                       const QByteArray& userPlatform);

}  // namespace sonarium
