#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "consolidator/PI_Consolidator.h"
#include "recording/RecordedProcessTable.h"
#include "recording/RecordedRunLoop.h"
#include "recording/RecordedServices.h"
#include "recording/Recorder.h"
#include "support/MachineOf.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {

/// A recording that has to be one.
inline std::unique_ptr<Recording> OpenRecording(const std::string& path) {
  auto opened = Recording::Open(path);
  if (auto* recording = std::get_if<std::unique_ptr<Recording>>(&opened))
    return std::move(*recording);
  ADD_FAILURE() << std::get<std::string>(opened);
  return nullptr;
}

/// Why a file is no recording that can be read; empty when it is one.
inline std::string RefusalToRead(const std::string& path) {
  const auto opened = Recording::Open(path);
  const auto* words = std::get_if<std::string>(&opened);
  return words == nullptr ? "" : *words;
}

/// The same of one that can be recorded to.
inline std::string RefusalToRecord(const std::string& path) {
  const auto opened = RecordingFile::Open(path, {"test", "host", "boot", 2000});
  const auto* words = std::get_if<std::string>(&opened);
  return words == nullptr ? "" : *words;
}

/// The simulated machine with a recording in the place of its processes and its time.
class ReplayedMachine {
 public:
  ReplayedMachine(SimulatedMachine& simulated, std::unique_ptr<Recording> recording)
      : player(std::move(recording)),
        services(MachineOf(simulated, player.Clock(), runLoop, processTable, hostStatistics, tools,
                           costlyFigures)) {}

  RecordingPlayer player;
  RecordedRunLoop runLoop{player, [this] { return player.Next(); }};
  RecordedProcessTable processTable{player};
  RecordedHostStatistics hostStatistics{player};
  NoTools tools;
  UnrecordedFigures costlyFigures;
  Machine services;
};

/// What clients are shown of the recorded properties, and of those that follow from them; a text
/// for each turn, a line for each process, the lines in order.
class ShownClient final : public ProcessInformationClient {
 public:
  ShownClient(std::int32_t interval, std::vector<std::string>& turns)
      : ProcessInformationClient(nullptr, interval), mTurns(turns) {}

  NeedLevel NeedPidsForProcProperty(const char*) override { return kNeedAllPids; }
  bool NeedPidProcProperty(int, const char*) override { return true; }
  void NotifyProcessesHaveBeenUpdated() override {
    std::set<std::string> lines;
    for (const auto pid : PidBlob(kPidBlobAll)) {
      if (pid < 0) continue;
      auto line = std::to_string(pid) + " " + std::to_string(GetPidsStartStamp(pid));
      const auto add = [&](const char* property) {
        line += std::string(" ") + property + "=" + Text(pid, property);
      };
      for (const auto name : kRecordedNumbers)
        if (name != "run_state") add(name.data());
      for (const auto name : kRecordedTexts) add(name.data());
      for (const char* name : {"meta_name", "meta_active_time", "pid_cpu_share",
                               "pid_disk_read_rate", "pid_write_rate"})
        add(name);
      lines.insert(line + "\n");
    }
    auto& turn = mTurns.emplace_back();
    for (const auto& line : lines) turn += line;
  }

 private:
  struct InText {
    std::string operator()(Missing why) const {
      return "?" + std::to_string(static_cast<int>(why));
    }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return std::to_string(number); }
    std::string operator()(TimeValue time) const { return std::to_string(MicrosecondsOf(time)); }
    std::string operator()(const std::string& text) const { return text; }
  };

  static std::string Text(std::int32_t pid, const char* property) {
    return std::visit(InText(), GetPIDPropertyValueForOutput(pid, property));
  }

  std::vector<std::string>& mTurns;
};

}  // namespace lurkwell
