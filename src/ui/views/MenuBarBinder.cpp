#include "ui/views/MenuBarBinder.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "controls/Menu.h"
#include "ui/views/ControlSync.h"

namespace sonarium {

MenuBarBinder::MenuBarBinder(QMenuBar& bar, const std::vector<MenuItem*>& topLevel, ErrorReporter& errors)
    : errors_(errors) {
    bound_.reserve(64);
    for (MenuItem* item : topLevel) add(bar, *item, true);
}

MenuBarBinder::~MenuBarBinder() {
    for (const Bound& b : bound_) b.item->unsubscribe(b.subscription);
}

void MenuBarBinder::add(QWidget& into, MenuItem& item, bool topLevel) {
    Bound b{&item, nullptr, nullptr, 0, topLevel};
    if (!item.children().empty()) {
        b.menu = new QMenu(&into);
        b.menu->setObjectName(item.Name());
        b.action = b.menu->menuAction();
        into.addAction(b.action);
        for (MenuItem* child : item.children()) add(*b.menu, *child, false);
    } else {
        b.action = new QAction(&into);
        into.addAction(b.action);
        QObject::connect(b.action, &QAction::triggered, b.action, [this, &item] {
            feed(errors_, [&] { item.Click(); });
            for (const Bound& x : bound_)
                if (x.item == &item) sync(x);
        });
    }
    b.action->setObjectName(item.Name());
    const std::size_t at = bound_.size();
    b.subscription = item.subscribe([this, at] { sync(bound_[at]); });
    bound_.push_back(b);
    sync(bound_.back());
}

void MenuBarBinder::sync(const Bound& b) {
    MenuItem& item = *b.item;
    QAction& a = *b.action;
    const bool wasVisible = a.isVisible();
    a.setSeparator(item.isSeparator());
    if (b.menu) b.menu->setTitle(item.Caption());
    // A separator keeps no text: styles draw a separator with text as a titled section.
    const QString text = item.isSeparator() ? QString() : item.Caption();
    if (a.text() != text) a.setText(text);
    if (!b.menu) {
        a.setCheckable(item.Checked());
        a.setChecked(item.Checked());
        const QKeySequence shortcut(item.Shortcut());
        if (a.shortcut() != shortcut) a.setShortcut(shortcut);
    }
    a.setEnabled(item.Enabled());
    a.setVisible(item.Visible());
    if (b.topLevel && wasVisible != item.Visible() && onTopLevelChanged) onTopLevelChanged();
}

QAction* MenuBarBinder::actionOf(const MenuItem& item) const {
    for (const Bound& b : bound_)
        if (b.item == &item) return b.action;
    return nullptr;
}

bool MenuBarBinder::anyTopLevelVisible() const {
    for (const Bound& b : bound_)
        if (b.topLevel && b.item->Visible()) return true;
    return false;
}

}  // namespace sonarium
