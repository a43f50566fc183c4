#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "platform/desktop/WindowList.h"
#include "platform/desktop/XLink.h"

namespace lurkwell {

/// The X server as it comes and goes: connects when there is none, gives up one that is lost, and
/// tries again later. Never waits longer than a fraction of a second. Main thread only.
class XSession {
 public:
  XSession(std::string display, std::string hostName, std::chrono::milliseconds retryInterval);

  /// Takes in what is new; true when any window came, went or changed, or all of them went.
  bool Refresh();

  /// Null while there is no server; until the next refresh.
  XConnection* Connection() const { return mLink.Connection(); }
  WindowList* Windows() const { return mWindows.get(); }

 private:
  std::string mHostName;
  XLink mLink;
  std::unique_ptr<WindowList> mWindows;
};

}  // namespace lurkwell
