#include "platform/desktop/XLink.h"

#include <pthread.h>
#include <signal.h>

#include <thread>
#include <utility>

namespace lurkwell {
namespace {

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

XLink::XLink(std::string display, std::chrono::milliseconds retryInterval)
    : mDisplay(std::move(display)), mRetryInterval(retryInterval) {}

XConnection* XLink::Connect(std::chrono::milliseconds longestWait) {
  if (mConnection) return mConnection.get();
  auto wait = std::chrono::milliseconds::zero();
  if (!mOpening.valid()) {
    if (Clock::now() < mNextTry) return nullptr;
    mOpening = OpenInBackground(mDisplay);
    wait = longestWait;
  }
  if (mOpening.wait_for(wait) != std::future_status::ready) return nullptr;
  try {
    mConnection = mOpening.get();
  } catch (const std::future_error&) {
    mConnection = nullptr;
  }
  mNextTry = Clock::now() + mRetryInterval;
  return mConnection.get();
}

void XLink::Drop() {
  mConnection.reset();
  mNextTry = Clock::now() + mRetryInterval;
}

}  // namespace lurkwell
