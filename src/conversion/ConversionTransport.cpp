// The external encoder: a program named Bladeenc in the program's folder, copied into the
// folder of the file and run there on a command line it builds; watched ten times a second and
// killed on Stop. File names with blanks are renamed for the time of the job, as the command
// line cannot quote them.
#include <QFile>
#include <algorithm>

#include "controls/FileNames.h"
#include "shell/AppFiles.h"
#include "shell/ButtonPictures.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

using namespace buttons;

namespace {

const QString EncoderProgram = QStringLiteral("Bladeenc");

QString withoutBlanks(QString name) { return name.remove(u' '); }

// A name without its last four characters, the extension.
QString base(const QString& name) { return name.left(std::max<qsizetype>(0, name.size() - 4)); }

void rename(const QString& dir, const QString& from, const QString& to) {
    QFile::rename(resolveFileName(dir + from), dir + to);
}

}  // namespace

void Form1::EncodeBlade(const QString& dir, QString& srcFile, const QString& dstFile) {
    M.BladeSourceName.clear();
    if (srcFile.toUpper() != QStringLiteral("TEMP.WAV")) {
        M.BladeSourceName = srcFile;
        const QString spaceless = withoutBlanks(srcFile);
        rename(dir, srcFile, spaceless);  // a name without blanks names the file after itself
        srcFile = spaceless;
        M.BladeSpacelessName = spaceless;
    }
    tryStep([&] { lblBladeEncTime.setVisible(true); });
    std::int32_t bitRate = 0;
    tryStep([&] { bitRate = std::int32_t(leadingNumber(cboBitRate.Text())); });
    BladeStart = ClockSeconds();
    // Copying onto itself, when the folder is the program's own, fails and is passed over.
    QFile::copy(joinPath(M.AppDir, EncoderProgram), dir + EncoderProgram);
    currentDirectory.change(dir);
    QString line = EncoderProgram + QStringLiteral(" -quit ") + QStringLiteral(" -") +
                   QString::number(bitRate) + u' ' + srcFile;
    if (!dstFile.isEmpty()) line += u' ' + dstFile;
    std::int64_t process = 0;
    tryStep([&] { process = C.processes.Start(line, dir, mnuBladeInvisible.Checked()); });
    if (process == 0) {
        C.dialogs.msgBox(QStringLiteral("No connection avaliable"), MsgButtons::OK, MsgIcon::None, QString());
        return;
    }
    tryStep([&] { TimerEnc.setEnabled(true); });
    BladeProcess = process;
}

void Form1::TimerEnc_Timer() {
    if (C.processes.WaitForSingleObject(BladeProcess, 0) != 0) {
        // The seconds are rounded, so the last half second of a minute shows 00 before the
        // minute turns.
        const double elapsed = ClockSeconds() - BladeStart;
        const auto minutes = std::int64_t(elapsed / 60);
        auto seconds = std::int64_t(roundHalfEven(elapsed - double(minutes) * 60));
        if (seconds == 60) seconds = 0;
        tryStep([&] {
            lblBladeEncTime.setCaption(QStringLiteral(" Using Blade ......Time  ") +
                                       QStringLiteral("%1:%2")
                                           .arg(minutes, 2, 10, QLatin1Char('0'))
                                           .arg(seconds, 2, 10, QLatin1Char('0')));
        });
        return;
    }
    tryStep([&] { C.processes.CloseHandle(BladeProcess); });
    tryStep([&] { TimerEnc.setEnabled(false); });
    ShowLamp(false);
    if (mnuCDtoMP3.Enabled() || mnuWavToMp3.Checked()) {
        const int row = lstSongs.ListIndex();
        if (StopRequested || row >= lstSongs.ListCount() - 1) {
            ReleaseEncoderFiles();
            DeleteTemporaryWav();
            RemoveEncoderCopy();
            tryStep([&] { lblBladeEncTime.setVisible(false); });
            C.dialogs.msgBox(QStringLiteral("Encoding complete...."), MsgButtons::OK, MsgIcon::Information,
                             QStringLiteral("Ecoding"));
            if (!M.BladeSourceName.isEmpty()) RestoreBladeNames();
        } else {
            tryStep([&] { lstSongs.setListIndex(row + 1); });
            if (!M.BladeSourceName.isEmpty()) RestoreBladeNames();
            BtnPlay_MouseUp(1, 0, 0, 0);
        }
    }
    // Last of all: a job started above keeps the folder it was started in.
    currentDirectory.change(M.AppDir);
}

void Form1::CheckForBlade() {
    if (!mnuBlade.Checked() || !TimerEnc.Enabled()) return;
    tryStep([&] { TimerEnc.setEnabled(false); });
    // Told to die and not waited for: deletions the dying process still blocks are passed over.
    tryStep([&] { C.processes.TerminateProcess(BladeProcess, 0); });
    ReleaseEncoderFiles();
    RemoveEncoderCopy();
    DeleteTemporaryWav();
    tryStep([&] { lblBladeEncTime.setVisible(false); });
    ShowButtonImage(BtnStop, StopAtRest);
    ShowLamp(false);
    C.dialogs.msgBox(QStringLiteral("Encoding aborted...."), MsgButtons::OK, MsgIcon::Exclamation,
                     QStringLiteral("Ecoding"));
    if (!M.BladeSourceName.isEmpty()) RestoreBladeNames();
    currentDirectory.change(M.AppDir);
}

// The copy in the working folder goes, unless that folder is the program's own (compared
// without regard to case, as names are).
void Form1::RemoveEncoderCopy() {
    if (CurrentDir.toUpper() != (M.AppDir + u'/').toUpper() && fileExists(CurrentDir + EncoderProgram))
        QFile::remove(resolveFileName(CurrentDir + EncoderProgram));
}

void Form1::RestoreBladeNames() {
    rename(CurrentDir, M.BladeSpacelessName, M.BladeSourceName);
    rename(CurrentDir, base(M.BladeSpacelessName) + QStringLiteral(".MP3"),
           base(M.BladeSourceName) + QStringLiteral(".MP3"));
}

}  // namespace sonarium
