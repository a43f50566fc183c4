#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace lurkwell {

/// What the helper can tell of a process, in groups that are asked for as a whole.
enum FigureGroup : unsigned {
  kThreadTime = 1,  ///< CPU time of live threads
  kBasicInfo = 2,   ///< sizes, suspend count, CPU time of ended threads, scheduling policy
  kEventsInfo = 4,  ///< counters of faults, messages, system calls, context switches
};

/// The requests for figures of one pass. The text of a request grows by a line per process and is
/// sent after each; it starts over once it is longer than 512 characters, so a request repeats the
/// lines of the processes before it. Main thread, inside the consolidator's region.
class HelperQueries {
 public:
  HelperQueries();

  /// Asks for the groups (one at least) of a process and reports the answer. Those of which
  /// something came.
  unsigned Ask(std::int32_t pid, unsigned groups);

 private:
  struct Asked {
    std::int32_t pid;
    unsigned groups;
  };

  void Reset();
  void AppendLine(std::int32_t pid, unsigned groups);
  void HandlePendingDaemonQueries();
  void ReportAnswer(std::string_view answer);
  void ReportLine(std::string_view line);

  std::vector<Asked> mAsked;
  int mQueuedPids = 0;
  /// Of the process that was asked for last.
  unsigned mAnsweredGroups = 0;
  std::size_t mPreviousAnswerLength = 0;
};

}  // namespace lurkwell
