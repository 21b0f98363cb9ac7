// The main window as designed: where each control stands, its size, captions and starting
// state. Places are given in pixels here and stored in twips (15 to a pixel). The frames match
// the pieces that a main skin cuts, so every cut lands on its control.
#include "info/PageMarker.h"
#include "library/ColumnButtons.h"
#include "shell/Form1.h"

namespace sonarium {

namespace {
constexpr int T = TwipsPerPixel;

void place(Control& c, Control* container, int x, int y, int w, int h) {
    c.setContainer(container);
    c.Move(x * T, y * T, w * T, h * T);
}

void hint(Control& c, const char* text) { c.setToolTipText(QString::fromUtf8(text)); }

// The library panel: the column buttons over the grid's headings, the grid, the count, order
// and filter, and the commands along the bottom.
void layOutLibrary(Form1& f) {
    const char* columns[] = {"Path",  "File",        "Song Title", "Artist", "Album",    "Comment",
                             "Genre", "Duration",    "Year",       "Tempo",  "Lyricist", "Composer",
                             "Key",   "Web Address", "E-Mail",     "Info"};
    // Wide enough for each heading's two buttons; the first five clear the last pair at the right.
    const int widths[] = {150, 140, 130, 120, 120, 110, 90, 60, 45, 60, 90, 90, 45, 120, 110, 160};
    place(f.DBGrid1, &f.PanelDatabase, 6, 24, 622, 196);
    f.DBGrid1.setDescription(QStringLiteral("Library"));
    for (int i = 0; i < 16; ++i) f.DBGrid1.addColumn(QString::fromLatin1(columns[i]), i, widths[i] * T);
    f.DBGrid1.setColumnButton(6, true);

    f.Indent.setPicture(indentPicture());
    f.Button.setPicture(orderPicture());
    f.ButtonBlue.setPicture(filterPicture());
    const Picture arrow = dropArrowPicture();
    for (int i = 0; i < f.imgButon.size(); ++i) {
        // The last pair is never aligned: it keeps this place at the right.
        const int x = i < 14 ? 6 + i * 40 : 596;
        place(f.imgButon[i], &f.PanelDatabase, x, 4, 17, 17);
        f.imgButon[i].setPicture(f.Indent.picture());
        f.imgButon[i].setToolTipText(QStringLiteral("Order by %1").arg(QLatin1String(columns[i])));
        place(f.imgDown[i], &f.PanelDatabase, x, 6, 11, 12);
        f.imgDown[i].setLeft(f.imgButon[i].Left() + 320);
        f.imgDown[i].setPicture(arrow);
        f.imgDown[i].setToolTipText(QStringLiteral("%1 menu").arg(QLatin1String(columns[i])));
    }
    place(f.ListGen, &f.PanelDatabase, 0, 0, 120, 112);
    f.ListGen.setDescription(QStringLiteral("Genres"));

    place(f.lblRecords, &f.PanelDatabase, 6, 224, 64, 14);
    f.lblRecords.setAlignment(Alignment::Right);
    f.lblRecords.setDescription(QStringLiteral("Records"));
    place(f.lblOrder, &f.PanelDatabase, 74, 224, 130, 14);
    f.lblOrder.setDescription(QStringLiteral("Order"));
    place(f.lblFilter, &f.PanelDatabase, 208, 224, 420, 14);
    f.lblFilter.setCaption(QStringLiteral("Off"));
    f.lblFilter.setDescription(QStringLiteral("Filter"));

    struct Command {
        Image& button;
        int width;
        const char* hint;
    } commands[] = {{f.cmdAddToQueue, 74, " Add selected record to song queue "},
                    {f.CmdDataAdd, 71, " Manual Add/Update "},
                    {f.cmdSearch, 71, " Auto search & add new titles "},
                    {f.cmdAutoSet, 71, " Create song set using criteria "},
                    {f.cmdClearAll, 71, " Clear all database records "},
                    {f.CmdDeleteFile, 71, " Delete file from disk "},
                    {f.cmdDeleteLine, 78, " Delete selected record "},
                    {f.cmdDatabaseClose, 71, " Close database window "}};
    int x = 6;
    for (const Command& c : commands) {
        place(c.button, &f.PanelDatabase, x, 242, c.width, 17);
        hint(c.button, c.hint);
        x += c.width + 4;
    }
}
}  // namespace

void Form1::design() {
    setCaption(QString());
    Move(0, 0, 634 * T, 7200);

    // The five panels that the skin paints, top to bottom.
    place(imgStick, nullptr, 0, 0, 632, 27);
    place(PicTopPanel, nullptr, 0, 27, 632, 146);
    place(PicView, nullptr, 0, 173, 634, 29);
    place(PicMixer, nullptr, 0, 202, 53, 262);
    place(PicTitleBoxes, nullptr, 53, 202, 531, 263);
    place(PicRightPanel, nullptr, 584, 202, 48, 262);
    place(imgSize, &imgStick, 614, 8, 11, 11);
    hint(imgSize, "Play bar only / full window");

    // Photo, song details, song sets and the conversion panel share one place.
    place(PanelPhoto, &PicTopPanel, 6, 9, 231, 128);
    place(Photo, &PanelPhoto, 0, 0, 231, 128);
    place(Image8, &PanelPhoto, 0, 0, 53, 127);
    place(Image9, &PanelPhoto, 178, 0, 53, 127);
    Image8.setVisible(false);
    Image9.setVisible(false);
    place(PanelSongInfo, &PicTopPanel, 6, 9, 231, 128);
    int row = 0;
    for (TextBox* box : {&txtTitle, &txtArtist, &txtAlbum, &txtYear, &txtComment})
        place(*box, &PanelSongInfo, 4, 2 + row++ * 21, 223, 19);
    txtTitle.setDescription(QStringLiteral("Title"));
    txtArtist.setDescription(QStringLiteral("Artist"));
    txtAlbum.setDescription(QStringLiteral("Album"));
    txtYear.setDescription(QStringLiteral("Year"));
    txtComment.setDescription(QStringLiteral("Comment"));
    place(cboGenre, &PanelSongInfo, 4, 107, 201, 20);
    cboGenre.setDescription(QStringLiteral("Genre"));
    place(cmdUpdateTag, &PanelSongInfo, 209, 107, 18, 20);
    hint(cmdUpdateTag, " Update Tag Info ");
    place(lstSongSets, &PicTopPanel, 6, 9, 231, 112);
    lstSongSets.setDescription(QStringLiteral("Song sets"));
    place(lblDoubleClick, &PicTopPanel, 6, 122, 231, 15);
    lblDoubleClick.setCaption(QStringLiteral("Double click to load"));
    lblDoubleClick.setVisible(false);
    place(PanelCdToMP3, &PicTopPanel, 6, 9, 231, 128);
    PanelCdToMP3.setVisible(false);
    place(PicEncode, &PanelCdToMP3, 0, 0, 231, 128);
    place(lblBtRate, &PanelCdToMP3, 6, 6, 70, 16);
    lblBtRate.setCaption(QStringLiteral("BitRate"));
    place(cboBitRate, &PanelCdToMP3, 80, 4, 80, 20);
    for (const char* r : {"32   kHz", "40   kHz", "48   kHz", "56   kHz", "64   kHz", "80   kHz", "96   kHz",
                          "112 kHz", "128 kHz", "160 kHz", "192 kHz", "224 kHz", "256 kHz", "320 kHz"})
        cboBitRate.AddItem(QString::fromLatin1(r));
    place(lblSampleRate, &PanelCdToMP3, 6, 30, 70, 16);
    lblSampleRate.setCaption(QStringLiteral("SampleRate"));
    place(cboSampleRate, &PanelCdToMP3, 80, 28, 80, 20);
    for (const char* r : {"32    kHz", "44.1 kHz", "48    kHz"})
        cboSampleRate.AddItem(QString::fromLatin1(r));
    place(Label11, &PanelCdToMP3, 6, 54, 100, 16);
    Label11.setCaption(QStringLiteral("Track start title"));
    place(txtTrackTitle, &PanelCdToMP3, 110, 52, 110, 19);
    txtTrackTitle.setText(QStringLiteral("Track"));
    place(lblTrackProgress, &PanelCdToMP3, 6, 78, 150, 16);
    lblTrackProgress.setCaption(QStringLiteral("Track Progress"));
    place(ShapeBack, &PanelCdToMP3, 6, 96, 209, 10);
    place(Shape1, &PanelCdToMP3, 6, 96, 0, 10);
    place(lblBladeEncTime, &PanelCdToMP3, 6, 110, 215, 16);
    lblBladeEncTime.setCaption(QStringLiteral(" Using Blade ...... Time"));
    lblBladeEncTime.setVisible(false);

    // Transport, time and song position.
    place(lblSongTitile, &PicTopPanel, 246, 6, 380, 18);
    lblSongTitile.setDescription(QStringLiteral("Song title"));
    place(BtnPlay, &PicTopPanel, 246, 30, 42, 20);
    place(BtnPause, &PicTopPanel, 292, 30, 42, 20);
    place(BtnStop, &PicTopPanel, 338, 30, 42, 20);
    place(BtnFade, &PicTopPanel, 384, 30, 42, 20);
    hint(BtnPlay, "Play");
    hint(BtnPause, "Pause");
    hint(BtnStop, "Stop");
    hint(BtnFade, "Fade");
    place(lblTime, &PicTopPanel, 436, 28, 96, 24);
    lblTime.setCaption(QStringLiteral("00:00"));
    lblTime.setAlignment(Alignment::Center);
    lblTime.setDescription(QStringLiteral("Elapsed time"));
    place(Ball, &PicTopPanel, 546, 37, 12, 7);
    hint(Ball, "Busy lamp");
    place(chkLoop, &PicTopPanel, 566, 37, 12, 7);
    hint(chkLoop, "Loop");
    place(lblRepeat, &PicTopPanel, 582, 34, 14, 13);
    place(cmdShuffle, &PicTopPanel, 602, 37, 12, 7);
    hint(cmdShuffle, "Shuffle");
    place(imgSLiderSong, &PicTopPanel, 246, 66, 196, 3);
    place(imgButtonSong, &PicTopPanel, 246, 62, 20, 10);
    hint(imgButtonSong, "Song position");
    place(PanelVU, &PicTopPanel, 244, 60, 201, 15);
    PanelVU.setVisible(false);
    for (int i = 0; i < imgVU.size(); ++i) place(imgVU[i], &PanelVU, 5 + i * 10, 3, 8, 8);
    place(cmdSpeedDown, &PicTopPanel, 456, 58, 15, 8);
    place(cmdSpeedUp, &PicTopPanel, 456, 67, 15, 8);
    hint(cmdSpeedDown, "Slower");
    hint(cmdSpeedUp, "Faster");
    place(lblSpeed, &PicTopPanel, 474, 58, 32, 17);
    lblSpeed.setAlignment(Alignment::Center);
    lblSpeed.setDescription(QStringLiteral("Speed"));
    place(lblSpd, &PicTopPanel, 508, 61, 33, 12);
    place(lblBitrate, &PicTopPanel, 246, 88, 60, 14);
    lblBitrate.setDescription(QStringLiteral("Bit rate"));
    place(lblFrequency, &PicTopPanel, 310, 88, 60, 14);
    lblFrequency.setDescription(QStringLiteral("Frequency"));
    place(lblSongDuration, &PicTopPanel, 374, 88, 60, 14);
    lblSongDuration.setDescription(QStringLiteral("Song length"));
    place(imgMS, &PicTopPanel, 440, 90, 48, 11);
    place(lblTotTime, &PicTopPanel, 540, 88, 84, 14);
    lblTotTime.setDescription(QStringLiteral("Queue time"));
    place(cmdSaveTB, &PicTopPanel, 246, 113, 12, 9);
    hint(cmdSaveTB, " Save Treble / Bass - Current Song");
    place(cmdSaveTBDefaults, &PicTopPanel, 262, 113, 12, 9);
    hint(cmdSaveTBDefaults, " Set as Defaults ");
    place(chkUseInOut, &PicTopPanel, 280, 110, 16, 16);
    hint(chkUseInOut, "Use punch in/out");
    place(cmdSetPunchInOut, &PicTopPanel, 300, 111, 30, 15);
    hint(cmdSetPunchInOut, "Set punch in/out");
    place(lblPunchInOut, &PicTopPanel, 334, 113, 80, 11);
    // Punch in/out belongs to MP3 to WAV alone.
    for (Control* c : std::initializer_list<Control*>{&chkUseInOut, &cmdSetPunchInOut, &lblPunchInOut})
        c->setVisible(false);
    place(imgEncoder, &PicTopPanel, 440, 110, 159, 16);
    imgEncoder.setVisible(false);
    place(imgQuitEncoder, &PicTopPanel, 440, 128, 110, 15);
    imgQuitEncoder.setVisible(false);

    // The queue's commands and the drive list on the view bar.
    place(cmdAddAll, &PicView, 6, 7, 48, 15);
    hint(cmdAddAll, "Add all");
    place(cmdDeleteAll, &PicView, 58, 7, 56, 15);
    hint(cmdDeleteAll, "Delete all");
    place(cmdDelete, &PicView, 118, 7, 83, 15);
    hint(cmdDelete, "Delete song");
    place(lblSongQueue, &PicView, 210, 7, 200, 15);
    place(Drive1, &PicView, 430, 4, 198, 21);
    Drive1.setDescription(QStringLiteral("Drive"));

    // Volume, treble and bass knobs in the mixer column; their Tops follow the values.
    place(SLiderVolume, &PicMixer, 21, 18, 11, 18);
    place(SliderTreble, &PicMixer, 21, 100, 11, 18);
    place(SliderBass, &PicMixer, 21, 182, 11, 18);
    hint(SLiderVolume, "Volume");
    hint(SliderTreble, "Treble");
    hint(SliderBass, "Bass");

    // Directory list, the twelve titles and the queue.
    place(Dir1, &PicTitleBoxes, 6, 6, 170, 251);
    Dir1.setDescription(QStringLiteral("Folders"));
    for (int i = 0; i < Title.size(); ++i) {
        place(Title[i], &PicTitleBoxes, 182, 6 + i * 21, 170, 19);
        Title[i].setDescription(QStringLiteral("Title %1").arg(i + 1));
    }
    place(lstSongs, &PicTitleBoxes, 358, 6, 167, 251);
    lstSongs.setDescription(QStringLiteral("Song queue"));

    // Paging and the panel switches on the right.
    place(cmdUp, &PicRightPanel, 7, 6, 33, 37);
    place(cmdDown, &PicRightPanel, 7, 46, 33, 37);
    place(imgDataBase, &PicRightPanel, 6, 92, 36, 37);
    place(imgViewInfo, &PicRightPanel, 2, 138, 22, 37);
    place(imgEditInfo, &PicRightPanel, 24, 138, 22, 37);
    hint(cmdUp, "Previous titles");
    hint(cmdDown, "Next titles");
    hint(imgDataBase, "Database");
    hint(imgViewInfo, "View info");
    hint(imgEditInfo, "Edit info");

    // Panels that open over the lower half.
    place(PanelDatabase, nullptr, 0, 202, 634, 263);
    PanelDatabase.setVisible(false);
    place(PicDatabase, &PanelDatabase, 0, 0, 634, 263);
    layOutLibrary(*this);
    place(InfoPanel, nullptr, 0, 202, 634, 263);
    InfoPanel.setVisible(false);
    // The viewer's commands, or the editor's, along the top of the panel; the page under them.
    place(PanelViewButtons, &InfoPanel, 0, 0, 634, 24);
    place(PanelControls, &InfoPanel, 0, 0, 634, 24);
    PanelViewButtons.setVisible(false);
    PanelControls.setVisible(false);
    place(RT, &InfoPanel, 6, 24, 622, 233);
    RT.setDescription(QStringLiteral("Info page"));
    RT.setBackColor(DefaultPageColour);
    place(cmdInfoLeft, &PanelViewButtons, 6, 3, 10, 18);
    place(cmdInfoRight, &PanelViewButtons, 18, 3, 10, 18);
    place(lblInfoPageNumber, &PanelViewButtons, 32, 5, 40, 15);
    lblInfoPageNumber.setDescription(QStringLiteral("Page"));
    place(btnGigGuide, &PanelViewButtons, 76, 4, 78, 17);
    place(btnContact, &PanelViewButtons, 158, 4, 78, 17);
    // Shown by a folder that has such a page.
    btnGigGuide.setVisible(false);
    btnContact.setVisible(false);
    place(cmdCurrentSongInfo, &PanelViewButtons, 240, 4, 78, 17);
    place(cmdPrint, &PanelViewButtons, 322, 4, 41, 17);
    place(cmdCloseInfoViewer, &PanelViewButtons, 550, 4, 78, 17);
    place(Toolbar, &PanelControls, 4, 1, 322, 22);
    place(Label13, &PanelControls, 330, 5, 30, 15);
    Label13.setCaption(QStringLiteral("Font"));
    place(CboFontName, &PanelControls, 362, 2, 140, 20);
    place(CboFontSize, &PanelControls, 506, 2, 44, 20);
    place(cmdQuitEditor, &PanelControls, 554, 2, 76, 20);
    cmdQuitEditor.setCaption(QStringLiteral("Quit Editor"));
    hint(cmdInfoLeft, "Previous page");
    hint(cmdInfoRight, "Next page");
    hint(btnGigGuide, "Gig guide");
    hint(btnContact, "Contact");
    hint(cmdCurrentSongInfo, "Current song's page");
    hint(cmdPrint, "Print");
    hint(cmdCloseInfoViewer, "Close info");
    place(PanelAlarm, nullptr, 200, 60, 240, 200);
    PanelAlarm.setVisible(false);
    place(lblAlarmHeading, &PanelAlarm, 8, 6, 224, 18);
    lblAlarmHeading.setCaption(QStringLiteral("Set Alarm Time"));
    place(lblAlarmCaption, &PanelAlarm, 8, 28, 80, 16);
    lblAlarmCaption.setCaption(QStringLiteral("Alarm Time "));
    place(lblAlarmTime, &PanelAlarm, 90, 28, 60, 16);
    place(lblHour, &PanelAlarm, 8, 48, 60, 16);
    lblHour.setCaption(QStringLiteral("Hour"));
    place(lblMinute, &PanelAlarm, 80, 48, 60, 16);
    lblMinute.setCaption(QStringLiteral("Minute"));
    place(lstHour, &PanelAlarm, 8, 66, 60, 96);
    place(lstMinute, &PanelAlarm, 80, 66, 60, 96);
    for (int h = 0; h <= 24; ++h) lstHour.AddItem(QStringLiteral("%1").arg(h, 2, 10, QLatin1Char('0')));
    for (int m = 0; m <= 59; ++m) lstMinute.AddItem(QStringLiteral("%1").arg(m, 2, 10, QLatin1Char('0')));
    place(cmdSetTimeOK, &PanelAlarm, 160, 100, 70, 24);
    cmdSetTimeOK.setCaption(QStringLiteral("OK"));
    place(cmdSetTimeCancel, &PanelAlarm, 160, 134, 70, 24);
    cmdSetTimeCancel.setCaption(QStringLiteral("Cancel"));

    // Source pictures and helper lists that are never seen.
    for (Control* hidden : std::initializer_list<Control*>{
             &imgMpeg3, &imgVUGreen, &imgVUAmber, &imgVURed, &imgVUPurple, &imgRedBall, &imgGreenBall,
             &imgAutoUpdate, &imgCancelSearch, &Indent, &Button, &ButtonBlue, &List1, &ListGen, &Fillist})
        hidden->setVisible(false);
    List1.setSorted(true);
    for (int size : {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 72})
        CboFontSize.AddItem(QString::number(size));
    Fillist.setPattern(QStringLiteral("*.MP3"));
}

}  // namespace sonarium
