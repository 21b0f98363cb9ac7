#include "ui/views/CommandButtonView.h"

#include <QPainter>

#include "ui/views/HiFiLook.h"

namespace sonarium {

CommandButtonView::CommandButtonView(CommandButton& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), button_(model) {
    clickOnRelease_ = false;
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractButton::clicked, this, [this] { feed([this] { button_.Click(); }); });
}

// The caption without its mnemonic marks, as a screen reader should say it.
QString CommandButtonView::caption() const {
    QString c = button_.Caption();
    c.replace(QLatin1String("&&"), QLatin1String("\x01"));
    c.remove(QLatin1Char('&'));
    c.replace(QLatin1Char('\x01'), QLatin1Char('&'));
    return c;
}

void CommandButtonView::syncOwn() {
    // The text carries the mnemonic, which QAbstractButton turns into its shortcut.
    if (text() != button_.Caption()) setText(button_.Caption());
}

void CommandButtonView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    hifi::paintButton(p, rect(), caption(), isDown(), isEnabled());
    if (keyboardFocus()) hifi::paintFocus(p, rect().adjusted(2, 2, -2, -2));
}

}  // namespace sonarium
