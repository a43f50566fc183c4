#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <string>

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
  HotKeyState State() const override { return mState; }

 private:
  bool TakeFromServer(std::uint32_t symbol, bool withSuper, std::function<void()> pressed);
  bool AskPortal(std::uint32_t symbol, bool withSuper, std::function<void()> pressed);
  /// Prints why there is none, and keeps how it stands with the plain key.
  void Complain(const std::string& key, const std::string& reason, HotKeyStanding standing,
                bool isPlain = true);

  DesktopSettings mSettings;
  Source mSource;
  std::unique_ptr<XKeyGrabs> mGrabs;
  std::unique_ptr<GlobalShortcutsPortal> mPortal;
  /// By which the portal knows the plain key.
  QString mPortalId;
  HotKeyState mState;
};

}  // namespace lurkwell
