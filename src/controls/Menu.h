#pragma once
// A menu entry: caption, check mark, enabled and visible state, click, and sub-entries.
// Top-level entries form the menu bar; a hidden top-level entry may still open as a popup.
#include <QString>
#include <functional>
#include <vector>

#include "controls/Observable.h"

namespace sonarium {

class MenuItem : public Observable {
public:
    MenuItem(QString name, QString caption, MenuItem* parent = nullptr);

    const QString& Name() const { return name_; }
    const QString& Caption() const { return caption_; }
    void setCaption(const QString& c) {
        if (c != caption_) caption_ = c, changed();
    }
    bool Checked() const { return checked_; }
    void setChecked(bool c) {
        if (c != checked_) checked_ = c, changed();
    }
    bool Enabled() const { return enabled_; }
    void setEnabled(bool e) {
        if (e != enabled_) enabled_ = e, changed();
    }
    bool Visible() const { return visible_; }
    void setVisible(bool v) {
        if (v != visible_) visible_ = v, changed();
    }
    bool isSeparator() const { return caption_ == QLatin1String("-"); }
    // A key that runs the entry from the window ("F4"), shown beside the caption.
    const QString& Shortcut() const { return shortcut_; }
    void setShortcut(const QString& s) { shortcut_ = s; }

    MenuItem* parent() const { return parent_; }
    const std::vector<MenuItem*>& children() const { return children_; }

    std::function<void()> onClick;
    void Click() {
        if (onClick) onClick();
    }

private:
    QString name_, caption_, shortcut_;
    bool checked_ = false, enabled_ = true, visible_ = true;
    MenuItem* parent_;
    std::vector<MenuItem*> children_;
};

}  // namespace sonarium
