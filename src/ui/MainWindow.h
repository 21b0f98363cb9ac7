#pragma once
// The main window: the menu bar built from the form's menus, and below it the form's surface
// of 634 x 465 pixels holding every control's view. The window's height follows the model's
// Height: what shows of the surface is Height / 15 - 15 pixels, the rest is cut off (7200
// twips show it whole; the bar alone is 780). With no top-level menu visible the bar takes no
// room. The caption is the model's, or "Sonarium" while that is empty.
#include <QMainWindow>
#include <memory>

namespace sonarium {

class Control;
class Form1;
class FormBinding;
class MenuBarBinder;
class ViewFactory;

class MainWindow : public QMainWindow {
public:
    explicit MainWindow(Form1& form);
    ~MainWindow() override;

    // The same close path as the window's close button: the form's close request.
    void requestClose();

    QWidget* viewOf(const Control& c) const;
    QWidget& surface() const { return *surface_; }
    MenuBarBinder& menus() const { return *menus_; }

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void followSize();

    Form1& form_;
    QWidget* clip_;
    QWidget* surface_;
    std::unique_ptr<MenuBarBinder> menus_;
    std::unique_ptr<ViewFactory> views_;
    std::unique_ptr<FormBinding> binding_;
};

}  // namespace sonarium
