// Karaoke: a song's page as its lyric sheet. While the song plays once the user clicks each
// word in time, and the frame of the next position report is noted with the word's place; the
// pairs go beside the song in its .KAK file, and from then on the viewer lights each stretch of
// words in red 30 frames before its mark.
#include <QFile>
#include <QSaveFile>

#include "controls/FileNames.h"
#include "info/KaraokeFile.h"
#include "shell/Form1.h"

namespace sonarium {

namespace {
constexpr std::int32_t LeadFrames = 30;
constexpr Color Black{0, 0, 0}, Red{255, 0, 0};
}  // namespace

void Form1::LoadKaraoke(const QString& file) {
    QFile f(resolveFileName(file));
    if (!f.open(QIODevice::ReadOnly)) throw RuntimeError(RuntimeError::FileNotFound, file);
    KaraokePoints points = readKaraokeFile(f.read(64 * 1024 * 1024));
    M.KaraokeFrames = std::move(points.frames);
    M.KaraokeOffsets = std::move(points.offsets);
    M.KaraokeCount = points.count;
    M.KaraokePlaying = true;
    RT.setLocked(true);
    RT.setTabStop(true);
}

// Recording, then following; one point at most per report, so a late viewer catches up one
// point a frame.
void Form1::KaraokeFrame(std::int32_t frame) {
    const auto i = std::size_t(std::max<std::int32_t>(M.KaraokeIndex, 0));
    if (M.KaraokeMarkPending) {
        M.KaraokeFrames.resize(std::max(M.KaraokeFrames.size(), i + 2));
        M.KaraokeOffsets.resize(std::max(M.KaraokeOffsets.size(), i + 2));
        M.KaraokeFrames[i] = frame;
        M.KaraokeOffsets[i] = RT.SelStart();
        M.KaraokeMarkPending = false;
        ++M.KaraokeIndex;
    }
    if (!M.KaraokePlaying || !mnuInfo.Checked() || i >= M.KaraokeFrames.size()) return;
    if (frame + LeadFrames <= M.KaraokeFrames[i]) return;
    // A stretch runs from its point to one character short of the next; one that is empty or
    // backwards (a file that says so) changes nothing.
    auto paint = [&](std::size_t point, Color colour) {
        tryStep([&] {
            const std::int32_t from = M.KaraokeOffsets.at(point), to = M.KaraokeOffsets.at(point + 1) - 1;
            RT.setSelStart(from);
            RT.setSelLength(to - from);
            RT.setSelColor(colour);
            RT.setSelLength(0);
        });
    };
    if (i > 1) paint(i - 1, Black);
    paint(i, Red);
    ++M.KaraokeIndex;
}

// At the song's end, by its last frame or by Stop: the closing pair and the empty one, and the
// file made anew.
void Form1::WriteKaraoke() {
    const auto i = std::size_t(std::max<std::int32_t>(M.KaraokeIndex, 1));
    M.KaraokeFrames.resize(i + 2);
    M.KaraokeOffsets.resize(i + 2);
    // The player was closed just before; the count GetSong took from it is the whole song's.
    M.KaraokeFrames[i] = TotalFrames;
    M.KaraokeOffsets[i] = std::int32_t(RT.Text().size()) + 1;
    M.KaraokeCount = std::int32_t(i) + 1;
    M.KaraokeMarkPending = false;
    tryStep([&] {
        const int row = M.CurrentSong;
        const KaraokePoints points{M.KaraokeFrames, M.KaraokeOffsets, M.KaraokeCount};
        QSaveFile f(resolveFileName(SongPathOf(row) + lstSongs.List(row) + QStringLiteral(".KAK")));
        const QByteArray bytes = karaokeFileBytes(points);
        if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size() || !f.commit())
            throw RuntimeError(RuntimeError::PathFileAccess, QStringLiteral("Path/File access error"));
    });
    M.KaraokeRecording = false;
}

// The word at the caret, selected: back to the blank before it, on to the blank after.
void Form1::FindText() {
    const QString text = RT.Text();
    const int size = int(text.size());
    const int caret = std::min(RT.SelStart(), size);
    auto stop = [&](int at) { return at >= size || text[at] == u' '; };
    int index = caret;
    while (index >= 0 && !stop(index)) --index;
    const int start = std::max(index + 1, 0);
    int end = caret + (caret < size ? 1 : 2);
    while (end < size && !stop(end)) ++end;
    end = std::min(end, size);
    tryStep([&] { RT.setSelStart(std::min(start, size)); });
    tryStep([&] { RT.setSelLength(std::max(end - start, 0)); });
}

void Form1::RT_Click() {
    RTIndex = 0;
    if (!M.KaraokeRecording) return;
    FindText();
    M.KaraokeMarkPending = true;
}

}  // namespace sonarium
