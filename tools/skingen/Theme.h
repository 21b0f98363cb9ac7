#pragma once
// The colours of one look of the main window. Every piece of a skin is drawn from these, so a
// theme is a palette and nothing else: shapes and places are the same for all themes.
#include <QColor>
#include <QString>
#include <QStringList>

namespace sonarium::skingen {

struct Theme {
    QString name;

    // The metal of the panels, lit from the top left: a face that darkens slightly downwards,
    // one-pixel bevels, and a brushed grain whose strength is `grain` levels either way.
    QColor faceTop, faceBottom, bevelLight, bevelDark;
    int grain = 0;
    QColor groove;     // engraved separators
    QColor legend;     // small printed legends on the metal
    QColor legendDim;  // secondary legends, scale ticks

    // Recessed glass behind the value displays, the lists and the photo.
    QColor glass, glassTop, rimDark, rimLight;
    QColor glassText;  // default text on the glass (only in previews and on the logo)
    QColor glassLit;   // a light seen through the glass: badges, the song slider, the logo

    // Button plates: raised faces with their bevel and caption.
    QColor plateTop, plateBottom, plateLight, plateDark, caption;
    QColor pressedTop, pressedBottom;

    // Lit states and lamps.
    QColor lit;  // a pressed transport button and the panels' highlights
    QColor amber, green, red, blue;
    QColor lampOff;

    // What Colors.txt carries: the lists' and labels' colours.
    QColor dirBack, dirText, queueBack, queueText, gridBack, gridText, titleText, displayText;
};

// The theme of that name, compared without regard to case; false when there is none.
bool themeByName(const QString& name, Theme& out);
QStringList themeNames();

}  // namespace sonarium::skingen
