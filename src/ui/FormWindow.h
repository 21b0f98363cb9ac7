#pragma once
// A plain window for a form: its controls' views on a surface of the form's size (Width and
// Height in twips), the window itself following the form model through a FormBinding.
#include <QWidget>
#include <memory>
#include <vector>

#include "ui/views/ViewFactory.h"

namespace sonarium {

class Control;
class Form;
class FormBinding;

class FormWindow : public QWidget {
public:
    // Failures of the calls that the window and its views feed to the models go to `errors`.
    FormWindow(Form& form, const std::vector<Control*>& controls, ErrorReporter& errors,
               QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::Window);
    ~FormWindow() override;

    Form& form() const { return form_; }
    QWidget* viewOf(const Control& c) const { return views_.viewOf(c); }

protected:
    void closeEvent(QCloseEvent* e) override;
    void paintEvent(QPaintEvent*) override;
    // Before each show; flags may change here.
    virtual void beforeShow() {}
    // The window's size for the model's Width and Height in pixels.
    virtual QSize sizeFor(int width, int height) const;
    // After each reading of the model.
    virtual void afterRefresh() {}
    FormBinding& binding() { return *binding_; }
    ViewFactory& views() { return views_; }

private:
    void followSize();

    Form& form_;
    ViewFactory views_;
    std::unique_ptr<FormBinding> binding_;
};

}  // namespace sonarium
