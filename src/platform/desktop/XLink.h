#pragma once

#include <chrono>
#include <future>
#include <memory>
#include <string>

#include "platform/desktop/XConnection.h"

namespace lurkwell {

/// One connection to an X server that may be slow, hang, or come and go: made in the background,
/// and tried for again at intervals. Main thread only.
class XLink {
 public:
  XLink(std::string display, std::chrono::milliseconds retryInterval);

  /// The connection, also one that has been lost; null while there is none.
  XConnection* Connection() const { return mConnection.get(); }

  /// Connects when there is no connection and it is time to try. The wait for a new try is half a
  /// second at most, less with `longestWait`; one that takes longer goes on, and a later call
  /// finds its result. Null while there is none.
  XConnection* Connect(std::chrono::milliseconds longestWait = std::chrono::milliseconds(500));

  /// Closes the connection, which gives back all that the server held for it; the next try is an
  /// interval away.
  void Drop();

 private:
  using Clock = std::chrono::steady_clock;

  std::string mDisplay;
  std::chrono::milliseconds mRetryInterval;
  Clock::time_point mNextTry{};
  std::future<std::unique_ptr<XConnection>> mOpening;
  std::unique_ptr<XConnection> mConnection;
};

}  // namespace lurkwell
