#include "platform/desktop/XSession.h"

#include <utility>

namespace lurkwell {

XSession::XSession(std::string display, std::string hostName,
                   std::chrono::milliseconds retryInterval)
    : mHostName(std::move(hostName)), mLink(std::move(display), retryInterval) {}

bool XSession::Refresh() {
  auto* connection = mLink.Connect();
  if (connection == nullptr) return false;
  if (!mWindows) mWindows = std::make_unique<WindowList>(*connection, mHostName);
  const bool changed = mWindows->Refresh();
  if (!connection->IsLost()) return changed;
  mWindows.reset();
  mLink.Drop();
  return true;
}

}  // namespace lurkwell
