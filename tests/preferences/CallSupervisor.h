#pragma once

#include <cstddef>
#include <functional>

namespace lurkwell {

/// What happens to one system call of a supervised child. A positive number is the error it fails
/// with, without having been made.
enum CallAnswer : int {
  kLetItPass = 0,
  kKillBefore = -1,  ///< SIGKILL; the call is not made
  kWriteLess = -2,   ///< a write of more than one byte writes a third; other calls pass
};

struct SupervisedEnd {
  std::size_t calls = 0;  ///< how many calls were counted
  int exit = 0;           ///< as ExitOf gives it
};

/// Runs `body` in a forked child whose every system call first asks `answer`, with the running
/// number of the call (from 0) and its kind. Memory management, waiting, signals and the end of the
/// program do not ask. Needs a kernel with system-call notification.
SupervisedEnd Supervise(const std::function<int()>& body,
                        const std::function<int(std::size_t index, int kind)>& answer);

/// In the child: calls up to the next ToggleSupervision pass and are not counted.
void ToggleSupervision();

}  // namespace lurkwell
