// Loading a queue row as the song: its tag, the player, length and frame rate, photo, info
// pages, the mini player's text, its tone and its punch section. Nothing starts playing here.
#include "controls/Errors.h"
#include "controls/SongNames.h"
#include "playback/SongTag.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

namespace {
QString twoDigits(std::int32_t n) {
    return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
}
}  // namespace

const QString& Form1::SongPathOf(int row) const {
    if (row < 0 || row >= SongPathSize)
        throw RuntimeError(RuntimeError::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
    return M.SongPath[std::size_t(row)];
}

// Every statement that fails is skipped and the next one runs; the names are built inside each
// statement, so a row without a directory skips exactly the steps that need it.
bool Form1::GetSong(std::int16_t& index) {
    auto step = [](const std::function<void()>& s) { return tryStep(s); };
    bool result = false;
    const int row = index;
    auto base = [&] { return songBase(SongPathOf(row), lstSongs.List(row)); };
    auto mp3Name = [&] { return base() + QStringLiteral(".MP3"); };

    if (mnuCDtoMP3.Checked() || mnuWavToMp3.Checked() || lstSongs.ListCount() == 0) return false;

    step([&] { C.mp3.Close(); });
    for (TextBox* box : {&txtTitle, &txtArtist, &txtAlbum, &txtYear, &txtComment})
        step([&] { box->setText(QString()); });

    SongTagTail tail;
    step([&] { tail = readSongTagTail(mp3Name()); });
    const int p = int(tail.buffer.indexOf(QLatin1String("TAG"))) + 1;
    if (p > 0) {
        QString text;
        step([&] { text = songTagText(tail.buffer, p); });
        // A genre that is no row of the list leaves the selection as it was.
        step([&] { cboGenre.setListIndex(tail.genre.value_or(0)); });
        const SongTagFields fields = songTagFields(text);
        step([&] { txtTitle.setText(fields.title); });
        step([&] { txtArtist.setText(fields.artist); });
        step([&] { txtAlbum.setText(fields.album); });
        step([&] { txtYear.setText(fields.year); });
        step([&] { txtComment.setText(fields.comment); });
    }

    std::int16_t rc = 0;
    if (mnuMP3ToWav.Checked()) {
        step([&] { rc = C.mp3.Open(mp3Name(), base() + QStringLiteral(".WAV")); });
    } else {
        step([&] { rc = C.mp3.Open(mp3Name(), QString()); });
        step([&] { M.SongFile = mp3Name(); });
    }
    // Until the file opens or the user gives up; a retry always plays, whatever the mode.
    while (rc != 0) {
        QString question;
        step([&] { question = QStringLiteral("Open failed on ") + base() + QStringLiteral(".MP3 Retry?"); });
        if (C.dialogs.msgBox(question, MsgButtons::YesNo, MsgIcon::None, QStringLiteral("Open")) !=
            MsgResult::Yes) {
            Fading = false;
            return false;
        }
        step([&] { C.mp3.Close(); });
        step([&] { rc = C.mp3.Open(mp3Name(), QString()); });
    }

    step([&] { SongLength = toInt32(C.mp3.Length()); });
    step([&] { TotalFrames = C.mp3.FrameCount(); });
    step([&] { SongLengthText = twoDigits(SongLength / 60) + u':' + twoDigits(SongLength % 60); });
    step([&] { lblTime.setCaption(SongLengthText); });
    step([&] { MiniShowSongLength(); });
    // A song under half a second has length 0: the division fails and the rate of the song
    // before stays.
    step([&] {
        if (SongLength == 0)
            throw RuntimeError(RuntimeError::DivisionByZero, QStringLiteral("Division by zero"));
        FramesPerSecond = toInt32(double(C.mp3.FrameCount()) / SongLength);
    });
    step([&] { C.mp3.setNotifyInterval(M.KaraokePlaying ? 1 : 32); });
    step([&] { C.mp3.SetSpeed(M.SongSpeed); });
    step([&] { lblBitrate.setCaption(QString::number(C.mp3.BitRate())); });
    step([&] { lblFrequency.setCaption(QString::number(C.mp3.Frequency())); });
    step([&] { lblSongDuration.setCaption(SongLengthText); });

    step([&] { Photo.setVisible(false); });
    step([&] { Photo.setStretch(false); });
    step([&] { Photo.setPicture(imgMpeg3.picture()); });
    TryPhotos(Photo, row);
    SizePhoto();
    step([&] { frmMiniPlayer.Photo.setPicture(Picture()); });
    TryPhotos(frmMiniPlayer.Photo, row);

    if (!mnuTimerOn.Checked()) {
        step([&] { LoadRTF(folderBase(SongPathOf(row)) + QStringLiteral(".RTF")); });
        step([&] { LoadRTF(base() + QStringLiteral(".RTF")); });
    }
    result = true;

    step([&] {
        const QString first = txtTitle.Text().isEmpty() ? lstSongs.List(row) : txtTitle.Text();
        QString text = first + QStringLiteral(" - ") + txtAlbum.Text() + QStringLiteral(" - ") +
                       txtArtist.Text() + QStringLiteral("   ");
        text += text;
        text += text;
        M.MiniTitleText = text;
    });
    step([&] { frmMiniPlayer.Picture1.Cls(); });
    step([&] { frmMiniPlayer.Picture1.Print(M.MiniTitleText); });
    step([&] { LoadTB(); });
    step([&] { chkUseInOut.setValue(M.PunchActive.at(std::size_t(row)) != 0 ? 1 : 0); });
    return result;
}

}  // namespace sonarium
