#include "animated_view/HotKey.h"

#include "animated_view/flowcontrolfsm.h"
#include "platform/HotKeys.h"
#include "platform/Machine.h"
#include "windows/OverlayKey.h"

namespace lurkwell {
void SetUpHotKey() {
  const auto code = static_cast<std::uint32_t>(OverlayKeyCode());
  for (const auto modifiers : {HotKeys::kNoModifiers, HotKeys::kCommandModifier})
    TheMachine().hotKeys.RegisterEventHotKey(code, modifiers, &HotKeyFunc);
}

void HotKeyFunc() {
  ToggleQuintessentialFullScreen();
}

}  // namespace lurkwell
