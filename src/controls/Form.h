#pragma once
// A window as the logic sees it: caption, visibility, size and place in twips, window state,
// mouse pointer, and the events of its life (load, activate, close request, unload, keys).
// A modal show is a wait, letting events run, until the window is hidden again.
#include "controls/Control.h"
#include "controls/EventLoop.h"

namespace sonarium {

enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };
enum MousePointer { DefaultPointer = 0, Hourglass = 11 };

class Form : public Control {
public:
    explicit Form(QString name) : Control(std::move(name)) { Control::setVisible(false); }

    const QString& Caption() const { return caption_; }
    void setCaption(const QString& c) { set(caption_, c); }
    WindowState windowState() const { return state_; }
    void setWindowState(WindowState s) { set(state_, s); }
    int MousePointer() const { return pointer_; }
    void setMousePointer(int p) { set(pointer_, p); }
    bool Loaded() const { return loaded_; }
    bool Modal() const { return modal_; }

    // Loads the form if it is not loaded yet (runs onLoad once).
    void Load();
    // Loads if needed, then shows. Modal: returns only when the form is hidden again.
    void Show(EventLoop& loop, bool modal = false);
    void Hide() { setVisible(false); }
    // Unloads: runs onUnload and marks the form not loaded; its window disappears.
    void Unload();
    // Asks the view to repaint at once (the platform's Refresh).
    void Refresh() { ++refreshes_, notify(); }
    int refreshes() const { return refreshes_; }

    std::function<void()> onLoad, onActivate, onUnload;
    // The close request from the window system; set cancel to keep the window.
    std::function<void(bool& cancel)> onQueryUnload;
    // Key events; a handler sets keyCode to 0 to swallow the key.
    std::function<void(int& keyCode, int shift)> onKeyDown;

    // Views call these.
    void Activate() {
        if (onActivate) onActivate();
    }
    bool KeyDown(int keyCode, int shift) {
        if (onKeyDown) onKeyDown(keyCode, shift);
        return keyCode == 0;  // swallowed
    }
    // The window system asks to close: returns true when the close may go on.
    bool QueryUnload() {
        bool cancel = false;
        if (onQueryUnload) onQueryUnload(cancel);
        return !cancel;
    }

private:
    QString caption_;
    WindowState state_ = WindowState::Normal;
    int pointer_ = DefaultPointer;
    bool loaded_ = false;
    bool loading_ = false;
    bool modal_ = false;
    int refreshes_ = 0;
};

}  // namespace sonarium
