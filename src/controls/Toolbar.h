#pragma once
// A toolbar: buttons found by key, each a push button or a check button, with a tool tip and
// the number of its picture. Pressing a check button flips its value before the click event.
#include <QList>
#include <QString>
#include <functional>

#include "controls/Control.h"

namespace sonarium {

class Toolbar : public Control {
public:
    struct Button {
        QString key, toolTip;
        bool check = false;
        int value = 0;  // a check button's state: 1 pressed
        int image = 0;
    };
    using Control::Control;

    void add(const Button& b) { buttons_.append(b), notify(); }
    const QList<Button>& buttons() const { return buttons_; }
    int value(const QString& key) const { return buttons_.at(indexOf(key)).value; }
    void setImage(const QString& key, int image) {
        buttons_[indexOf(key)].image = image;
        notify();
    }

    std::function<void(const QString& key)> onButtonClick;
    // The user pressed the button at `index` (the view calls this).
    void ButtonClick(int index) {
        Button& b = buttons_[index];
        if (b.check) b.value = b.value ? 0 : 1, notify();
        if (onButtonClick) onButtonClick(b.key);
    }

private:
    int indexOf(const QString& key) const {
        for (int i = 0; i < buttons_.size(); ++i)
            if (buttons_[i].key == key) return i;
        return 0;
    }

    QList<Button> buttons_;
};

}  // namespace sonarium
