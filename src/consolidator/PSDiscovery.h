#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "consolidator/PSPrograms.h"
#include "platform/TimeValue.h"
#include "platform/Tools.h"

namespace lurkwell {

/// Finds out which columns ps can print: its keywords first, then the header of each. Nothing
/// becomes known before all has been told. What fails is said on standard error and done again
/// later. Main thread.
class PSDiscovery {
 public:
  /// The next steps, as far as they have come, without waiting. True when the columns have just
  /// become known.
  bool GoOn(TimeValue now);

  /// All steps, waiting for `limit` at most.
  void Await(std::chrono::milliseconds limit);

  /// ps has been asked and has not answered yet.
  bool IsUnderWay() const { return !mTools.empty(); }

  /// ps has told its columns, or that there are none.
  bool IsDone() const { return mStage == Stage::kDone; }

  void Clear() { *this = {}; }

 private:
  enum class Stage { kKeywords, kHeaders, kDone };

  void Begin(std::vector<std::string> options, const char* command, TimeValue now);
  void TakeKeywords(TimeValue now);
  void TakeHeaders();
  bool HaveAllEnded() const;
  /// False when the next step has to wait.
  bool Step(TimeValue now);
  void Fail(TimeValue now);

  Stage mStage = Stage::kKeywords;
  /// Empty between two attempts.
  std::vector<std::unique_ptr<RunningTool>> mTools;
  std::vector<std::string> mOptions;
  TimeValue mDeadline;
  GrowingRest mRest;
};

}  // namespace lurkwell
