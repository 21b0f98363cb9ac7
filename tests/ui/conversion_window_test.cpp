// The converter in the real window, for people to look at: CD to MP3 with a CD's tracks listed,
// a run in progress, WAV to MP3, and the punch dialog with a section being marked. What each mode shows and
// hides is the conversion unit tests' to check.
#include "WindowsFixture.h"

namespace sonarium {
namespace {

class ConversionWindowTest : public WindowsFixture {};

TEST_F(ConversionWindowTest, TheModesInTheWindow) {
    program().Main();
    settle();
    tc.dialogs.clear();
    tc.dialogs.setAutoAnswerOk(true);
    Form1& f = form1();
    f.CurrentDir = path("") + "/";
    f.mnuInternal.Click();
    tc.cd.tracks = {185000, 247000, 61000,  300000, 199000, 211000, 150000,
                    90000,  240000, 222000, 180000, 175000, 66000};
    f.mnuCDtoMP3.Click();
    settle();
    saveScreenshot(main(), "convert-cd-to-mp3.png");
    f.lstSongs.AddItem(f.Title[0].Caption());
    f.lstSongs.AddItem(f.Title[1].Caption());
    f.BtnPlay.MouseDown(LeftButton, 0, 0, 0);
    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);
    tc.loop.advance(8500);  // extracted, and half way through the encoding
    settle();
    saveScreenshot(main(), "convert-running.png");
    f.imgQuitEncoder.Click();
    settle();
    f.mnuWavToMp3.Click();
    settle();
    saveScreenshot(main(), "convert-wav-to-mp3.png");
    f.mnuWavToMp3.Click();

    f.mnuMP3ToWav.Click();
    f.lstSongs.AddItem("Harbour Lights");
    M().SongPath[0] = "/m/";
    tc.mp3.addFile("/m/Harbour Lights.MP3", 9000, 235.0f);
    tc.mp32.addFile("/m/Harbour Lights.MP3", 9000, 235.0f);
    settle();
    saveScreenshot(main(), "convert-mp3-to-wav.png");
    Form2& dialog = program().form2;
    tc.loop.post([&] {
        dialog.cmdPunchInOutPlay.Click();
        tc.loop.waitUntil([&] { return M().PunchPosition == 1400; });
        dialog.cmdPunchInOutSet.Click();
        tc.loop.waitUntil([&] { return M().PunchPosition == 2100; });
        settle();
        saveScreenshot(views->form2(), "convert-punch-dialog.png");
        dialog.cmdPunchInOutCancel.Click();
    });
    f.cmdSetPunchInOut.Click();
}

}  // namespace
}  // namespace sonarium
