// The Zipdeck's two text files, the checks made before anything is written, and the writing.
#include <QDir>
#include <QStringList>
#include <vector>

#include "SkinFiles.h"
#include "Zipdeck.h"
#include "ZipdeckArt.h"

namespace sonarium::skingen::zipdeck {

namespace {

constexpr const char* eol = "\r\n";

QByteArray numbers(std::initializer_list<int> values) {
    QByteArray line;
    for (int v : values) line += (line.isEmpty() ? "" : ",") + QByteArray::number(v);
    return line + eol;
}

QByteArray rgb(const QColor& c) { return numbers({c.red(), c.green(), c.blue()}); }

// The fields a reader splits the text into: at each comma and each line end.
qsizetype fieldCount(const QByteArray& text) {
    qsizetype n = 0;
    for (const QByteArray& line : text.split('\n'))
        if (!line.trimmed().isEmpty()) n += line.count(',') + 1;
    return n;
}

// The panel is cut out exactly where it is magenta, and what stays is one piece.
QStringList maskProblems(const QImage& panel) {
    QStringList problems;
    if (panel.size() != QSize(windowWidth, windowHeight))
        problems << QStringLiteral("Panel.bmp is not the window's size");
    int solids = 0;
    for (int y = 0; y < panel.height(); ++y)
        for (int x = 0; x < panel.width(); ++x) {
            const bool magenta = panel.pixel(x, y) == maskColour;
            if (magenta == solid(x, y))
                return problems << QStringLiteral("Panel.bmp is %1 magenta at %2,%3")
                                       .arg(magenta ? QString() : QStringLiteral("not"))
                                       .arg(x)
                                       .arg(y);
            solids += !magenta;
        }
    std::vector<bool> seen(std::size_t(panel.width() * panel.height()));
    std::vector<QPoint> todo;
    for (int y = 0; y < panel.height() && todo.empty(); ++y)
        for (int x = 0; x < panel.width() && todo.empty(); ++x)
            if (solid(x, y)) todo.push_back({x, y});
    int reached = 0;
    while (!todo.empty()) {
        const QPoint at = todo.back();
        todo.pop_back();
        const std::size_t i = std::size_t(at.y() * panel.width() + at.x());
        if (at.x() < 0 || at.y() < 0 || at.x() >= panel.width() || at.y() >= panel.height() || seen[i] ||
            !solid(at.x(), at.y()))
            continue;
        seen[i] = true;
        ++reached;
        for (QPoint d : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) todo.push_back(at + d);
    }
    if (reached != solids) problems << QStringLiteral("the window's outline falls into pieces");
    return problems;
}

}  // namespace

QByteArray coordsText() {
    QByteArray text = QByteArray("Zipdeck layout") + eol;
    for (const Block& b : blocks()) {
        const QByteArray label(b.label.data(), qsizetype(b.label.size()));
        text += label + "," + numbers({b.cut.x, b.cut.y, b.cut.w, b.cut.h, b.show ? 1 : 0, b.left, b.top});
    }
    return text;
}

QByteArray vuText(const Theme& t) {
    QByteArray lamps;
    for (int i = 0; i < lampCount; ++i)
        lamps +=
            (i ? "," : "") + QByteArray::number(lampPlace(i).x) + "," + QByteArray::number(lampPlace(i).y);
    QByteArray text = QByteArray("Meter lamps") + eol + lamps + eol;
    auto group = [&](const char* label, const QByteArray& values) {
        text += label + QByteArray(eol) + values;
    };
    group("Display background", rgb(titleBack(t)));
    group("Display text", rgb(titleText(t)));
    group("Display font size", numbers({titleFontPoints}));
    group("Display bold", numbers({titleBold ? 1 : 0}));
    group("List background", rgb(listBack(t)));
    group("List text", rgb(listText(t)));
    group("Slider travel", numbers({sliderTravel}));
    group("Collapsed size", numbers({collapsedWidth}));
    group("Collapse height", numbers({0}));
    group("List rows", numbers({listRows}));
    return text;
}

bool writeSkin(const Theme& t, const QString& dir, const QString& previewDir, QString& error) {
    const QImage panel = drawPanel(t);
    const QImage sheet = drawSheet(t, panel);
    QStringList problems = layoutProblems(sheet.size()) + maskProblems(panel);
    const QByteArray coords = coordsText(), vu = vuText(t);
    if (fieldCount(coords) != 1 + 38 * 8)
        problems << QStringLiteral("CoOrds.txt does not split into 305 fields");
    if (fieldCount(vu) != 1 + 38 + 10 + 18)
        problems << QStringLiteral("vu.txt does not split into 67 fields");
    if (!problems.isEmpty()) {
        error = problems.join(QStringLiteral("\nskingen: "));
        return false;
    }
    if (!QDir().mkpath(dir)) {
        error = QStringLiteral("cannot create %1").arg(dir);
        return false;
    }
    for (const auto& [name, image] : {std::pair{"/Panel.bmp", &panel}, std::pair{"/Buttons.bmp", &sheet}})
        if (!saveBitmap(*image, dir + QLatin1String(name), error) ||
            !checkImage(*image, dir + QLatin1String(name), error))
            return false;
    if (!saveText(coords, dir + QStringLiteral("/CoOrds.txt"), error) ||
        !saveText(vu, dir + QStringLiteral("/vu.txt"), error))
        return false;
    if (previewDir.isEmpty()) return true;
    if (!QDir().mkpath(previewDir)) {
        error = QStringLiteral("cannot create %1").arg(previewDir);
        return false;
    }
    const QString stem = previewDir + QStringLiteral("/Zipdeck-") + t.name;
    const QImage whole = assembled(t, panel, sheet, false), deck = assembled(t, panel, sheet, true);
    auto x3 = [](const QImage& i) {
        return i.scaled(i.size() * 3, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    };
    const std::pair<QString, QImage> files[] = {
        {QStringLiteral(".png"), whole},
        {QStringLiteral("-x3.png"), x3(whole)},
        {QStringLiteral("-collapsed.png"), deck},
        {QStringLiteral("-collapsed-x3.png"), x3(deck)},
        {QStringLiteral("-Buttons-x3.png"), x3(sheet)},
    };
    for (const auto& [suffix, image] : files)
        if (!image.save(stem + suffix, "PNG")) {
            error = QStringLiteral("cannot write %1").arg(stem + suffix);
            return false;
        }
    return true;
}

}  // namespace sonarium::skingen::zipdeck
