// skingen: draws a complete main skin (PanelDatabase.bmp, Panels.bmp, Buttons.bmp, Colors.txt)
// into a directory, from the table of rectangles that the skin loader cuts by.
//
//   skingen <theme> <outdir> [previewdir]
//
// Each file is written under a temporary name and renamed into place, then read back and
// compared with what was drawn, so a skin on disk is either whole and right or not replaced.
#include <QDir>
#include <QFontInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>
#include <cstdio>
#include <exception>

#include "Paint.h"
#include "Preview.h"
#include "Sheets.h"

using namespace sonarium;
using namespace sonarium::skingen;

namespace {

void say(const QString& s) { std::fprintf(stderr, "%s\n", qPrintable(s)); }

bool saveBitmap(const QImage& image, const QString& path, QString& error) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    QImageWriter writer(&file, "BMP");
    if (!writer.write(image.convertToFormat(QImage::Format_RGB888)) || !file.commit()) {
        error = QStringLiteral("cannot write %1: %2").arg(path, writer.errorString());
        return false;
    }
    return true;
}

// The bitmap on disk has the sheet's size and every one of its pixels.
bool checkBitmap(const QImage& drawn, const QString& path, QString& error) {
    QImageReader reader(path, "BMP");
    const QImage back = reader.read();
    if (back.isNull()) {
        error = QStringLiteral("%1 does not load back: %2").arg(path, reader.errorString());
        return false;
    }
    if (back.size() != drawn.size()) {
        error = QStringLiteral("%1 loads as %2 x %3, not %4 x %5")
                    .arg(path)
                    .arg(back.width())
                    .arg(back.height())
                    .arg(drawn.width())
                    .arg(drawn.height());
        return false;
    }
    if (back.convertToFormat(QImage::Format_RGB32) != drawn.convertToFormat(QImage::Format_RGB32)) {
        error = QStringLiteral("%1 loads back with different pixels").arg(path);
        return false;
    }
    return true;
}

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
        if (!saveBitmap(*image, path, error) || !checkBitmap(*image, path, error)) {
            say(QStringLiteral("skingen: ") + error);
            return false;
        }
    }
    const QByteArray colours = colorsText(t);
    QSaveFile file(dir + u'/' +
                   QLatin1String(mainskin::ColorsFile.data(), qsizetype(mainskin::ColorsFile.size())));
    if (!checkColors(colours, error) || !file.open(QIODevice::WriteOnly) ||
        file.write(colours) != colours.size() || !file.commit()) {
        say(QStringLiteral("skingen: ") + (error.isEmpty() ? file.errorString() : error));
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
    const QStringList args = app.arguments();
    if (args.size() < 3 || args.size() > 4) {
        say(QStringLiteral("usage: skingen <theme> <outdir> [previewdir]\nthemes: %1")
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
    for (const QString& pair : overlappingCuts())
        say(QStringLiteral("skingen: note: pictures share pixels on Buttons.bmp: %1").arg(pair));
    try {
        return writeSkin(theme, args[2], args.size() == 4 ? args[3] : QString()) ? 0 : 1;
    } catch (const std::exception& e) {
        say(QStringLiteral("skingen: %1").arg(QString::fromUtf8(e.what())));
        return 1;
    }
}
