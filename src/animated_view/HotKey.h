#pragma once

namespace lurkwell {

/// Registers the keys that change between window and overlay wherever the keyboard is: the one of
/// the preference FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE (98, F7), alone and with the command
/// key. Main thread; once, at the start.
void SetUpHotKey();

/// What a press does.
void HotKeyFunc();

}  // namespace lurkwell
