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
  /// At start-up, when the windows want to know the columns: all steps, waiting for `limit` at
  /// most.
  void Run(std::chrono::milliseconds limit);

  /// The next step, as far as it has come, without waiting.
  void GoOn(TimeValue now);

  void Clear() { *this = {}; }

 private:
  enum class Stage { kKeywords, kHeaders, kDone };

  void Begin(std::vector<std::string> options, const char* command, TimeValue now);
  void TakeKeywords(TimeValue now);
  void TakeHeaders();
  bool HaveAllEnded() const;
  void Fail(TimeValue now);

  Stage mStage = Stage::kKeywords;
  /// Empty between two attempts.
  std::vector<std::unique_ptr<RunningTool>> mTools;
  std::vector<std::string> mOptions;
  TimeValue mDeadline;
  GrowingRest mRest;
};

}  // namespace lurkwell
