// The info viewer on a folder of pages, and karaoke recorded and followed on the fake player.
#include <QDir>

#include "../playback/PlaybackFixture.h"
#include "info/PageMarker.h"
#include "info/rtf/RtfWriter.h"

namespace sonarium {
namespace {

class InfoViewer : public PlaybackFixture {
protected:
    // A page whose one paragraph is `text`, with a marker line when a colour is given.
    void page(const QString& name, const QString& text, std::optional<Color> marker = {}) {
        RichDocument doc;
        doc.paragraphs[0].append(text, {});
        write(name, writeRtf(doc) + (marker ? pageMarkerLine(*marker) : QByteArray()));
    }
    QString shown() { return form1().RT.Text() + ' ' + form1().lblInfoPageNumber.Caption(); }
};

TEST_F(InfoViewer, PagesOfTheFolderByHandAndOnTheTimerWithTheirBackgrounds) {
    Form1& f = form1();
    page("a.rtf", "first", Color{1, 2, 3});
    page("Contact.RTF", "call us", Color{9, 9, 9});
    page("GIGguide.rtf", "gigs");
    f.CurrentDir = path("") + "/";
    f.GetRTF();
    EXPECT_EQ(shown(), "first 1/3");
    EXPECT_EQ(f.RT.BackColor(), (Color{1, 2, 3}));
    EXPECT_TRUE(f.btnContact.Visible() && f.btnGigGuide.Visible());

    f.cmdInfoLeft.Click();  // at the first page: loaded again
    EXPECT_EQ(shown(), "first 1/3");
    for (int i = 0; i < 3; ++i) f.cmdInfoRight.Click();
    EXPECT_EQ(shown(), "gigs 3/3") << "no marker: the colour stays";
    EXPECT_EQ(f.RT.BackColor(), (Color{9, 9, 9}));
    f.tmrInfo_Timer();
    EXPECT_EQ(shown(), "first 1/3") << "the timer wraps";
    f.btnContact.Click();  // by file name: its marker is not applied
    EXPECT_EQ(f.RT.Text(), "call us");
    EXPECT_EQ(f.RT.BackColor(), (Color{1, 2, 3}));
    f.mnuEdit.Click();
    f.tmrInfo_Timer();
    EXPECT_EQ(f.RT.Text(), "call us") << "the editor has the box";
    f.mnuEdit.Click();

    // A folder without pages keeps the numbers; the next page is not there.
    f.CurrentDir = path("none") + "/";
    f.GetRTF();
    f.cmdInfoRight.Click();
    EXPECT_EQ(shown(), "call us 1/3");
    f.ClearRTF();
    EXPECT_EQ(f.RT.BackColor(), (Color{174, 191, 200}));

    // The interval: a number of seconds, at most 60, and 0 or no number gives 30 seconds.
    for (const auto& [answer, ms] :
         {std::pair{"0", 30000}, {"abc", 30000}, {"60", 60000}, {"61", 60000}, {"7", 7000}, {"", 7000}}) {
        tc.dialogs.answerInput(answer);
        f.mnuSetTimer.Click();
        EXPECT_EQ(f.tmrInfo.Interval(), ms) << answer;
    }
}

TEST_F(InfoViewer, TheViewerTheEditorAndTheLibraryExcludeOneAnother) {
    Form1& f = form1();
    f.mnuDatabase.Click();
    f.mnuInfo.Click();
    EXPECT_TRUE(f.mnuInfo.Checked() && !f.mnuDatabase.Checked() && f.RT.Locked() &&
                !f.PanelTitles().Visible());
    EXPECT_EQ(f.Height(), 8200) << "a screen with the room";
    EXPECT_EQ(f.InfoPanel.Height(), 4915);
    f.mnuEdit.Click();
    EXPECT_TRUE(f.mnuEdit.Checked() && !f.mnuInfo.Checked() && !f.RT.Locked() && f.PanelControls.Visible() &&
                !f.PanelViewButtons.Visible());
    f.cmdQuitEditor.Click();
    EXPECT_TRUE(!f.InfoPanel.Visible() && f.PanelTitles().Visible());
    EXPECT_EQ(f.Height(), 7200);
}

TEST_F(InfoViewer, TheEditorsToolbarFormatsSavesWithTheMarkerOnceAndAsksBeforeReplacing) {
    Form1& f = form1();
    M().AppDir = path("");
    f.mnuEdit.Click();
    RichDocument doc;
    doc.paragraphs[0].append("two words", {});
    f.RT.setDocument(doc);
    f.RT.setBackColor({1, 2, 3});
    f.RT.select(4, 5);
    f.Toolbar.ButtonClick(4);  // "bold", a check button: pressed
    EXPECT_EQ(f.RT.document().paragraphs[0].runs.size(), 2);
    EXPECT_TRUE(f.RT.document().paragraphs[0].runs[1].format.bold);

    const QString file = path("page.rtf");
    tc.dialogs.answerFile(file);
    f.Toolbar_ButtonClick("save");
    const QByteArray saved = read("page.rtf");
    EXPECT_TRUE(saved.endsWith("}\r\n{\\bc\\197121;-bc}\r\n"));
    f.RT.setBackColor({9, 9, 9});
    tc.dialogs.answerFile(file).answer(MsgResult::No);
    f.Toolbar_ButtonClick("save");
    EXPECT_EQ(read("page.rtf"), saved) << "No touches nothing";
    tc.dialogs.answerFile(file).answer(MsgResult::Yes);
    f.Toolbar_ButtonClick("save");
    EXPECT_EQ(read("page.rtf").count("{\\bc"), 1) << "rewritten whole, one marker";
    tc.dialogs.answerFile("");
    f.Toolbar_ButtonClick("save");  // Cancel: nothing, not a word
    QStringList messages = tc.dialogs.texts();
    messages.removeAll("");  // the file dialogs, untitled
    EXPECT_EQ(messages, QStringList(2, "File already exists, overwrite?"));

    tc.dialogs.answer(MsgResult::Yes);
    f.Toolbar_ButtonClick("clear");
    EXPECT_EQ(f.RT.Text(), "");
    tc.dialogs.answerFile(file);
    f.Toolbar_ButtonClick("load");
    EXPECT_EQ(f.RT.Text(), "two words");
    EXPECT_EQ(f.RT.BackColor(), (Color{9, 9, 9}));

    queue({"A", "B"});
    tc.dialogs.clear();
    tc.dialogs.setAutoAnswerOk(true);
    f.Toolbar_ButtonClick("Karaoki");
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"This must be the only song in the song queue"}));
    EXPECT_FALSE(M().KaraokeRecording);
}

