#include "shell/FrmGeneral.h"

namespace sonarium {

FrmGeneral::FrmGeneral() : Form(QStringLiteral("FrmGeneral")) {
    setCaption(QStringLiteral("Sonarium"));
    Move(0, 0, 6000, 3600);
    PanelSplash.Move(0, 0, 6000, 3600);
    PanelSplash.setVisible(false);
    for (Control* c : std::initializer_list<Control*>{&lblTitle, &lblVersion, &lblTagline, &SScmdOK})
        c->setContainer(&PanelSplash);
    lblTitle.setCaption(QStringLiteral("Sonarium"));
    lblTitle.setAlignment(Alignment::Center);
    lblTitle.Move(0, 600, 6000, 900);
    lblVersion.setCaption(QStringLiteral("Version 3.4"));
    lblVersion.setAlignment(Alignment::Center);
    lblVersion.Move(0, 1650, 6000, 360);
    lblTagline.setCaption(QStringLiteral("Player / Ripper / Encoder / Decoder / Playlister"));
    lblTagline.setAlignment(Alignment::Center);
    lblTagline.Move(0, 2100, 6000, 360);
    SScmdOK.setCaption(QStringLiteral("OK"));
    SScmdOK.Move(2400, 2850, 1200, 450);
    cmdOK.setCaption(QStringLiteral("OK"));
    cmdOK.setVisible(false);
    cmdCancel.setCaption(QStringLiteral("Cancel"));
    cmdCancel.setVisible(false);
    // The About box closes with its OK button.
    SScmdOK.onClick = [this] { Hide(); };
}

}  // namespace sonarium
