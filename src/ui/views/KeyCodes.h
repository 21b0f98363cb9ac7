#pragma once
// Qt's keys as the platform's key codes, which the models' key handlers test: F1 112 to F12
// 123, letters 65-90 (upper case whatever the shift state), digits 48-57 (keypad 96-105),
// Return 13, Escape 27, Space 32, Delete 46, Backspace 8, Tab 9, arrows 37-40, PageUp 33,
// PageDown 34, End 35, Home 36, Insert 45, Shift 16, Ctrl 17, Alt 18. 0 for other keys.
#include <Qt>

namespace sonarium {

int platformKeyCode(int qtKey, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

}  // namespace sonarium
