#pragma once
// Builds a menu bar from menu models, recursively: an entry with sub-entries becomes a menu,
// "-" a separator, any other entry an action. Caption (with its "&" mnemonic), check mark,
// enabled and visible state and the shortcut follow each model's change notifications. A
// chosen entry runs the model's Click; its check mark then shows what the model says, not
// what Qt toggled.
#include <QString>
#include <functional>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace sonarium {

class ErrorReporter;
class MenuItem;

class MenuBarBinder {
public:
    // The entries' clicks that fail are told to `errors`.
    MenuBarBinder(QMenuBar& bar, const std::vector<MenuItem*>& topLevel, ErrorReporter& errors);
    ~MenuBarBinder();
    MenuBarBinder(const MenuBarBinder&) = delete;
    MenuBarBinder& operator=(const MenuBarBinder&) = delete;

    // The action of an entry (a menu's own action for an entry with sub-entries).
    QAction* actionOf(const MenuItem& item) const;
    // True while any top-level entry is visible: with none the bar takes no room.
    bool anyTopLevelVisible() const;
    // Told when a top-level entry shows or hides.
    std::function<void()> onTopLevelChanged;

private:
    struct Bound {
        MenuItem* item;
        QAction* action;
        QMenu* menu;  // null for a plain entry
        int subscription;
        bool topLevel;
    };
    void add(QWidget& into, MenuItem& item, bool topLevel);
    void sync(const Bound& b);

    ErrorReporter& errors_;
    std::vector<Bound> bound_;
};

}  // namespace sonarium
