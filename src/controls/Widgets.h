#pragma once
// The simple control models: label, text box, combo box, check box, image, picture box,
// panel, slider, shape, image list.
#include <QStringList>
#include <map>

#include "controls/Control.h"
#include "controls/ListBox.h"
#include "controls/Picture.h"

namespace sonarium {

enum class Alignment { Left = 0, Right = 1, Center = 2 };

class Label : public Control {
public:
    using Control::Control;
    const QString& Caption() const { return caption_; }
    void setCaption(const QString& c) { set(caption_, c); }
    Alignment alignment() const { return align_; }
    void setAlignment(Alignment a) { set(align_, a); }

private:
    QString caption_;
    Alignment align_ = Alignment::Left;
};

class TextBox : public Control {
public:
    using Control::Control;
    const QString& Text() const { return text_; }
    // Setting the text fires the change event, as typing does. MaxLength cuts typed text only.
    void setText(const QString& t);
    int MaxLength() const { return maxLength_; }
    void setMaxLength(int n) { set(maxLength_, n); }
    bool Locked() const { return locked_; }
    void setLocked(bool l) { set(locked_, l); }
    bool MultiLine() const { return multiLine_; }
    void setMultiLine(bool m) { set(multiLine_, m); }

    std::function<void()> onChange;
    // The key press handler may change the key; 0 swallows it.
    std::function<void(int& keyAscii)> onKeyPress;
    // A typed character from the view: runs the key press handler, then edits the text.
    // Returns the key as the handler left it.
    int KeyPress(int keyAscii);

private:
    QString text_;
    int maxLength_ = 0;  // 0 = no limit
    bool locked_ = false;
    bool multiLine_ = false;
};

// A drop-down list. The list part behaves as a list box; Text is the shown text.
class ComboBox : public ListBox {
public:
    using ListBox::ListBox;
    QString Text() const { return index_ >= 0 ? List(index_) : text_; }
    void setText(const QString& t) { set(text_, t); }

private:
    QString text_;
};

// A check box; setting Value to another state fires the click. A graphical one shows Picture.
class CheckBox : public Control {
public:
    using Control::Control;
    int Value() const { return value_; }
    void setValue(int v);
    const QString& Caption() const { return caption_; }
    void setCaption(const QString& c) { set(caption_, c); }
    const Picture& picture() const { return picture_; }
    void setPicture(const Picture& p) { picture_ = p, notify(); }

private:
    int value_ = 0;
    QString caption_;
    Picture picture_;
};

// An image control. Without Stretch it takes the picture's own size (in twips); with Stretch
// the picture is drawn to the control's size.
class Image : public Control {
public:
    using Control::Control;
    const Picture& picture() const { return picture_; }
    void setPicture(const Picture& p);
    bool Stretch() const { return stretch_; }
    void setStretch(bool s) { set(stretch_, s); }

private:
    Picture picture_;
    bool stretch_ = false;
};

// A picture box: a picture background and text printed on it (Cls clears the printing and
// sends the print position back to the left edge). The printing starts at CurrentX (twips) in
// the box's font, whose size is in points.
class PictureBox : public Image {
public:
    using Image::Image;
    void Cls() { printed_.clear(), currentX_ = 0, notify(); }
    void Print(const QString& text) { printed_ += text, notify(); }
    const QString& printed() const { return printed_; }
    int CurrentX() const { return currentX_; }
    void setCurrentX(int twips) { set(currentX_, twips); }
    double FontSize() const { return fontSize_; }
    void setFontSize(double points) { set(fontSize_, points); }
    bool FontBold() const { return fontBold_; }
    void setFontBold(bool b) { set(fontBold_, b); }

private:
    QString printed_;
    int currentX_ = 0;
    double fontSize_ = 8;
    bool fontBold_ = false;
};

// A panel; a skin may give it a background picture, drawn from its top left corner.
class Panel : public Control {
public:
    using Control::Control;
    const QString& Caption() const { return caption_; }
    void setCaption(const QString& c) { set(caption_, c); }
    const Picture& picture() const { return picture_; }
    void setPicture(const Picture& p) { picture_ = p, notify(); }

private:
    QString caption_;
    Picture picture_;
};

// A command button with a caption (the skinned ones use an Image instead).
class CommandButton : public Panel {
public:
    using Panel::Panel;
};

// A slider's value always lies in its range: a value set outside it stands at the nearer end.
// Only the user's moves raise Scroll; the logic setting the value raises nothing.
class Slider : public Control {
public:
    using Control::Control;
    int Min() const { return min_; }
    int Max() const { return max_; }
    int Value() const { return value_; }
    void setRange(int mn, int mx);
    void setValue(int v);
    // Steps between ticks; 0 draws none.
    int TickFrequency() const { return tick_; }
    void setTickFrequency(int t) { set(tick_, t); }
    // The user moved the knob to `v` (the view calls this).
    void Scroll(int v);
    std::function<void()> onScroll;

private:
    int min_ = 0, max_ = 10, value_ = 0, tick_ = 0;
};

// Numbered pictures, from 1, as the image list keeps them.
class ImageList {
public:
    void Clear() { pictures_.clear(); }
    void Add(int index, const Picture& p) { pictures_[index] = p; }
    // Throws RuntimeError for an index never added.
    const Picture& ListImage(int index) const;
    int Count() const { return int(pictures_.size()); }

private:
    std::map<int, Picture> pictures_;
};

}  // namespace sonarium
