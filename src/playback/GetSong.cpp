// Loading a queue row as the song: its tag, the player, length and frame rate, photo, info
// pages, the mini player's text, its tone and its punch section. Nothing starts playing here.
#include "controls/Errors.h"
#include "controls/SongNames.h"
#include "playback/SongTag.h"
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
QString twoDigits(std::int32_t n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); }
}  // namespace

const QString& Form1::SongPathOf(int row) const {
    if (row < 0 || row >= SongPathSize)
        throw RuntimeError(RuntimeError::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
    return M.SongPath[std::size_t(row)];
}

// Every statement that fails is skipped and the next one runs; the names are built inside each
// statement, so a row without a directory skips exactly the steps that need it.
bool Form1::GetSong(std::int16_t& index) {
    bool result = false;
    const int row = index;
    auto base = [&] { return songBase(SongPathOf(row), lstSongs.List(row)); };
    auto mp3Name = [&] { return base() + QStringLiteral(".MP3"); };

    if (mnuCDtoMP3.Checked() || mnuWavToMp3.Checked() || lstSongs.ListCount() == 0) return false;

    tryStep([&] { C.mp3.Close(); });
    for (TextBox* box : {&txtTitle, &txtArtist, &txtAlbum, &txtYear, &txtComment})
        tryStep([&] { box->setText(QString()); });

    SongTagTail tail;
    tryStep([&] { tail = readSongTagTail(mp3Name()); });
    const int p = int(tail.buffer.indexOf(QLatin1String("TAG"))) + 1;
    if (p > 0) {
        QString text;
        tryStep([&] { text = songTagText(tail.buffer, p); });
        // A genre that is no row of the list leaves the selection as it was.
        tryStep([&] { cboGenre.setListIndex(tail.genre.value_or(0)); });
        const SongTagFields fields = songTagFields(text);
        tryStep([&] { txtTitle.setText(fields.title); });
        tryStep([&] { txtArtist.setText(fields.artist); });
        tryStep([&] { txtAlbum.setText(fields.album); });
        tryStep([&] { txtYear.setText(fields.year); });
        tryStep([&] { txtComment.setText(fields.comment); });
    }

    std::int16_t rc = 0;
    if (mnuMP3ToWav.Checked()) {
        tryStep([&] { rc = C.mp3.Open(mp3Name(), base() + QStringLiteral(".WAV")); });
    } else {
        tryStep([&] { rc = C.mp3.Open(mp3Name(), QString()); });
        tryStep([&] { M.SongFile = mp3Name(); });
    }
    // Until the file opens or the user gives up; a retry always plays, whatever the mode.
    while (rc != 0) {
        QString question;
        tryStep(
            [&] { question = QStringLiteral("Open failed on ") + base() + QStringLiteral(".MP3 Retry?"); });
        if (C.dialogs.msgBox(question, MsgButtons::YesNo, MsgIcon::None, QStringLiteral("Open")) !=
            MsgResult::Yes) {
            Fading = false;
            return false;
        }
        tryStep([&] { C.mp3.Close(); });
        tryStep([&] { rc = C.mp3.Open(mp3Name(), QString()); });
    }

    tryStep([&] { SongLength = toInt32(C.mp3.Length()); });
    tryStep([&] { TotalFrames = C.mp3.FrameCount(); });
    tryStep([&] { SongLengthText = twoDigits(SongLength / 60) + u':' + twoDigits(SongLength % 60); });
    tryStep([&] { lblTime.setCaption(SongLengthText); });
    tryStep([&] { MiniShowSongLength(); });
    // A song under half a second has length 0: the division fails and the rate of the song
    // before stays.
    tryStep([&] {
        if (SongLength == 0)
            throw RuntimeError(RuntimeError::DivisionByZero, QStringLiteral("Division by zero"));
        FramesPerSecond = toInt32(double(C.mp3.FrameCount()) / SongLength);
    });
    tryStep([&] { C.mp3.setNotifyInterval(M.KaraokePlaying ? 1 : 32); });
    tryStep([&] { C.mp3.SetSpeed(M.SongSpeed); });
    tryStep([&] { lblBitrate.setCaption(QString::number(C.mp3.BitRate())); });
    tryStep([&] { lblFrequency.setCaption(QString::number(C.mp3.Frequency())); });
    tryStep([&] { lblSongDuration.setCaption(SongLengthText); });

    tryStep([&] { Photo.setVisible(false); });
    tryStep([&] { Photo.setStretch(false); });
    tryStep([&] { Photo.setPicture(imgMpeg3.picture()); });
    TryPhotos(Photo, row);
    SizePhoto();
    tryStep([&] { frmMiniPlayer.Photo.setPicture(Picture()); });
    TryPhotos(frmMiniPlayer.Photo, row);

    if (!mnuTimerOn.Checked()) {
        tryStep([&] { LoadRTF(folderBase(SongPathOf(row)) + QStringLiteral(".RTF")); });
        tryStep([&] { LoadRTF(base() + QStringLiteral(".RTF")); });
    }
    result = true;

    tryStep([&] {
        const QString first = txtTitle.Text().isEmpty() ? lstSongs.List(row) : txtTitle.Text();
        QString text = first + QStringLiteral(" - ") + txtAlbum.Text() + QStringLiteral(" - ") +
                       txtArtist.Text() + QStringLiteral("   ");
        text += text;
        text += text;
        M.MiniTitleText = text;
    });
    tryStep([&] { frmMiniPlayer.Picture1.Cls(); });
    tryStep([&] { frmMiniPlayer.Picture1.Print(M.MiniTitleText); });
    tryStep([&] { LoadTB(); });
    // A row added since the punch dialog last sized the marks has none: it counts as off.
    const bool punched = std::size_t(row) < M.PunchActive.size() && M.PunchActive[std::size_t(row)] != 0;
    tryStep([&] { chkUseInOut.setValue(punched ? 1 : 0); });
    return result;
}

}  // namespace sonarium
