#pragma once

#include <signal.h>

#include <system_error>
#include <thread>
#include <utility>

namespace lurkwell {

/// Starts a thread that no signal interrupts. One that cannot be joined when the system has none to
/// spare.
std::thread StartWithoutSignals(auto body) {
  sigset_t all;
  sigset_t before;
  ::sigfillset(&all);
  ::pthread_sigmask(SIG_SETMASK, &all, &before);
  std::thread thread;
  try {
    thread = std::thread(std::move(body));
  } catch (const std::system_error&) {
    // The caller does without.
  }
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  return thread;
}

}  // namespace lurkwell
