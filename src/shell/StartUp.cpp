// Form1's load in its fixed order, its second half Form1Init, and the start-up trace.
#include <QFile>

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "shell/AppFiles.h"
#include "shell/Form1.h"
#include "shell/Form2.h"
#include "shell/FrmGeneral.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

namespace {
constexpr int FullPhotoWidth = 3465;
constexpr int SquarePhotoWidth = 1920;
}  // namespace

// Debug.dat lies in the directory that is current at the time, and each line is written as
// it comes, so a start that hangs leaves the last step it reached as the last line.
void Form1::traceOpen() {
    traceIsOpen_ = tryStep([&] {
        QFile f(currentDirectory.filePath(QStringLiteral("Debug.dat")));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
            throw RuntimeError(RuntimeError::PathFileAccess, QStringLiteral("Path/File access error"));
    });
}

void Form1::trace(const char* word, int step) {
    if (!traceIsOpen_) return;
    tryStep([&] {
        QFile f(currentDirectory.filePath(QStringLiteral("Debug.dat")));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Append))
            throw RuntimeError(RuntimeError::PathFileAccess, QStringLiteral("Path/File access error"));
        // The number as text keeps its leading blank: "Load 1".
        f.write(QStringLiteral("%1 %2\r\n").arg(QLatin1String(word)).arg(step).toUtf8());
    });
}

void Form1::traceClose() { traceIsOpen_ = false; }

// Every statement that fails is skipped and the next one runs.
void Form1::Form_Load() {
    traceOpen();
    tryStep([&] {
        M.MiniSliderTop = 690;
        M.MiniSliderBottom = 1020;
        M.MiniSliderStep = (1020.0 - 690.0) / 100.0;
    });
    trace("Load", 1);
    tryStep([&] { OpenMixerAtLoad(); });
    tryStep([&] { chkLoop.setPicture(imgRedBall.picture()); });
    trace("Load", 2);
    tryStep([&] { OpenPeakMeter(); });
    trace("Load", 11);
    tryStep([&] { InitGenre(); });
    tryStep([&] { M.AppDir = currentDirectory.path(); });
    tryStep([&] { M.SkinPath = M.AppDir; });
    tryStep([&] { M.SongSpeed = 100; });
    tryStep([&] {
        QString db = joinPath(M.AppDir, QStringLiteral("SonariumData.mdb"));
        if (!fileExists(db)) MakeDatabase(db);
    });
    tryStep([&] { PanelSongInfo.setVisible(false); });
    tryStep([&] { lstSongSets.setVisible(false); });
    tryStep([&] { cboSampleRate.setListIndex(1); });
    tryStep([&] { cboBitRate.setListIndex(8); });
    tryStep([&] { InitCD(); });
    tryStep([&] { C.encoder.setEncoderBitRate(128000); });
    tryStep([&] { C.encoder.setEncoderSampleRate(44100); });
    tryStep([&] { M.Volume = 35; });
    tryStep([&] { M.Bass = 50; });
    tryStep([&] { M.Treble = 50; });
    tryStep([&] { LoadMixer(); });
    tryStep([&] { SavedVolume = M.Volume; });
    tryStep([&] { PlaceSliders(); });
    trace("Load", 12);
    tryStep([&] { SendToneToMixer(); });
    tryStep([&] { M.DefaultTreble = M.Treble; });
    tryStep([&] { M.DefaultBass = M.Bass; });
    tryStep([&] { Drive1_Change(); });
    tryStep([&] { BarWidth = 3165; });
    trace("Load", 13);
    tryStep([&] { SelectDrive(1); });
    trace("Load", 14);
    tryStep([&] {
        for (const QString& font : C.desktop.screenFonts()) CboFontName.AddItem(font);
    });
    tryStep([&] { CboFontName.setListIndex(0); });
    tryStep([&] { CboFontSize.setListIndex(0); });
    tryStep([&] {
        if (form2.Visible()) form2.Unload();
    });
    tryStep([&] { mnuBlade.setEnabled(fileExists(joinPath(M.AppDir, QStringLiteral("Bladeenc")))); });
    tryStep([&] {
        // Without a Config.dat the Blade entry stays chosen even when disabled: first starts
        // show it that way on purpose.
        if (mnuBlade.Enabled())
            mnuBlade.setChecked(true);
        else
            mnuInternal.setChecked(true);
        M.EncoderChoice = 1;
    });
    trace("Load", 15);
    tryStep([&] { GetTitles(); });
    tryStep([&] { LoadConfig(); });
    tryStep([&] { LoadSkin(); });
    tryStep([&] { LoadSkinMini(); });
    tryStep([&] {
        if (PhotoWidth == 0) PhotoWidth = FullPhotoWidth;
    });
    tryStep([&] {
        if (M.VUMeterOn == 1) {
            imgSLiderSong.setVisible(false);
            imgButtonSong.setVisible(false);
            PanelVU.setVisible(true);
            mnuVU.setChecked(true);
        }
    });
    tryStep([&] { mnuBladeInvisible.setChecked(true); });
    tryStep([&] { Photo.setWidth(PhotoWidth); });
    tryStep([&] { Photo.setLeft((FullPhotoWidth - Photo.Width()) / 2); });
    tryStep([&] {
        if (PhotoWidth == SquarePhotoWidth) {
            Image8.setVisible(true);
            Image9.setVisible(true);
        }
    });
    trace("Load", 16);
    traceClose();
    if (M.MiniMode != 0) {
        tryStep([&] { CheckForSong(); });
        tryStep([&] { frmMiniPlayer.Show(C.loop); });
    } else {
        tryStep([&] { Form1Init(); });
    }
}

void Form1::Form1Init() {
    traceOpen();
    trace("Init", 1);
    tryStep([&] {
        const Picture& mini = frmMiniPlayer.Photo.picture();
        Photo.setPicture(mini.isNull() ? imgMpeg3.picture() : mini);
    });
    trace("Init", 2);
    trace("Init", 3);
    tryStep([&] {
        for (auto& lamp : imgVU) lamp->setPicture(imgVUPurple.picture());
    });
    trace("Init", 4);
    tryStep([&] { imgButon_Click(1); });
    trace("Init", 5);
    tryStep([&] { PanelPhoto.setVisible(true); });
    trace("Init", 6);
    tryStep([&] { lblSpeed.setCaption(QString::number(200 - M.SongSpeed)); });
    tryStep([&] { setVisible(true); });
    tryStep([&] { Refresh(); });
    trace("Init", 7);
    tryStep([&] { CheckForSong(); });
    trace("Init", 8);
    traceClose();
}

}  // namespace sonarium
