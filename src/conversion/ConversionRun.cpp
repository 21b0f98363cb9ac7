// A conversion run: Play starts the job of the selected row, and each finish notification
// either starts the next row's job from inside itself or ends the run. One job at a time: a
// track is extracted, then encoded, then the next track is extracted.
#include <QFile>

#include "controls/FileNames.h"
#include "shell/ButtonPictures.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

using namespace buttons;

namespace {

// An extraction that ends sooner than this, short of its track, is taken for a failed read; six
// in a row stop the run.
constexpr double MinExtractSeconds = 6.0;
constexpr int MaxReadRetries = 6;

}  // namespace

double Form1::ClockSeconds() const { return double(C.loop.now()) / 1000.0; }

QString Form1::TrackFileName(const QString& extension) const {
    return CurrentDir + txtTrackTitle.Text() +
           QStringLiteral("%1").arg(CurrentTrack, 2, 10, QLatin1Char('0')) + extension;
}

void Form1::ShowLamp(bool working) {
    tryStep([&] { Ball.setPicture(working ? imgGreenBall.picture() : imgRedBall.picture()); });
}

void Form1::ConversionPlay() {
    if (mnuWavToMp3.Checked())
        WavToMp3Play();
    else
        CdPlay();
}

void Form1::WavToMp3Play() {
    if (lstSongs.ListIndex() == -1) tryStep([&] { lstSongs.setListIndex(0); });
    WriteEncoderSettings();
    QString row;
    tryStep([&] { row = lstSongs.List(lstSongs.ListIndex()); });
    const QString target = CurrentDir + row + QStringLiteral(".MP3");
    if (fileExists(target)) {
        if (C.dialogs.msgBox(QStringLiteral("File already exists - overwrite?"), MsgButtons::YesNo,
                             MsgIcon::Exclamation, QStringLiteral("WAV to MP3")) == MsgResult::No)
            return;
        tryStep([&] { C.mp3.Close(); });
        QFile::remove(resolveFileName(target));
    }
    if (mnuInternal.Checked()) {
        if (!StartInternalEncoder(CurrentDir + row + QStringLiteral(".WAV"), target)) return;
    } else {
        QString source = row + QStringLiteral(".WAV");
        EncodeBlade(CurrentDir, source, QString());
    }
    EncodingShown();
}

void Form1::CdPlay() {
    tryStep([&] { C.cd.SetOwnerName(QStringLiteral("CD Player")); });
    if (lstSongs.ListCount() == 0) {
        C.dialogs.msgBox(QStringLiteral("No tracks in song queue"), MsgButtons::OK, MsgIcon::Exclamation,
                         QStringLiteral("Play"));
        return;
    }
    ShowLamp(true);
    if (lstSongs.ListIndex() == -1) tryStep([&] { lstSongs.setListIndex(0); });
    // The track number stands at characters 8 and 9 of the row; the track's size is asked
    // and, as ever, not used.
    tryStep([&] { CurrentTrack = std::int16_t(lstSongs.List(lstSongs.ListIndex()).mid(7, 2).toInt()); });
    tryStep([&] { C.cd.TrackSize(CurrentTrack); });
    tryStep([&] { Shape1.setWidth(0); });
    tryStep([&] {
        lblTrackProgress.setCaption(QStringLiteral("Extracting track ") + QString::number(CurrentTrack));
    });
    const QString target = mnuCDtoMP3.Checked() ? CurrentDir + QStringLiteral("Temp.WAV")
                                                : TrackFileName(QStringLiteral(".WAV"));
    std::int16_t code = 1;
    tryStep([&] { code = C.cd.ExtractTrack(CurrentTrack, target); });
    if (code == 0) {
        ExtractRunning = true;
        ExtractStart = ClockSeconds();
    } else {
        const QString text =
            code == 712 ? QStringLiteral("Insufficient disk space ") : QStringLiteral("Read Error ");
        C.dialogs.msgBox(text + QString::number(code), MsgButtons::OK, MsgIcon::Critical,
                         QStringLiteral("Read"));
    }
    ShowButtonImage(BtnPlay, PlayAtRest);
}

bool Form1::StartInternalEncoder(const QString& wav, const QString& mp3) {
    std::int16_t opened = 1;
    tryStep([&] { opened = C.encoder.OpenFiles(wav, mp3); });
    if (opened != 0) {
        C.dialogs.msgBox(QStringLiteral("Encoder open error"), MsgButtons::OK, MsgIcon::None, QString());
        return false;
    }
    tryStep([&] { EncodeStep = std::int32_t(roundHalfEven(C.encoder.EncodeTotal() / 100.0)); });
    tryStep([&] { C.encoder.StartEncoding(); });
    EncodeRunning = true;
    return true;
}

void Form1::EncodingShown() {
    ShowLamp(true);
    tryStep([&] { Shape1.setWidth(0); });
    tryStep([&] { lblTrackProgress.setCaption(QStringLiteral("Encoding to MP3")); });
}

