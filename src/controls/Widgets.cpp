#include "controls/Widgets.h"

#include <algorithm>

#include "controls/Errors.h"

namespace sonarium {

void TextBox::setText(const QString& t) {
    if (t == text_) return;
    text_ = t;
    notify();
    if (onChange) onChange();
}

int TextBox::KeyPress(int keyAscii) {
    if (onKeyPress) onKeyPress(keyAscii);
    if (keyAscii == 0 || locked_) return keyAscii;
    if (keyAscii == 8) {
        if (!text_.isEmpty()) setText(text_.left(text_.size() - 1));
    } else if (keyAscii >= 32 && (maxLength_ == 0 || text_.size() < maxLength_)) {
        setText(text_ + QChar(keyAscii));
    }
    return keyAscii;
}

void CheckBox::setValue(int v) {
    if (v < 0 || v > 2)
        throw RuntimeError(RuntimeError::InvalidPropertyValue, QStringLiteral("Invalid property value"));
    if (v == value_) return;
    value_ = v;
    notify();
    Click();
}

void Image::setPicture(const Picture& p) {
    picture_ = p;
    if (!stretch_ && !p.isNull()) {
        Control::setWidth(p.width() * TwipsPerPixel);
        Control::setHeight(p.height() * TwipsPerPixel);
    }
    notify();
}

void Slider::setRange(int mn, int mx) {
    min_ = mn;
    max_ = std::max(mn, mx);
    value_ = std::clamp(value_, min_, max_);
    notify();
}

void Slider::setValue(int v) { set(value_, std::clamp(v, min_, max_)); }

void Slider::Scroll(int v) {
    setValue(v);
    if (onScroll) onScroll();
}

const Picture& ImageList::ListImage(int index) const {
    auto it = pictures_.find(index);
    if (it == pictures_.end())
        throw RuntimeError(RuntimeError::InvalidPropertyIndex,
                           QStringLiteral("Index %1 out of bounds").arg(index));
    return it->second;
}

}  // namespace sonarium
