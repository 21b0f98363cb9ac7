#include "ui/views/ViewFactory.h"

#include "controls/DataGrid.h"
#include "controls/DirListBox.h"
#include "controls/DriveListBox.h"
#include "controls/FileListBox.h"
#include "controls/Widgets.h"
#include "ui/views/CheckBoxView.h"
#include "ui/views/ComboBoxView.h"
#include "ui/views/CommandButtonView.h"
#include "ui/views/DataGridView.h"
#include "ui/views/DirListView.h"
#include "ui/views/DriveListView.h"
#include "ui/views/FileListView.h"
#include "ui/views/ImageButtonView.h"
#include "ui/views/ImageView.h"
#include "ui/views/LabelView.h"
#include "ui/views/ListBoxView.h"
#include "ui/views/PanelView.h"
#include "ui/views/RichTextView.h"
#include "ui/views/SliderView.h"
#include "ui/views/TextBoxView.h"
#include "ui/views/ToolbarView.h"

namespace sonarium {

namespace {

template <class View, class Model>
QWidget* made(Model& model, ErrorReporter& errors, QWidget* parent) {
    auto* v = new View(model, errors, parent);
    v->refresh();
    return v;
}

// Most derived kinds first: a command button is a panel, a combo box a list box, a picture
// box an image.
QWidget* viewFor(Control& c, ErrorReporter& errors, QWidget* parent) {
    if (auto* m = dynamic_cast<DataGrid*>(&c)) return made<DataGridView>(*m, errors, parent);
    if (auto* m = dynamic_cast<RichTextBox*>(&c)) return made<RichTextView>(*m, errors, parent);
    if (auto* m = dynamic_cast<Toolbar*>(&c)) return made<ToolbarView>(*m, errors, parent);
    if (auto* m = dynamic_cast<CommandButton*>(&c)) return made<CommandButtonView>(*m, errors, parent);
    if (auto* m = dynamic_cast<Panel*>(&c)) return made<PanelView>(*m, errors, parent);
    if (auto* m = dynamic_cast<Image*>(&c)) {
        const bool button = !m->ToolTipText().trimmed().isEmpty() && !dynamic_cast<PictureBox*>(m);
        return button ? made<ImageButtonView>(*m, errors, parent) : made<ImageView>(*m, errors, parent);
    }
    if (auto* m = dynamic_cast<ComboBox*>(&c)) return made<ComboBoxView>(*m, errors, parent);
    if (auto* m = dynamic_cast<ListBox*>(&c)) return made<ListBoxView>(*m, errors, parent);
    if (auto* m = dynamic_cast<Label*>(&c)) return made<LabelView>(*m, errors, parent);
    if (auto* m = dynamic_cast<TextBox*>(&c)) return made<TextBoxView>(*m, errors, parent);
    if (auto* m = dynamic_cast<CheckBox*>(&c)) return made<CheckBoxView>(*m, errors, parent);
    if (auto* m = dynamic_cast<Slider*>(&c)) return made<SliderView>(*m, errors, parent);
    if (auto* m = dynamic_cast<DriveListBox*>(&c)) return made<DriveListView>(*m, errors, parent);
    if (auto* m = dynamic_cast<DirListBox*>(&c)) return made<DirListView>(*m, errors, parent);
    if (auto* m = dynamic_cast<FileListBox*>(&c)) return made<FileListView>(*m, errors, parent);
    return nullptr;  // timers, forms
}

}  // namespace

void ViewFactory::build(const std::vector<Control*>& controls) {
    for (Control* c : controls) make(*c);
}

QWidget* ViewFactory::make(Control& c) {
    if (auto it = views_.find(&c); it != views_.end()) return it->second;
    views_[&c] = nullptr;  // a container loop ends here instead of recursing for ever
    QWidget* parent = &surface_;
    if (Control* container = c.Container()) {
        if (QWidget* v = make(*container)) parent = v;
    }
    QWidget* view = viewFor(c, errors_, parent);
    views_[&c] = view;
    return view;
}

QWidget* ViewFactory::viewOf(const Control& c) const {
    auto it = views_.find(&c);
    return it != views_.end() ? it->second : nullptr;
}

}  // namespace sonarium
