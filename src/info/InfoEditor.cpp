// The info editor: the viewer's box unlocked, with its toolbar, the font lists and the quit
// button, for writing a song's or a folder's page. The box's background is no part of the
// document, so a saved page carries it on a marker line after the document.
#include "controls/FileNames.h"
#include "info/PageMarker.h"
#include "info/rtf/RtfWriter.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
// A Cancel in a file or colour dialog that must end the command silently.
struct Cancelled {};
const QString RichTextFilter = QStringLiteral("Rich Text|*.RTF");
constexpr int KaraokeRest = 14, KaraokeArmed = 13;
}  // namespace

void Form1::designToolbar() {
    const struct {
        const char *key, *tip;
        bool check;
    } buttons[] = {{"clear", "Clear", false},
                   {"load", "Load", false},
                   {"save", "Save", false},
                   {"print", "Print", false},
                   {"bold", "Bold", true},
                   {"italic", "Italics", true},
                   {"underline", "Underline", true},
                   {"lft", "Align Left", false},
                   {"centre", "Align Centre", false},
                   {"rht", "Align Right", false},
                   {"TextCol", "Text Colour", false},
                   {"BackCol", "Back Colour", false},
                   {"Karaoki", "Record Karaoke Positions", false}};
    int image = 0;
    for (const auto& b : buttons)
        Toolbar.add({QString::fromLatin1(b.key), QString::fromLatin1(b.tip), b.check, 0,
                     ++image == 13 ? KaraokeRest : image});
}

// Any failure inside, a dialog's Cancel above all, ends the command at once without a word.
void Form1::Toolbar_ButtonClick(const QString& key) {
    try {
        ToolbarCommand(key);
        RT.SetFocus();
    } catch (const Cancelled&) {
    } catch (const RuntimeError& e) {
        C.errors.skipped(e.text());
    }
}

QString Form1::AskRichTextFile(bool save) {
    FileDialogRequest request{QString(), RichTextFilter, M.AppDir, RT.FileName()};
    QString chosen = save ? C.dialogs.saveFile(request) : C.dialogs.openFile(request);
    tryStep([&] { currentDirectory.change(M.AppDir); });
    if (chosen.isEmpty()) {
        if (CancelError) throw Cancelled{};
        chosen = RT.FileName();  // the dialog's name was left as it was
    }
    return chosen;
}

Color Form1::AskColour() {
    const std::optional<Color> chosen = C.dialogs.chooseColor(DialogColour);
    if (!chosen && CancelError) throw Cancelled{};
    if (chosen) DialogColour = *chosen;
    return DialogColour;
}

void Form1::ToolbarCommand(const QString& key) {
    if (key == QLatin1String("clear")) {
        if (C.dialogs.msgBox(QStringLiteral("Clear all Info? Y/N"), MsgButtons::YesNo, MsgIcon::Exclamation,
                             QStringLiteral("Clear")) == MsgResult::Yes)
            ClearRTF();
    } else if (key == QLatin1String("load")) {
        LoadRTF(AskRichTextFile(false));
    } else if (key == QLatin1String("save")) {
        CancelError = true;
        const QString file = AskRichTextFile(true);
        if (file.isEmpty()) return;
        if (fileExists(file) &&
            C.dialogs.msgBox(QStringLiteral("File already exists, overwrite?"), MsgButtons::YesNo,
                             MsgIcon::Exclamation, QStringLiteral("Save")) == MsgResult::No)
            return;
        // Document and marker in one write: an existing page is replaced whole or not at all.
        RT.SaveFile(file, pageMarkerLine(RT.BackColor().value_or(Color{})));
    } else if (key == QLatin1String("print")) {
        cmdPrint_Click();
    } else if (key == QLatin1String("bold")) {
        RT.setSelBold(Toolbar.value(key) == 1);
    } else if (key == QLatin1String("italic")) {
        RT.setSelItalic(Toolbar.value(key) == 1);
    } else if (key == QLatin1String("underline")) {
        RT.setSelUnderline(Toolbar.value(key) == 1);
    } else if (key == QLatin1String("lft") || key == QLatin1String("rht") || key == QLatin1String("centre")) {
        RT.setSelAlignment(key == QLatin1String("lft") ? 0 : key == QLatin1String("rht") ? 1 : 2);
    } else if (key == QLatin1String("TextCol")) {
        RT.setSelColor(AskColour());
    } else if (key == QLatin1String("BackCol")) {
        RT.setBackColor(AskColour());
    } else if (key == QLatin1String("Karaoki")) {
        ArmKaraoke();
    }
}

// Arming needs the song alone in the queue; a second press disarms, and nothing is written.
void Form1::ArmKaraoke() {
    if (M.KaraokeRecording) {
        M.KaraokeRecording = false;
        Toolbar.setImage(QStringLiteral("Karaoki"), KaraokeRest);
        return;
    }
    if (lstSongs.ListCount() >= 2) {
        C.dialogs.msgBox(QStringLiteral("This must be the only song in the song queue"), MsgButtons::OK,
                         MsgIcon::Information, QStringLiteral("Karaoke"));
        return;
    }
    M.KaraokeRecording = true;
    Toolbar.setImage(QStringLiteral("Karaoki"), KaraokeArmed);
}

void Form1::cmdPrint_Click() { C.dialogs.printPage(writeRtf(RT.document())); }

void Form1::wireEditor() {
    designToolbar();
    Toolbar.onButtonClick = [this](const QString& key) { Toolbar_ButtonClick(key); };
    cmdPrint.onClick = [this] { cmdPrint_Click(); };
    mnuPrinterSetup.onClick = [this] { C.dialogs.printerSetup(); };
    mnuEdit.onClick = [this] { mnuEdit_Click(); };
    imgEditInfo.onClick = [this] { mnuEdit.Click(); };
    cmdQuitEditor.onClick = [this] { mnuEdit.Click(); };
    // Only the user's choice in the editor: the lists' first rows, chosen as the program
    // starts, would otherwise give every new page the first font of the system's list.
    CboFontName.onClick = [this] {
        if (!mnuEdit.Checked()) return;
        tryStep([&] { RT.setSelFontName(CboFontName.Text()); });
        RT.SetFocus();
    };
    CboFontSize.onClick = [this] {
        if (!mnuEdit.Checked()) return;
        tryStep([&] { RT.setSelFontSize(leadingNumber(CboFontSize.Text())); });
        RT.SetFocus();
    };
}

// Nothing is saved and nothing asked on the way out: the text stays in the box until
// something loads over it.
void Form1::mnuEdit_Click() { ToggleInfoPanel(true); }

}  // namespace sonarium
