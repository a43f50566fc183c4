#pragma once

#include <QKeySequence>
#include <cstdint>

namespace lurkwell {

/// The key that changes between the animated view's window and its overlay, as the preferences have
/// it. Main thread; a change counts from the next start.

/// Its number, as hot keys are registered by.
std::int32_t OverlayKeyCode();

/// The same for menus and texts; empty for a number that is no key.
QKeySequence OverlayKey();

}  // namespace lurkwell
