#pragma once

#include <chrono>
#include <string>
#include <thread>

#include "channel/DaemonChannel.h"

namespace lurkwell {

/// Starts the helper at `path` as the user and opens a channel to it, without the rest of a launch;
/// closed when that does not come about in time.
inline void OpenChannel(const std::string& path) {
  using State = DaemonChannelOpening::State;
  const auto end = std::chrono::steady_clock::now() + gDaemonLimits.opening;
  DaemonChannelOpening opening;
  if (!opening.Start(path, nullptr)) return;
  auto state = opening.Advance();
  for (; state == State::kWaiting && std::chrono::steady_clock::now() < end;
       state = opening.Advance())
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  if (state == State::kOpen) opening.Take();
}

}  // namespace lurkwell