TEST_F(InfoViewer, KaraokeRecordsClicksWritesTheTimingsAndLightsEachStretchAhead) {
    Form1& f = form1();
    RichDocument lyric;
    lyric.paragraphs[0].append("one two three", {});
    f.RT.setDocument(lyric);
    // The word at the caret; on a blank, the word after it.
    for (const auto& [caret, word] :
         {std::pair{0, "one"}, {5, "two"}, {6, "two"}, {3, "two"}, {7, "three"}, {13, ""}}) {
        f.RT.select(caret, 0);
        f.FindText();
        EXPECT_EQ(f.RT.SelText(), word) << caret;
    }
    f.RT.setDocument({});
    f.FindText();
    EXPECT_EQ(f.RT.SelStart(), 0) << "an empty box";
    f.RT.setDocument(lyric);

    // Recording: a click is stamped with the next report's frame (every 32nd while recording).
    queue({"A"}, path("") + "/");
    f.lstSongs.setListIndex(0);
    M().KaraokeRecording = true;
    play();
    for (const auto& [frames, caret] : {std::pair{40, 1}, {30, 5}}) {
        tc.loop.advance(frames * FakePlayer::FrameMs);
        f.RT.select(caret, 0);
        f.RT.Click();
    }
    tc.loop.waitUntil([&] { return !M().SongPlaying; });
    EXPECT_EQ(read("A.KAK"), " 64 , 0 , 96 , 4 , 100 , 14 , 0 , 0 ,");

    // Following, with the viewer open: each stretch lights 30 frames before its mark, and the
    // one before goes back to black.
    auto red = [&] {
        QString text;
        for (const TextRun& r : f.RT.document().paragraphs[0].runs)
            if (r.format.color == Color{255, 0, 0}) text += r.text;
        return text;
    };
    f.mnuInfo.Click();
    play();
    tc.loop.advance(20 * FakePlayer::FrameMs);
    EXPECT_EQ(red(), "");
    tc.loop.advance(20 * FakePlayer::FrameMs);
    EXPECT_EQ(red(), "one");
    tc.loop.advance(28 * FakePlayer::FrameMs);
    EXPECT_EQ(red(), "two three");
    tc.loop.waitUntil([&] { return !M().SongPlaying; });

    // A point in the first 30 frames fires at the first report; with the viewer closed nothing
    // moves, and opened late it catches up a point a report.
    f.RT.setDocument(lyric);
    M().KaraokeFrames = {0, 10, 50, 100, 0};
    M().KaraokeOffsets = {0, 0, 4, 14, 0};
    M().KaraokeIndex = 1;
    f.mnuInfo.Click();
    f.KaraokeFrame(1);
    EXPECT_EQ(M().KaraokeIndex, 1);
    f.mnuInfo.Click();
    f.KaraokeFrame(1);
    EXPECT_EQ(red(), "one");
    f.RT.setDocument(lyric);
    M().KaraokeIndex = 1;
    f.KaraokeFrame(80);
    f.KaraokeFrame(81);
    EXPECT_EQ(red(), "two three");
    EXPECT_EQ(M().KaraokeIndex, 3);
}

}  // namespace
}  // namespace sonarium
