#include "platform/desktop/XSession.h"

#include <pthread.h>
#include <signal.h>

#include <thread>

namespace lurkwell {
namespace {

constexpr std::chrono::milliseconds kLongestWaitForConnection{500};

/// The thread's owner may be gone before a server that hangs lets it end, and nothing can end it
/// sooner; so it owns all it uses. It takes no signals, which are for the others to handle.
std::future<std::unique_ptr<XConnection>> OpenInBackground(const std::string& display) {
  std::promise<std::unique_ptr<XConnection>> promise;
  auto future = promise.get_future();
  sigset_t all;
  sigset_t before;
  ::sigfillset(&all);
  ::pthread_sigmask(SIG_SETMASK, &all, &before);
  try {
    std::thread([promise = std::move(promise), display]() mutable {
      promise.set_value(XConnection::Open(display));
    }).detach();
  } catch (const std::system_error&) {
    // No threads left: the promise is broken, which counts as no server.
  }
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  return future;
}

}  // namespace

XSession::XSession(std::string display, std::string hostName,
                   std::chrono::milliseconds retryInterval)
    : mDisplay(std::move(display)), mHostName(std::move(hostName)), mRetryInterval(retryInterval) {}

bool XSession::Refresh() {
  if (!mConnection) TryToConnect();
  if (!mConnection) return false;
  const bool changed = mWindows->Refresh();
  if (!mConnection->IsLost()) return changed;
  mWindows.reset();
  mConnection.reset();
  mNextTry = Clock::now() + mRetryInterval;
  return true;
}

void XSession::TryToConnect() {
  auto wait = std::chrono::milliseconds::zero();
  if (!mOpening.valid()) {
    if (Clock::now() < mNextTry) return;
    mOpening = OpenInBackground(mDisplay);
    wait = kLongestWaitForConnection;
  }
  if (mOpening.wait_for(wait) != std::future_status::ready) return;
  try {
    mConnection = mOpening.get();
  } catch (const std::future_error&) {
    mConnection = nullptr;
  }
  mNextTry = Clock::now() + mRetryInterval;
  if (mConnection) mWindows = std::make_unique<WindowList>(*mConnection, mHostName);
}

}  // namespace lurkwell
