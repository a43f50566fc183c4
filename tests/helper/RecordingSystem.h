#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "helper/System.h"

namespace lurkwell::helper::testing {

/// A machine that exists in memory and writes down what is done to it. One at a time.
class RecordingSystem {
 public:
  struct Process {
    std::uint64_t start = 1000;
    std::string name = "canary";
    /// The rest of a stat line's fields, by their number.
    std::map<int, std::string> fields = {};
    std::string status = {};
    std::string io = {};
    /// The stat file as it stands, in place of a line of the above.
    std::string stat = {};
  };

  RecordingSystem();
  const System& Calls() const;

  std::map<std::int32_t, Process> processes;
  std::string machineStat = "cpu  1 2 3 1234 56 7 8\n";
  int signalError = 0, niceError = 0;
  /// Each signal and change of a nice value: "signal 12 15", "nice 12 -5".
  std::vector<std::string> effects;
  std::vector<std::string> log;
  /// Each file opened, and how many descriptors are open now.
  std::vector<std::string> opened;
  std::map<int, std::string> open;
  /// Called in front of each effect.
  void (*beforeEffect)(RecordingSystem&) = nullptr;
};

}  // namespace lurkwell::helper::testing
