#pragma once

#include <cstdint>
#include <string>

#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// What tells a process to the person who is to decide about it, as it is at the moment.
struct ProcessDescription {
  ProcessIdentity process;
  /// The name of the user whose rights it has, or his number; "" when that is not known.
  std::string owner;
  /// Whether those are this program's user's.
  bool isOwn = false;
  /// A part of the kernel, which no signal ends or stops.
  bool isKernelThread = false;
  bool isStopped = false;
  std::int32_t nice = 0;
  /// Its arguments with blanks between them, any bytes; "" when it has none or they are not known.
  std::string commandLine;
};

}  // namespace lurkwell