bool Form1::SelectNextRow() {
    const int row = lstSongs.ListIndex();
    if (StopRequested || row >= lstSongs.ListCount() - 1) return false;
    tryStep([&] { lstSongs.setListIndex(row + 1); });
    BtnPlay_MouseUp(1, 0, 0, 0);
    return true;
}

void Form1::ACD_ExtractProgress(std::int32_t perMille) {
    tryStep([&] { Shape1.setWidth(int(roundHalfEven(double(BarWidth) / 1000 * perMille))); });
}

void Form1::ACD_ExtractFinished() {
    ExtractRunning = false;
    ShowLamp(false);
    // The drive gives no success flag, so an extraction that ended this soon is taken for a
    // failed read, unless the reader says it wrote the whole track: a CD image, or a fast drive
    // on a short track, reads a track in well under six seconds.
    bool complete = false;
    tryStep([&] { complete = C.cd.ExtractComplete(); });
    if (ClockSeconds() - ExtractStart < MinExtractSeconds && !StopRequested && !complete) {
        // Too soon: the same row again, and after the sixth such finish the run is stopped,
        // whose own finish then takes the stop branch below.
        ++ReadRetries;
        BtnPlay_MouseUp(1, 0, 0, 0);
        if (ReadRetries >= MaxReadRetries) {
            for (int i = 0; i < 2; ++i) {
                BtnStop_MouseDown(1, 0, 0, 0);
                BtnStop_MouseUp(1, 0, 0, 0);
            }
            ReadRetries = 0;
            C.dialogs.msgBox(QStringLiteral("Error Reading Track"), MsgButtons::OK, MsgIcon::Exclamation,
                             QStringLiteral("Extract"));
        }
        return;
    }
    ReadRetries = 0;
    if (StopRequested) {
        StopRequested = false;
        // Also after the mode was left meanwhile: the temporary file is no one's but ours.
        if (!mnuCdToWav.Checked()) DeleteTemporaryWav();
        return;
    }
    if (!mnuCDtoMP3.Checked()) {
        SelectNextRow();
        return;
    }
    WriteEncoderSettings();
    if (mnuInternal.Checked()) {
        if (!StartInternalEncoder(CurrentDir + QStringLiteral("Temp.WAV"),
                                  TrackFileName(QStringLiteral(".MP3"))))
            return;
    } else {
        QString source = QStringLiteral("Temp.WAV");
        EncodeBlade(CurrentDir, source, TrackFileName(QStringLiteral(".MP3")).mid(CurrentDir.size()));
    }
    EncodingShown();
}

void Form1::Mp3Enc_EncodeProgress(std::int32_t done) {
    // With a total under 50 the step is 0 and the bar stands still; the job still finishes.
    if (EncodeStep == 0) return;
    const double percent = roundHalfEven(double(done) / EncodeStep);
    tryStep([&] { Shape1.setWidth(int(roundHalfEven(percent * (double(BarWidth) / 100)))); });
}

void Form1::Mp3Enc_EncodeFinished() {
    EncodeRunning = false;
    ShowLamp(false);
    if (!mnuCDtoMP3.Enabled() && !mnuWavToMp3.Checked()) return;
    if (SelectNextRow()) return;
    EndOfEncodingRun();
}

void Form1::WriteEncoderSettings() {
    tryStep([&] { C.encoder.setEncoderBitRate(leadingNumber(cboBitRate.Text())); });
    tryStep([&] { C.encoder.setEncoderSampleRate(leadingNumber(cboSampleRate.Text()) * 1000); });
}

void Form1::ReleaseEncoderFiles() {
    tryStep([&] { C.encoder.OpenFiles(QStringLiteral("rem.wav"), QStringLiteral("rem.old")); });
}

// Found in any case of its name, as the program spells it two ways.
void Form1::DeleteTemporaryWav() {
    if (fileExists(CurrentDir + QStringLiteral("Temp.wav")))
        QFile::remove(resolveFileName(CurrentDir + QStringLiteral("Temp.WAV")));
}

void Form1::EndOfEncodingRun() {
    // The call the encoder takes as "no job"; it always comes before the temporary file goes.
    ReleaseEncoderFiles();
    DeleteTemporaryWav();
    C.dialogs.msgBox(QStringLiteral("Encoding complete...."), MsgButtons::OK, MsgIcon::Information,
                     QStringLiteral("Ecoding"));
}

bool Form1::Mp3ToWavTargetOk() {
    QString target;
    tryStep(
        [&] { target = SongPathOf(M.CurrentSong) + lstSongs.List(M.CurrentSong) + QStringLiteral(".WAV"); });
    if (target.isEmpty() || !fileExists(target)) return true;
    if (C.dialogs.msgBox(QStringLiteral("WAV file already exists - overwrite?"), MsgButtons::YesNo,
                         MsgIcon::Exclamation, QStringLiteral("MP3 to WAV")) == MsgResult::No)
        return false;
    QFile::remove(resolveFileName(target));
    return true;
}

}  // namespace sonarium
