#include "main_window/OverlayKey.h"

#include <QString>

#include "platform/HotKeys.h"
#include "platform/Machine.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kF7 = 98;

}  // namespace

std::int32_t OverlayKeyCode() {
  return GetPrefInt("FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE", nullptr, true, kF7);
}

QKeySequence OverlayKey() {
  const auto code = static_cast<std::uint32_t>(OverlayKeyCode());
  return QKeySequence::fromString(QString::fromStdString(TheMachine().hotKeys.KeyName(code)));
}

}  // namespace lurkwell
