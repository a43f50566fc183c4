#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Clock.h"
#include "platform/RunLoop.h"
#include "platform/Tools.h"

namespace lurkwell {

/// How long something that failed is left alone: 2 seconds, then twice as long each time, up to a
/// minute.
class GrowingRest {
 public:
  bool IsOver(TimeValue now) const { return now >= mEnd; }
  /// The seconds of the rest that begins.
  int Begin(TimeValue now);

 private:
  int mSeconds = 1;
  TimeValue mEnd;
};

/// The runs of ps, one a column, that are under way between the heartbeats. A run may take a
/// second. A column whose run took longer rests, and so standard error says. Main thread.
class PSPrograms {
 public:
  struct Output {
    std::string header;
    ToolOutput printed;
  };

  /// Whether a run for the column may begin: none is under way, and it does not rest.
  bool MayStart(std::string_view header, TimeValue now) const;

  /// Starts it as soon as few enough run.
  void Start(std::string header, std::string commandLine);

  /// Serves them until all have ended, for `limit` at most.
  void Await(std::chrono::milliseconds limit);

  /// Some run, or wait for their turn; their ends are looked for with TakeEnded.
  bool AreUnderWay() const { return !mRuns.empty(); }

  /// What has ended, has been given up or could not be started since the last call.
  std::vector<Output> TakeEnded();

  void Clear();

 private:
  struct Run {
    std::string header;
    std::string commandLine;
    /// Null before its start and after its end.
    std::unique_ptr<RunningTool> tool;
    TimeValue deadline;
  };

  void Serve();
  void StartWaiting(TimeValue now);
  void NoteEnd(Run& run, TimeValue now);

  /// In the order of their start; those without a tool wait for theirs.
  std::vector<Run> mRuns;
  std::vector<Output> mEnded;
  std::map<std::string, GrowingRest, std::less<>> mRests;
  bool mSaidNothingStarts = false;
};

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

// ---- Main thread only
inline PSDiscovery gPSDiscovery;
inline PSPrograms gPSPrograms;
/// Looks after what ps has been asked, between the heartbeats; null when that is nothing.
inline std::unique_ptr<RunLoopTimer> gPSTimer;
/// A heartbeat has had news of ps columns, of which only due clients know so far.
inline bool gPSHasNews = false;

}  // namespace lurkwell
