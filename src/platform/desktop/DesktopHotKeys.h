#pragma once

#include <memory>

#include "platform/HotKeys.h"
#include "platform/desktop/DesktopSettings.h"

namespace lurkwell {

class GlobalShortcutsPortal;
class XKeyGrabs;

/// The desktop's hot keys: taken from the X server, or asked of the portal where windows are not
/// the X server's; none where windows are shown in some other way. Connects at the first key
/// that is wanted.
class DesktopHotKeys final : public HotKeys {
 public:
  enum class Source { kXServer, kPortal, kNone };

  explicit DesktopHotKeys(DesktopSettings settings);
  DesktopHotKeys(DesktopSettings settings, Source source);
  ~DesktopHotKeys() override;

  bool RegisterEventHotKey(std::uint32_t virtualKeyCode, std::uint32_t modifiers,
                           std::function<void()> pressed) override;
  std::string KeyName(std::uint32_t virtualKeyCode) const override;

 private:
  bool TakeFromServer(std::uint32_t symbol, bool withSuper, std::function<void()> pressed);
  bool AskPortal(std::uint32_t symbol, bool withSuper, std::function<void()> pressed);

  DesktopSettings mSettings;
  Source mSource;
  std::unique_ptr<XKeyGrabs> mGrabs;
  std::unique_ptr<GlobalShortcutsPortal> mPortal;
};

}  // namespace lurkwell
