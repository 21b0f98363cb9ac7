#include "controls/Form.h"

namespace sonarium {

void Form::Load() {
    if (loaded_ || loading_) return;
    loading_ = true;
    if (onLoad) onLoad();
    loading_ = false;
    loaded_ = true;
}

void Form::Show(EventLoop& loop, bool modal) {
    Load();
    modal_ = modal;
    setVisible(true);
    if (modal) {
        loop.waitUntil([this] { return !Visible(); });
        modal_ = false;
    }
}

void Form::Unload() {
    if (!loaded_) {
        setVisible(false);
        return;
    }
    if (onUnload) onUnload();
    loaded_ = false;
    setVisible(false);
}

}  // namespace sonarium
