// Form1's load in its fixed order, its second half Form1Init, and the start-up trace.
#include <QDir>
#include <QFile>

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "shell/AppFiles.h"
#include "shell/Form1.h"
#include "shell/FrmGeneral.h"
#include "shell/Form2.h"
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
        QFile f(QDir::current().filePath(QStringLiteral("Debug.dat")));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
            throw RuntimeError(RuntimeError::PathFileAccess, QStringLiteral("Path/File access error"));
    });
}

void Form1::trace(const char* word, int step) {
    if (!traceIsOpen_) return;
    tryStep([&] {
        QFile f(QDir::current().filePath(QStringLiteral("Debug.dat")));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Append))
            throw RuntimeError(RuntimeError::PathFileAccess, QStringLiteral("Path/File access error"));
        // The number as text keeps its leading blank: "Load 1".
        f.write(QStringLiteral("%1 %2\r\n").arg(QLatin1String(word)).arg(step).toUtf8());
    });
}

void Form1::traceClose() { traceIsOpen_ = false; }

// Every statement that fails is skipped and the next one runs.
void Form1::Form_Load() {
    auto step = [](const std::function<void()>& s) { tryStep(s); };

    traceOpen();
    step([&] {
        M.MiniSliderTop = 690;
        M.MiniSliderBottom = 1020;
        M.MiniSliderStep = (1020.0 - 690.0) / 100.0;
    });
    trace("Load", 1);
    step([&] { OpenMixerAtLoad(); });
    step([&] { chkLoop.setPicture(imgRedBall.picture()); });
    trace("Load", 2);
    step([&] { OpenPeakMeter(); });
    trace("Load", 11);
    step([&] { InitGenre(); });
    step([&] { M.AppDir = C.startDir.isEmpty() ? QDir::currentPath() : C.startDir; });
    step([&] { M.SkinPath = M.AppDir; });
    step([&] { M.SongSpeed = 100; });
    step([&] {
        QString db = joinPath(M.AppDir, QStringLiteral("SonariumData.mdb"));
        if (!fileExists(db)) MakeDatabase(db);
    });
    step([&] { PanelSongInfo.setVisible(false); });
    step([&] { lstSongSets.setVisible(false); });
    step([&] { cboSampleRate.setListIndex(1); });
    step([&] { cboBitRate.setListIndex(8); });
    step([&] { InitCD(); });
    step([&] { EncoderBitRate = 128000; C.encoder.setEncoderBitRate(128000); });
    step([&] { EncoderSampleRate = 44100; C.encoder.setEncoderSampleRate(44100); });
    step([&] { M.Volume = 35; });
    step([&] { M.Bass = 50; });
    step([&] { M.Treble = 50; });
    step([&] { LoadMixer(); });
    step([&] { SavedVolume = M.Volume; });
    step([&] { PlaceSliders(); });
    trace("Load", 12);
    step([&] { SendToneToMixer(); });
    step([&] { M.DefaultTreble = M.Treble; });
    step([&] { M.DefaultBass = M.Bass; });
    step([&] { Drive1_Change(); });
    step([&] { BarWidth = 3165; });
    trace("Load", 13);
    step([&] { SelectDrive(1); });
    trace("Load", 14);
    step([&] {
        for (const QString& font : C.desktop.screenFonts()) CboFontName.AddItem(font);
    });
    step([&] { CboFontName.setListIndex(0); });
    step([&] { CboFontSize.setListIndex(0); });
    step([&] { if (form2.Visible()) form2.Unload(); });
    step([&] { mnuBlade.setEnabled(fileExists(joinPath(M.AppDir, QStringLiteral("Bladeenc")))); });
    step([&] {
        // Without a Config.dat the Blade entry stays chosen even when disabled: first starts
        // show it that way on purpose.
        if (mnuBlade.Enabled())
            mnuBlade.setChecked(true);
        else
            mnuInternal.setChecked(true);
        M.EncoderChoice = 1;
    });
    trace("Load", 15);
    step([&] { GetTitles(); });
    step([&] { LoadConfig(); });
    step([&] { LoadSkin(); });
    step([&] { LoadSkinMini(); });
    step([&] { if (PhotoWidth == 0) PhotoWidth = FullPhotoWidth; });
    step([&] {
        if (M.VUMeterOn == 1) {
            imgSLiderSong.setVisible(false);
            imgButtonSong.setVisible(false);
            PanelVU.setVisible(true);
            mnuVU.setChecked(true);
        }
    });
    step([&] { mnuBladeInvisible.setChecked(true); });
    step([&] { Photo.setWidth(PhotoWidth); });
    step([&] { Photo.setLeft((FullPhotoWidth - Photo.Width()) / 2); });
    step([&] {
        if (PhotoWidth == SquarePhotoWidth) {
            Image8.setVisible(true);
            Image9.setVisible(true);
        }
    });
    trace("Load", 16);
    traceClose();
    if (M.MiniMode != 0) {
        step([&] { CheckForSong(); });
        step([&] { frmMiniPlayer.Show(C.loop); });
    } else {
        step([&] { Form1Init(); });
    }
}

void Form1::Form1Init() {
    auto step = [](const std::function<void()>& s) { tryStep(s); };
    traceOpen();
    trace("Init", 1);
    step([&] {
        const Picture& mini = frmMiniPlayer.Photo.picture();
        Photo.setPicture(mini.isNull() ? imgMpeg3.picture() : mini);
    });
    trace("Init", 2);
    trace("Init", 3);
    step([&] {
        for (auto& lamp : imgVU) lamp->setPicture(imgVUPurple.picture());
    });
    trace("Init", 4);
    step([&] { imgButon_Click(1); });
    trace("Init", 5);
    step([&] { PanelPhoto.setVisible(true); });
    trace("Init", 6);
    step([&] { lblSpeed.setCaption(QString::number(200 - M.SongSpeed)); });
    step([&] { setVisible(true); });
    step([&] { Refresh(); });
    trace("Init", 7);
    step([&] { CheckForSong(); });
    trace("Init", 8);
    traceClose();
}

}  // namespace sonarium
