// The info panel in the real window, for people to look at: a song's page followed by its
// karaoke timings, and the editor with its toolbar. A word the timings reach shows red in the
// box itself, and the toolbar's buttons carry their names.
#include <QTextEdit>
#include <QToolButton>

#include "WindowsFixture.h"
#include "info/KaraokeFile.h"
#include "info/PageMarker.h"
#include "info/rtf/RtfWriter.h"

namespace sonarium {
namespace {

class InfoWindowTest : public WindowsFixture {};

TEST_F(InfoWindowTest, ASongsPageLitByItsTimingsAndTheEditor) {
    start();
    Form1& f = form1();
    RichDocument lyric;
    CharFormat big;
    big.pointSize = 16;
    lyric.paragraphs[0].alignment = ParagraphAlignment::Center;
    lyric.paragraphs[0].append("Harbour Lights", {QString(), 20, true});
    lyric.paragraphs.append(Paragraph{ParagraphAlignment::Center, {}});
    lyric.paragraphs[1].append("Salt on the wind and salt on the sea", big);
    write("Salt.RTF", writeRtf(lyric) + pageMarkerLine({250, 240, 215}));
    KaraokePoints points;
    points.frames = {0, 20, 40, 60, 100, 0};
    points.offsets = {0, 15, 20, 23, 52, 0};
    points.count = 5;
    write("Salt.KAK", karaokeFileBytes(points));
    f.lstSongs.AddItem("Salt");
    M().SongPath[0] = path("") + "/";
    tc.mp3.addFile(path("Salt.MP3"), 100, 2.6f);

    f.mnuInfo.Click();
    f.BtnPlay.MouseDown(LeftButton, 0, 0, 0);
    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);
    tc.loop.advance(15 * FakePlayer::FrameMs);  // "on" lit, 30 frames ahead of frame 40
    settle();
    auto* box = find<QTextEdit>(main(), "RT(0)");
    ASSERT_NE(box, nullptr);
    QTextCursor lit(box->document());
    lit.setPosition(21);
    EXPECT_EQ(lit.charFormat().foreground().color(), QColor(Qt::red));
    saveScreenshot(main(), "info-karaoke.png");
    tc.loop.waitUntil([&] { return !M().SongPlaying; });

    f.mnuEdit.Click();
    settle();
    auto* karaoke = find<QToolButton>(main(), "Karaoki");
    ASSERT_NE(karaoke, nullptr);
    EXPECT_EQ(karaoke->accessibleName(), "Record Karaoke Positions");
    saveScreenshot(main(), "info-editor.png");
    const QString daylight = QStringLiteral(SONARIUM_SKINS_DIR) + "/Daylight";
    registerSkin(daylight);
    M().SkinPath = daylight;
    f.LoadSkin();
    settle();
    saveScreenshot(main(), "info-editor-daylight.png");
}

}  // namespace
}  // namespace sonarium
