#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// Four characters that name a type or a creator.
using FourCharCode = std::array<char, 4>;

/// What the desktop knows of one application.
struct ApplicationInformation {
  std::string name;
  FourCharCode type = {' ', ' ', ' ', ' '};
  FourCharCode signature = {' ', ' ', ' ', ' '};
  std::uint32_t mode = 0;
};

/// The desktop's list of applications. Main thread only.
class ProcessManager {
 public:
  virtual ~ProcessManager() = default;

  /// The application after `previous` in the desktop's order, the first one after {0, 0}; nothing
  /// after the last. A serial number that has gone meanwhile ends the walk.
  virtual std::optional<ProcessSerialNumber> GetNextProcess(ProcessSerialNumber previous) = 0;

  /// What is known of an application; nothing when it has gone.
  virtual std::optional<ApplicationInformation> GetProcessInformation(ProcessSerialNumber psn) = 0;

  /// The kernel pid of an application; nothing when it has none or has gone.
  virtual std::optional<std::int32_t> GetProcessPID(ProcessSerialNumber psn) = 0;

  /// The serial number of the application that a kernel pid runs; nothing when it is none.
  virtual std::optional<ProcessSerialNumber> GetProcessForPID(std::int32_t pid) = 0;
};

}  // namespace lurkwell
