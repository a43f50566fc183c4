#pragma once

#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// Signals to other processes, with the user's own rights. Main thread only.
class Signals {
 public:
  virtual ~Signals() = default;

  /// Sends `signal` to exactly that process: where a start stamp is given and the pid has passed
  /// to another process, nothing is sent. Pids below 2 are refused. True when it was sent.
  virtual bool Send(ProcessIdentity process, int signal) = 0;
};

}  // namespace lurkwell
