#pragma once

#include <QCache>
#include <chrono>
#include <cstdint>
#include <memory>
#include <utility>

#include "platform/IconServices.h"
#include "platform/desktop/DesktopProcessManager.h"

namespace lurkwell {

/// Icons from the icon theme, from files that desktop entries name, and from windows. Pictures are
/// kept, those that were asked for last up to 32 MB; a window's icon is read again when it has
/// changed, but not more than once a second. Needs a QGuiApplication; main thread only.
class DesktopIconServices final : public IconServices {
 public:
  /// `applications` must outlive it.
  explicit DesktopIconServices(DesktopProcessManager& applications);

  std::shared_ptr<const Picture> ApplicationIcon(ProcessSerialNumber psn, int size) override;

 private:
  using Clock = std::chrono::steady_clock;
  using Key = std::pair<std::uint64_t, int>;
  struct Kept {
    std::shared_ptr<const Picture> picture;
    DesktopProcessManager::IconSource source;
    bool isFromWindow = false;
    Clock::time_point made;
  };

  static bool IsUpToDate(const Kept& kept, const DesktopProcessManager::IconSource& source);
  Kept Make(ProcessSerialNumber psn, const DesktopProcessManager::IconSource& source, int size);

  DesktopProcessManager& mApplications;
  QCache<Key, Kept> mKept;
};

}  // namespace lurkwell
