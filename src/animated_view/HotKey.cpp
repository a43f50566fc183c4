#include "animated_view/HotKey.h"

#include "animated_view/flowcontrolfsm.h"
#include "platform/HotKeys.h"
#include "platform/Machine.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kF7 = 98;

}  // namespace

void SetUpHotKey() {
  const auto code = static_cast<std::uint32_t>(
      GetPrefInt("FULLSCREEN_QUIVA_HOTKEY_VIRTUAL_KEY_CODE", nullptr, true, kF7));
  for (const auto modifiers : {HotKeys::kNoModifiers, HotKeys::kCommandModifier})
    TheMachine().hotKeys.RegisterEventHotKey(code, modifiers, &HotKeyFunc);
}

void HotKeyFunc() {
  ToggleQuintessentialFullScreen();
}

}  // namespace lurkwell
