#pragma once
// One of every fake, on one virtual clock, ready to hand to the program. Members are public so
// a test scripts them directly: `tc.mp3.addFile(...)`, `tc.dialogs.answer(MsgResult::Yes)`.
// The loop is declared first so that it outlives every fake that schedules on it.
#include "CollectedErrors.h"
#include "FakeConversion.h"
#include "FakeDataControl.h"
#include "FakeDesktop.h"
#include "FakeMixer.h"
#include "FakePeakMeter.h"
#include "FakePictureLoader.h"
#include "FakePlayer.h"
#include "FakeVolumes.h"
#include "ScriptedDialogs.h"
#include "VirtualEventLoop.h"
#include "controls/Components.h"

namespace sonarium {

struct TestComponents {
    VirtualEventLoop loop;
    ScriptedDialogs dialogs;
    FakeDesktop desktop;
    FakePictureLoader pictures;
    FakeVolumes volumes;
    FakePlayer mp3{loop};
    FakePlayer mp32{loop};
    FakeEncoder encoder{loop};
    FakeCdReader cd{loop};
    FakeMixer mixer;
    FakePeakMeter peak;
    FakeDataControl data;
    FakeProcesses processes;
    CollectedErrors errors;
    QString commandLine;
    QString startDir;

    // Every machine has its root volume; tests add more.
    TestComponents() { volumes.add(QStringLiteral("/"), QStringLiteral("System")); }

    // The fakes, with `dataControl` as the data control: `data`, or a real library.
    Components components(DataControl& dataControl) {
        return Components{loop, dialogs, desktop, pictures,    volumes,   mp3,    mp32,        encoder,
                          cd,   mixer,   peak,    dataControl, processes, errors, commandLine, startDir};
    }
};

}  // namespace sonarium
