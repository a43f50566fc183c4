#pragma once

#include <string>

namespace lurkwell {

/// Watches over the open channel (or the one that did not come about): when it is lost, helpers are
/// started in its place until one answers, 1, 2, 4 ... 60 seconds after the last failure. All of it
/// happens in short steps of a run-loop timer. Main thread.
void WatchDaemonChannel(const std::string& helperPath);

/// Ends that, and drops a helper that is just being started.
void UnwatchDaemonChannel();

}  // namespace lurkwell
