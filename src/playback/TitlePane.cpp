// The title pane: twelve labels paging through the audio files of CurrentDir, from which the
// user fills the queue.
#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
constexpr int PageSize = 12;
// A title without its extension: the last four characters go, whatever they are.
QString withoutExtension(const QString& name) { return name.left(std::max<qsizetype>(0, name.size() - 4)); }
}  // namespace

void Form1::GetTitles() {
    for (int i = 0; i < PageSize; ++i) tryStep([&] { Title[i].setCaption(QString()); });
    Titles.clear();
    TitleCount = 0;
    TitleTop = 0;
    const QString pattern = mnuWavToMp3.Checked() ? QStringLiteral("*.WAV") : QStringLiteral("*.MP3");
    const QStringList found = matchFiles(CurrentDir, pattern);
    if (found.isEmpty()) return;
    tryStep([&] {
        Titles = found;
        TitleCount = toInt16(double(found.size()));
    });
    setMousePointer(Hourglass);
    tryStep([&] { FillTitles(); });
    setMousePointer(DefaultPointer);
}

// A TitleTop past the end takes one page back; so with exactly twelve titles the second page
// is empty and stays empty, since 12 is not greater than 12.
void Form1::FillTitles() {
    if (TitleCount == 0) return;
    if (TitleTop > TitleCount) TitleTop = std::int16_t(TitleTop - PageSize);
    if (TitleTop < 0) TitleTop = 0;
    for (int i = 0; i < PageSize; ++i) Title[i].setCaption(QString());
    for (int i = 0; i < PageSize; ++i) {
        if (i + TitleTop >= TitleCount) break;
        Title[i].setCaption(withoutExtension(Titles.value(i + TitleTop)));
    }
}

void Form1::cmdDown_Click() {
    TitleTop = std::int16_t(TitleTop + PageSize);
    FillTitles();
}

void Form1::cmdUp_Click() {
    TitleTop = std::int16_t(std::max(TitleTop - PageSize, 0));
    FillTitles();
}

void Form1::AddToQueue(const QString& name, const QString& dir) {
    tryStep([&] { lstSongs.AddItem(name); });
    tryStep([&] { SongPathOf(lstSongs.ListCount() - 1) = dir; });
}

// No check for doubles: a title added twice stands twice in the queue.
void Form1::Title_DblClick(int index) {
    tryStep([&] { AddToQueue(Title[index].Caption(), CurrentDir); });
    tryStep([&] { GetTotTime(); });
}

// Adds the titles the queue lacks (compared case-sensitively). The directory goes to the last
// row in every round, added or not, so when the directory's last title already was queued the
// queue's last row takes CurrentDir whichever directory it came from.
void Form1::cmdAddAll_Click() {
    if (TitleCount == 0) return;
    for (int t = 0; t < TitleCount; ++t) {
        const QString name = withoutExtension(Titles.value(t));
        if (!lstSongs.rows().contains(name, Qt::CaseSensitive)) tryStep([&] { lstSongs.AddItem(name); });
        tryStep([&] { SongPathOf(lstSongs.ListCount() - 1) = CurrentDir; });
    }
    tryStep([&] { GetTotTime(); });
}

}  // namespace sonarium
