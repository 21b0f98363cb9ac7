// skingen: draws a complete main skin (PanelDatabase.bmp, Panels.bmp, Buttons.bmp, Colors.txt)
// into a directory, from the table of rectangles that the skin loader cuts by; or, with
// "zipdeck" first, the mini player's skin (Panel.bmp, Buttons.bmp, CoOrds.txt, vu.txt) from its
// layout table; or, with "icon", the program's icon at every hicolor size in the Default look.
//
//   skingen [zipdeck] <theme> <outdir> [previewdir]
//   skingen icon <outdir> [previewdir]
//
// Each file is written under a temporary name and renamed into place, then read back and
// compared with what was drawn, so a skin on disk is either whole and right or not replaced.
#include <QDir>
#include <QFontInfo>
#include <QGuiApplication>
#include <cstdio>
#include <exception>

#include "Icon.h"
#include "Paint.h"
#include "Preview.h"
#include "Sheets.h"
#include "SkinFiles.h"
#include "Zipdeck.h"

using namespace sonarium;
using namespace sonarium::skingen;

namespace {

void say(const QString& s) { std::fprintf(stderr, "%s\n", qPrintable(s)); }

// The colour file splits into the 37 fields the loader reads, each colour component a whole
// number from 0 to 255 where it belongs.
bool checkColors(const QByteArray& text, QString& error) {
    QStringList fields;
    for (const QString& line : QString::fromUtf8(text).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts))
        fields << line.split(u',');
    if (fields.size() != 37) {
        error = QStringLiteral("Colors.txt has %1 fields, not 37").arg(fields.size());
        return false;
    }
    for (int first : {3, 7, 12, 16, 21, 25, 30, 35})
        for (int i = first; i < first + 3; ++i) {
            bool ok = false;
            const int v = fields[i - 1].toInt(&ok);
            if (!ok || v < 0 || v > 255) {
                error = QStringLiteral("Colors.txt field %1 is not a colour component: %2")
                            .arg(i)
                            .arg(fields[i - 1]);
                return false;
            }
        }
    return true;
}

bool writeSkin(const Theme& t, const QString& dir, const QString& previewDir) {
    QString error;
    if (!QDir().mkpath(dir)) {
        say(QStringLiteral("skingen: cannot create %1").arg(dir));
        return false;
    }
    SkinSheets sheets;
    sheets.panels = drawPanelsSheet(t);
    sheets.database = drawDatabasePanel(t);
    sheets.buttons = drawButtonsSheet(t, sheets.panels, sheets.database);
    const std::pair<std::string_view, const QImage*> bitmaps[] = {{mainskin::DatabaseFile, &sheets.database},
                                                                  {mainskin::PanelsFile, &sheets.panels},
                                                                  {mainskin::ButtonsFile, &sheets.buttons}};
    for (const auto& [name, image] : bitmaps) {
        const QString path = dir + u'/' + QLatin1String(name.data(), qsizetype(name.size()));
        if (!saveBitmap(*image, path, error) || !checkImage(*image, path, error)) {
            say(QStringLiteral("skingen: ") + error);
            return false;
        }
    }
    const QByteArray colours = colorsText(t);
    if (!checkColors(colours, error) ||
        !saveText(
            colours,
            dir + u'/' + QLatin1String(mainskin::ColorsFile.data(), qsizetype(mainskin::ColorsFile.size())),
            error)) {
        say(QStringLiteral("skingen: ") + error);
        return false;
    }
    if (!previewDir.isEmpty() && !writePreviews(sheets, t, previewDir, error)) {
        say(QStringLiteral("skingen: ") + error);
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    // Drawing needs no screen.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QStringList args = app.arguments();
    if (args.size() > 1 && args[1] == QStringLiteral("icon")) {
        // The icon belongs to the built-in look, whatever skin is chosen later.
        Theme theme;
        QString error;
        if (args.size() >= 3 && args.size() <= 4 && themeByName(QStringLiteral("Default"), theme) &&
            writeIcons(theme, args[2], args.value(3), error))
            return 0;
        say(error.isEmpty() ? QStringLiteral("usage: skingen icon <outdir> [previewdir]")
                            : QStringLiteral("skingen: ") + error);
        return error.isEmpty() ? 2 : 1;
    }
    const bool zipdeck = args.size() > 1 && args[1] == QStringLiteral("zipdeck");
    if (zipdeck) args.removeAt(1);
    if (args.size() < 3 || args.size() > 4) {
        say(QStringLiteral("usage: skingen [zipdeck] <theme> <outdir> [previewdir]\n       skingen icon "
                           "<outdir> [previewdir]\nthemes: %1")
                .arg(themeNames().join(u' ')));
        return 2;
    }
    Theme theme;
    if (!themeByName(args[1], theme)) {
        say(QStringLiteral("skingen: no theme \"%1\"; themes: %2").arg(args[1], themeNames().join(u' ')));
        return 2;
    }
    // Small captions are drawn pixel by pixel for this family; another one would not fit them.
    const QFontInfo font(pixelFont(9));
    if (!font.family().startsWith(QStringLiteral("DejaVu Sans"))) {
        say(QStringLiteral("skingen: the font DejaVu Sans is not installed (got %1)").arg(font.family()));
        return 1;
    }
    const QString previewDir = args.size() == 4 ? args[3] : QString();
    if (zipdeck) {
        QString error;
        try {
            if (zipdeck::writeSkin(theme, args[2], previewDir, error)) return 0;
        } catch (const std::exception& e) {
            error = QString::fromUtf8(e.what());
        }
        say(QStringLiteral("skingen: ") + error);
        return 1;
    }
    for (const QString& pair : overlappingCuts())
        say(QStringLiteral("skingen: note: pictures share pixels on Buttons.bmp: %1").arg(pair));
    try {
        return writeSkin(theme, args[2], previewDir) ? 0 : 1;
    } catch (const std::exception& e) {
        say(QStringLiteral("skingen: %1").arg(QString::fromUtf8(e.what())));
        return 1;
    }
}
