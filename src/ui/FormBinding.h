#pragma once
// Binds a window to its form model: caption, visibility (modal when the model shows it so),
// place, window state, mouse pointer and repaint requests follow the model; the window's
// events go to the model: a key pressed anywhere in the window to Form::KeyDown before the
// focused control sees it (a swallowed key goes no further), the window becoming the
// program's active form to Form::Activate, and the close request to Form::QueryUnload.
//
// Activation follows the platform's forms: it fires when the window becomes the active one
// among the program's forms, not when the user comes back from another program, nor when a
// message box of the program closes.
#include <QObject>
#include <QPoint>
#include <functional>

class QCloseEvent;
class QWidget;
class QWindow;

namespace sonarium {

class ErrorReporter;
class Form;

class FormBinding : public QObject {
public:
    // `fallbackCaption` is shown while the model's caption is empty.
    // Failures of the calls fed to the model go to `errors`.
    FormBinding(Form& form, QWidget& window, ErrorReporter& errors, QString fallbackCaption = {});
    ~FormBinding() override;

    // Reads the whole model again.
    void refresh();
    // The window system (or a signal) asks to close. The model decides: the window goes only
    // when the close request may go on and the model has hidden the window.
    void closeRequested(QCloseEvent& e);

    // Runs before each show: a window sets its flags and place here (flags must not change
    // while it is shown).
    std::function<void()> beforeShow;
    // Runs on each refresh: a window follows the model's size here.
    std::function<void()> onRefresh;
    // Where the window goes, in pixels, for a place the model sets; by default that place.
    std::function<QPoint(QPoint)> placeFilter;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void focusWindowChanged(QWindow* w);
    bool keyPressed(QObject* receiver, QEvent* event);
    void syncVisible();

    Form& form_;
    QWidget& window_;
    ErrorReporter& errors_;
    QString fallbackCaption_;
    int subscription_ = 0;
    int refreshes_ = 0;
    QPoint place_;         // the model's Left and Top (twips) last applied or reported
    bool active_ = false;  // this form is the program's active form
    bool syncing_ = false;
};

}  // namespace sonarium
