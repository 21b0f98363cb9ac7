#include "ui/views/KeyCodes.h"

namespace sonarium {

int platformKeyCode(int key, Qt::KeyboardModifiers modifiers) {
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return 112 + (key - Qt::Key_F1);
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return 65 + (key - Qt::Key_A);
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return (modifiers & Qt::KeypadModifier ? 96 : 48) + (key - Qt::Key_0);
    switch (key) {
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter: return 13;
    case Qt::Key_Shift: return 16;
    case Qt::Key_Control: return 17;
    case Qt::Key_Alt: return 18;
    case Qt::Key_Pause: return 19;
    case Qt::Key_Escape: return 27;
    case Qt::Key_Space: return 32;
    case Qt::Key_PageUp: return 33;
    case Qt::Key_PageDown: return 34;
    case Qt::Key_End: return 35;
    case Qt::Key_Home: return 36;
    case Qt::Key_Left: return 37;
    case Qt::Key_Up: return 38;
    case Qt::Key_Right: return 39;
    case Qt::Key_Down: return 40;
    case Qt::Key_Insert: return 45;
    case Qt::Key_Delete: return 46;
    default: return 0;
    }
}

}  // namespace sonarium
