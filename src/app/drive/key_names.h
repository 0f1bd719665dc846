#pragma once
// The key names of the driver's `key` command and the key codes the handlers see.

#include <QString>
#include <optional>

namespace mk::drive {

struct KeyStroke {
    int KeyCode = 0;
    int Shift = 0;  // vbShiftMask, vbCtrlMask, vbAltMask added together
};

// "F1" … "F12", "Esc", "Enter", "PageUp", "PageDown", "Home", "End", "Back", "Tab",
// "Space", "Delete", "Left", "Up", "Right", "Down", or one character; any of them after
// "Shift+", "Ctrl+" or "Alt+". A letter gives its capital's code, as the old key codes did.
std::optional<KeyStroke> keyStroke(const QString& name);

}  // namespace mk::drive
