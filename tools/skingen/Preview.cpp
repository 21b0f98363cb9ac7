#include "Preview.h"

#include <QDir>
#include <QPainter>
#include <cmath>

#include "Paint.h"
#include "WindowPlaces.h"

namespace sonarium::skingen {

namespace {

using namespace mainskin;
using namespace places;

Rect cutOf(std::string_view control) {
    for (const Cut& c : PanelCuts)
        if (c.control == control) return c.rect;
    for (const Cut& c : ButtonCuts)
        if (c.control == control) return c.rect;
    return PhotoCut.rect;
}

class Mockup {
public:
    explicit Mockup(const SkinSheets& s) : s_(s), window_(windowWidth, windowHeight, QImage::Format_RGB32) {
        window_.fill(QColor(0x20, 0x20, 0x20));
        p_.begin(&window_);
        p_.setFont(pixelFont(11, false, true));
    }
    const QImage& buttonsSheet() const { return s_.buttons; }
    const QImage& panelsSheet() const { return s_.panels; }
    QImage finish() {
        p_.end();
        return window_;
    }

    // A picture cut from a sheet, put at `at` on the panel that starts at `panel`.
    void panel(std::string_view control, const Rect& onWindow) {
        put(s_.panels, cutOf(control), onWindow, {0, 0});
    }
    void piece(std::string_view control, const Rect& panelOnWindow, const Rect& place) {
        put(s_.buttons, cutOf(control), panelOnWindow, {place.x, place.y});
    }
    void image(int index, const Rect& panelOnWindow, const Rect& place) {
        put(s_.buttons, ImageListCuts[std::size_t(index - 1)], panelOnWindow, {place.x, place.y});
    }
    void sheetAt(const QImage& sheet, const Rect& cut, const Rect& panelOnWindow, const Rect& place) {
        put(sheet, cut, panelOnWindow, {place.x, place.y});
    }
    // Text as the window's labels draw it, over the skin.
    void text(const Rect& panelOnWindow, const Rect& place, const QString& s, const QColor& ink,
              int flags = Qt::AlignLeft | Qt::AlignVCenter, int px = 11, bool bold = false) {
        p_.setFont(pixelFont(px, bold, true));
        p_.setPen(ink);
        p_.drawText(box(panelOnWindow, place).adjusted(4, 0, -4, 0), flags, s);
    }
    void fill(const Rect& panelOnWindow, const Rect& place, const QColor& c) {
        p_.fillRect(box(panelOnWindow, place), c);
    }
    void lines(const Rect& panelOnWindow, const Rect& place, const QStringList& rows, const QColor& back,
               const QColor& ink) {
        fill(panelOnWindow, place, back);
        QRect b = box(panelOnWindow, place);
        p_.setFont(pixelFont(11, false, true));
        p_.setPen(ink);
        for (int i = 0; i < rows.size() && 2 + i * 16 + 14 < b.height(); ++i)
            p_.drawText(QRect(b.left() + 4, b.top() + 2 + i * 16, b.width() - 8, 16), Qt::AlignVCenter,
                        rows[i]);
    }

private:
    static QRect box(const Rect& panelOnWindow, const Rect& place) {
        return QRect(panelOnWindow.x + place.x, panelOnWindow.y + place.y, place.w, place.h);
    }
    void put(const QImage& sheet, const Rect& cut, const Rect& panelOnWindow, QPoint at) {
        p_.drawImage(QPoint(panelOnWindow.x + at.x(), panelOnWindow.y + at.y()), sheet.copy(toQRect(cut)));
    }

