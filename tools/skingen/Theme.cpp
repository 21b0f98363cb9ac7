#include "Theme.h"

namespace sonarium::skingen {

namespace {

// Graphite panels with amber and cyan lights, like an amplifier's front. Its metal and glass
// agree with the placeholder look the window draws before any skin is loaded, so that a
// control painted by the program sits on this skin without a seam.
Theme defaultTheme() {
    Theme t;
    t.name = QStringLiteral("Default");
    t.faceTop = QColor(0x37, 0x3a, 0x40);
    t.faceBottom = QColor(0x2a, 0x2c, 0x31);
    t.bevelLight = QColor(0x5a, 0x5f, 0x68);
    t.bevelDark = QColor(0x12, 0x13, 0x15);
    t.grain = 3;
    t.groove = QColor(0x1c, 0x1d, 0x21);
    t.legend = QColor(0xa9, 0xb0, 0xb9);
    t.legendDim = QColor(0x6c, 0x72, 0x7b);

    t.glass = QColor(0x0c, 0x0f, 0x11);
    t.glassTop = QColor(0x13, 0x17, 0x1a);
    t.rimDark = QColor(0x0a, 0x0a, 0x0c);
    t.rimLight = QColor(0x52, 0x57, 0x5f);
    t.glassText = QColor(0xd6, 0xf2, 0xe0);
    t.glassLit = QColor(0x4f, 0xd8, 0xea);

    t.plateTop = QColor(0x56, 0x5b, 0x64);
    t.plateBottom = QColor(0x3b, 0x3e, 0x45);
    t.plateLight = QColor(0x7a, 0x80, 0x8a);
    t.plateDark = QColor(0x10, 0x11, 0x13);
    t.caption = QColor(0xe4, 0xe8, 0xec);
    t.pressedTop = QColor(0x1e, 0x20, 0x24);
    t.pressedBottom = QColor(0x2c, 0x2f, 0x34);

    t.lit = QColor(0x4f, 0xd8, 0xea);
    t.amber = QColor(0xf2, 0xa3, 0x3a);
    t.green = QColor(0x6c, 0xe0, 0x7a);
    t.red = QColor(0xf0, 0x4a, 0x3e);
    t.blue = QColor(0x3a, 0x7b, 0xd8);
    t.lampOff = QColor(0x3a, 0x26, 0x48);

    t.dirBack = QColor(16, 20, 24);
    t.dirText = QColor(196, 206, 214);
    t.queueBack = QColor(12, 15, 17);
    t.queueText = QColor(140, 226, 238);
    t.gridBack = QColor(17, 20, 23);
    t.gridText = QColor(214, 220, 226);
    t.titleText = QColor(214, 242, 224);
    t.displayText = QColor(242, 163, 58);
    return t;
}

// Brushed aluminium with dark text and blue lights. The value displays stay dark smoked glass,
// as on a silver amplifier, because the window draws its value labels light on dark.
Theme daylightTheme() {
    Theme t;
    t.name = QStringLiteral("Daylight");
    t.faceTop = QColor(0xd9, 0xdc, 0xe0);
    t.faceBottom = QColor(0xbd, 0xc1, 0xc6);
    t.bevelLight = QColor(0xf7, 0xf8, 0xfa);
    t.bevelDark = QColor(0x7d, 0x82, 0x89);
    t.grain = 5;
    t.groove = QColor(0x9c, 0xa1, 0xa8);
    t.legend = QColor(0x26, 0x2b, 0x33);
    t.legendDim = QColor(0x6a, 0x70, 0x79);

    t.glass = QColor(0x10, 0x16, 0x1d);
    t.glassTop = QColor(0x1a, 0x22, 0x2c);
    t.rimDark = QColor(0x6a, 0x6f, 0x76);
    t.rimLight = QColor(0xfa, 0xfb, 0xfc);
    t.glassText = QColor(0xd4, 0xe8, 0xff);
    t.glassLit = QColor(0x6c, 0xb8, 0xff);

    t.plateTop = QColor(0xf4, 0xf5, 0xf7);
    t.plateBottom = QColor(0xd0, 0xd4, 0xd9);
    t.plateLight = QColor(0xff, 0xff, 0xff);
    t.plateDark = QColor(0x70, 0x76, 0x7e);
    t.caption = QColor(0x1e, 0x23, 0x2a);
    t.pressedTop = QColor(0xa8, 0xb0, 0xba);
    t.pressedBottom = QColor(0xc4, 0xca, 0xd1);

    t.lit = QColor(0x1f, 0x6f, 0xd1);
    t.amber = QColor(0xe0, 0x8a, 0x12);
    t.green = QColor(0x2c, 0xa8, 0x4a);
    t.red = QColor(0xd8, 0x35, 0x2b);
    t.blue = QColor(0x1f, 0x6f, 0xd1);
    t.lampOff = QColor(0x4a, 0x36, 0x5c);

    t.dirBack = QColor(250, 251, 252);
    t.dirText = QColor(28, 32, 38);
    t.queueBack = QColor(243, 247, 252);
    t.queueText = QColor(16, 52, 112);
    t.gridBack = QColor(252, 252, 253);
    t.gridText = QColor(30, 34, 40);
    t.titleText = QColor(222, 236, 252);
    t.displayText = QColor(120, 200, 255);
    return t;
}

}  // namespace

QStringList themeNames() { return {defaultTheme().name, daylightTheme().name}; }

bool themeByName(const QString& name, Theme& out) {
    for (const Theme& t : {defaultTheme(), daylightTheme()}) {
        if (t.name.compare(name, Qt::CaseInsensitive) == 0) {
            out = t;
            return true;
        }
    }
    return false;
}

}  // namespace sonarium::skingen
