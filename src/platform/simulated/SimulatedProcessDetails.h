#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/ProcessDetails.h"
#include "platform/simulated/AccessLog.h"
#include "platform/simulated/SimulatedProcessTable.h"

namespace lurkwell {

/// Answers from what a test has written down, at the first look.
class SimulatedProcessDetails final : public ProcessDetails {
 public:
  SimulatedProcessDetails(SimulatedProcessTable& table, AccessLog& log)
      : mTable(table), mLog(log) {}

  std::unique_ptr<DetailsReading> Begin(ProcessIdentity process, DetailsKind kind) override {
    mLog.Add("ProcessDetails.Begin " + std::to_string(process.pid) + " " +
             std::to_string(static_cast<int>(kind)));
    return std::make_unique<Reading>(*this, process, kind);
  }

  /// What is told of a process; where nothing stands there is nothing of the kind.
  DetailsAnswer& Of(std::int32_t pid, DetailsKind kind) { return mAnswers[{pid, kind}]; }
  void Tell(std::int32_t pid, DetailsKind kind, DetailsList list) {
    auto& answer = Of(pid, kind);
    answer.count =
        std::visit([](const auto& its) { return static_cast<std::int64_t>(its.size()); }, list);
    answer.list = std::move(list);
  }

  /// Nothing is answered while it is.
  bool isBusy = false;

 private:
  class Reading final : public DetailsReading {
   public:
    Reading(SimulatedProcessDetails& details, ProcessIdentity process, DetailsKind kind)
        : mDetails(details), mProcess(process), mKind(kind) {}
    std::optional<DetailsAnswer> Take() override {
      if (mDetails.isBusy || std::exchange(mIsTaken, true)) return std::nullopt;
      const auto* process = mDetails.mTable.Find(mProcess.pid);
      if (process == nullptr || process->entry.startStamp != mProcess.startStamp)
        return Without(DetailsState::kEnded);
      const auto answer = mDetails.mAnswers.find({mProcess.pid, mKind});
      if (answer == mDetails.mAnswers.end()) return Without(DetailsState::kNone);
      return answer->second;
    }

   private:
    static DetailsAnswer Without(DetailsState state) {
      DetailsAnswer answer;
      answer.state = state;
      return answer;
    }

    SimulatedProcessDetails& mDetails;
    ProcessIdentity mProcess;
    DetailsKind mKind;
    bool mIsTaken = false;
  };

  SimulatedProcessTable& mTable;
  AccessLog& mLog;
  std::map<std::pair<std::int32_t, DetailsKind>, DetailsAnswer> mAnswers;
};

}  // namespace lurkwell