    const SkinSheets& s_;
    QImage window_;
    QPainter p_;
};

int knobTop(int slider, int value) {
    return int(std::lround(((100 - value) * 8.1 + knobTopAt100[slider] * 15.0 + 5) / 15.0));
}

// The parts every mock-up shares: the stick, the deck with a song playing, the view bar.
void deck(Mockup& m, const Theme& t, bool converter) {
    m.panel("imgStick", stickOnWindow);
    m.image(15, stickOnWindow, imgSize);
    m.panel("PicTopPanel", topOnWindow);
    const Rect top = topOnWindow;
    m.text(top, songTitle, QStringLiteral("Nina Simone - Feeling Good.mp3"), t.glassText);
    m.image(converter ? 1 : 24, top, btnPlay);
    m.image(7, top, btnPause);
    m.image(3, top, btnStop);
    m.image(5, top, btnFade);
    m.text(top, time, QStringLiteral("02:47"), t.displayText, Qt::AlignCenter, 17, true);
    m.sheetAt(m.buttonsSheet(), cutOf("imgGreenBall"), top, ball);
    m.piece("chkLoop", top, loop);
    m.piece("lblRepeat", top, repeat);
    m.piece("cmdShuffle", top, shuffle);
    if (converter) {
        m.sheetAt(m.panelsSheet(), cutOf("PicEncode"), top, photo);
        for (auto [y, s] :
             {std::pair{6, "BitRate"}, {30, "SampleRate"}, {54, "Track start title"}, {78, "Track Progress"}})
            m.text(top, Rect{6 + 6, 9 + y, 100, 16}, QString::fromLatin1(s), QColor(0xc4, 0xc9, 0xd0));
        m.fill(top, Rect{photo.x + encodeProgress.x, photo.y + encodeProgress.y, 120, encodeProgress.h},
               t.lit);
        m.panel("PanelVU", Rect{top.x + vu.x, top.y + vu.y, vu.w, vu.h});
        for (int i = 0; i < vuLamps; ++i) {
            const Rect lampAt{vu.x + vuLamp(i).x, vu.y + vuLamp(i).y, 8, 8};
            const char* name = i >= 13             ? "imgVUPurple"
                               : i >= vuFirstRed   ? "imgVURed"
                               : i >= vuFirstAmber ? "imgVUAmber"
                                                   : "imgVUGreen";
            m.piece(name, top, lampAt);
        }
        m.piece("imgEncoder", top, encoder);
        m.piece("imgQuitEncoder", top, quitEncoder);
        m.piece("cmdSetPunchInOut", top, setPunch);
        m.piece("lblPunchInOut", top, punchLegend);
        m.fill(top, useInOut, t.glass);
    } else {
        m.sheetAt(m.panelsSheet(), PhotoCut.rect, top, photo);
        m.piece("imgSLiderSong", top, songSlider);
        m.piece("imgButtonSong", top, Rect{songKnob.x + 64, songKnob.y, songKnob.w, songKnob.h});
    }
    m.piece("cmdSpeedDown", top, speedDown);
    m.piece("cmdSpeedUp", top, speedUp);
    m.text(top, speed, QStringLiteral("100"), t.displayText, Qt::AlignCenter, 10, true);
    m.piece("lblSpd", top, speedLegend);
    m.text(top, bitrate, QStringLiteral("192 kbps"), t.glassText, Qt::AlignCenter, 10);
    m.text(top, frequency, QStringLiteral("44.1 kHz"), t.glassText, Qt::AlignCenter, 10);
    m.text(top, duration, QStringLiteral("04:12"), t.glassText, Qt::AlignCenter, 10);
    m.image(18, top, monoStereo);
    m.text(top, totalTime, QStringLiteral("1:02:33"), t.glassText, Qt::AlignCenter, 10);
    m.piece("cmdSaveTB", top, saveTB);
    m.piece("cmdSaveTBDefaults", top, saveTBDefaults);

    m.panel("PicView", viewOnWindow);
    m.piece("cmdAddAll", viewOnWindow, addAll);
    m.piece("cmdDeleteAll", viewOnWindow, deleteAll);
    m.piece("cmdDelete", viewOnWindow, deleteSong);
    m.text(viewOnWindow, songQueue, QStringLiteral("Song queue: 14"), QColor(0xc4, 0xc9, 0xd0),
           Qt::AlignLeft | Qt::AlignVCenter, 10);
    m.lines(viewOnWindow, drive, {QStringLiteral("/  (root)")}, t.dirBack, t.dirText);
}

QImage mainView(const SkinSheets& s, const Theme& t, bool converter) {
    Mockup m(s);
    deck(m, t, converter);
    m.panel("PicMixer", mixerOnWindow);
    const int values[3] = {65, 72, 40};
    const char* knobs[3] = {"SLiderVolume", "SliderTreble", "SliderBass"};
    for (int i = 0; i < 3; ++i)
        m.piece(knobs[i], mixerOnWindow, Rect{knobX, knobTop(i, values[i]), knobW, knobH});
    m.panel("PicTitleBoxes", titlesOnWindow);
    m.lines(titlesOnWindow, dirList,
            {"/", "  home", "    music", "      Jazz", "      Soul", "      Blues", "      Rock"}, t.dirBack,
            t.dirText);
    const char* titles[] = {"Feeling Good",
                            "Sinnerman",
                            "My Baby Just Cares",
                            "I Put a Spell on You",
                            "Wild Is the Wind",
                            "Lilac Wine",
                            "Ne me quitte pas",
                            "Four Women",
                            "",
                            "",
                            "",
                            ""};
    for (int i = 0; i < titleCount; ++i)
        m.text(titlesOnWindow, title(i), QString::fromLatin1(titles[i]), t.titleText,
               Qt::AlignLeft | Qt::AlignVCenter, 11);
    m.lines(titlesOnWindow, songList, {"Feeling Good", "Sinnerman", "Lilac Wine", "Four Women", "Take Five"},
            t.queueBack, t.queueText);
    m.panel("PicRightPanel", rightOnWindow);
    m.piece("cmdUp", rightOnWindow, cmdUp);
    m.piece("cmdDown", rightOnWindow, cmdDown);
    m.piece("imgDataBase", rightOnWindow, imgDataBase);
    m.piece("imgViewInfo", rightOnWindow, imgViewInfo);
    m.piece("imgEditInfo", rightOnWindow, imgEditInfo);
    return m.finish();
}

QImage libraryView(const SkinSheets& s, const Theme& t) {
    Mockup m(s);
    deck(m, t, false);
    const Rect db = databaseOnWindow;
    m.sheetAt(s.database, Rect{0, 0, db.w, db.h}, db, Rect{0, 0, db.w, db.h});
    QStringList rows;
    for (const char* r : {"Path            File              Song Title        Artist",
                          "/music/Jazz/    take5.mp3         Take Five         Brubeck",
                          "/music/Soul/    feeling.mp3       Feeling Good      Nina Simone",
                          "/music/Blues/   thrill.mp3        The Thrill Is Gone  B.B. King"})
        rows << QString::fromLatin1(r);
    m.lines(db, grid, rows, t.gridBack, t.gridText);
    for (int i = 0; i < columnPairs; ++i) {
        const char* face = i == 2 ? "Button" : i == 3 ? "ButtonBlue" : "Indent";
        m.piece(face, db, columnButton(i));
        m.piece("imgDown", db, columnMenu(i));
    }
    m.text(db, records, QStringLiteral("1284"), t.glassText, Qt::AlignRight | Qt::AlignVCenter, 10);
    m.text(db, order, QStringLiteral("Song Title"), t.glassText, Qt::AlignLeft | Qt::AlignVCenter, 10);
    m.text(db, filter, QStringLiteral("Artist Like \"N*\""), t.glassText, Qt::AlignLeft | Qt::AlignVCenter,
           10);
    const char* commands[] = {"cmdAddToQueue", "CmdDataAdd",    "cmdSearch",     "cmdAutoSet",
                              "cmdClearAll",   "CmdDeleteFile", "cmdDeleteLine", "cmdDatabaseClose"};
    for (int i = 0; i < commandCount; ++i) m.piece(commands[i], db, command(i));
    return m.finish();
}

QImage enlarged(const QImage& img, int factor) {
    return img.scaled(img.size() * factor, Qt::IgnoreAspectRatio, Qt::FastTransformation);
}

}  // namespace

bool writePreviews(const SkinSheets& sheets, const Theme& t, const QString& dir, QString& error) {
    if (!QDir().mkpath(dir)) {
        error = QStringLiteral("cannot create %1").arg(dir);
        return false;
    }
    const QString stem = dir + u'/' + t.name + u'-';
    const std::pair<QString, QImage> files[] = {
        {QStringLiteral("Panels.png"), sheets.panels},
        {QStringLiteral("Buttons.png"), sheets.buttons},
        {QStringLiteral("Buttons-x3.png"), enlarged(sheets.buttons, 3)},
        {QStringLiteral("PanelDatabase.png"), sheets.database},
        {QStringLiteral("mockup.png"), mainView(sheets, t, false)},
        {QStringLiteral("mockup-x2.png"), enlarged(mainView(sheets, t, false), 2)},
        {QStringLiteral("mockup-converter.png"), mainView(sheets, t, true)},
        {QStringLiteral("mockup-converter-deck-x3.png"),
         enlarged(mainView(sheets, t, true).copy(0, 0, windowWidth, viewOnWindow.y), 3)},
        {QStringLiteral("mockup-library.png"), libraryView(sheets, t)},
        {QStringLiteral("mockup-library-x2.png"), enlarged(libraryView(sheets, t), 2)},
    };
    for (const auto& [name, image] : files) {
        if (!image.save(stem + name, "PNG")) {
            error = QStringLiteral("cannot write %1").arg(stem + name);
            return false;
        }
    }
    return true;
}

}  // namespace sonarium::skingen
