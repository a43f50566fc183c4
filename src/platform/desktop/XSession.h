#pragma once

#include <chrono>
#include <future>
#include <memory>
#include <string>

#include "platform/desktop/WindowList.h"
#include "platform/desktop/XConnection.h"

namespace lurkwell {

/// The X server as it comes and goes: connects when there is none, gives up one that is lost, and
/// tries again later. Never waits longer than a fraction of a second. Main thread only.
class XSession {
 public:
  XSession(std::string display, std::string hostName, std::chrono::milliseconds retryInterval);

  /// Takes in what is new; true when any window came, went or changed, or all of them went.
  bool Refresh();

  /// Null while there is no server; until the next refresh.
  XConnection* Connection() const { return mConnection.get(); }
  WindowList* Windows() const { return mWindows.get(); }

 private:
  using Clock = std::chrono::steady_clock;

  void TryToConnect();

  std::string mDisplay;
  std::string mHostName;
  std::chrono::milliseconds mRetryInterval;
  Clock::time_point mNextTry{};
  std::future<std::unique_ptr<XConnection>> mOpening;
  std::unique_ptr<XConnection> mConnection;
  std::unique_ptr<WindowList> mWindows;
};

}  // namespace lurkwell
