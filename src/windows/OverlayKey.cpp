#include "windows/OverlayKey.h"

#include <QString>

#include "platform/HotKeys.h"
#include "platform/Machine.h"
#include "preferences/Settings.h"

namespace lurkwell {
std::int32_t OverlayKeyCode() {
  return ReadInt("FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE");
}

QKeySequence OverlayKey() {
  const auto code = static_cast<std::uint32_t>(OverlayKeyCode());
  return QKeySequence::fromString(QString::fromStdString(TheMachine().hotKeys.KeyName(code)));
}

}  // namespace lurkwell
