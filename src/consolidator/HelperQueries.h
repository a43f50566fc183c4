#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "channel/DaemonCommunication.h"
#include "consolidator/Region.h"

namespace lurkwell {

/// The requests for figures of one pass. The text of a request grows by a line per process and is
/// sent after each; it starts over once it is longer than 512 characters, so a request repeats the
/// lines of the processes before it. When the helper has used up the beat's time, the rest of the
/// pass asks nothing, and the next pass begins where this one ended. Main thread, inside the
/// consolidator's region; one at a time.
class HelperQueries {
 public:
  HelperQueries();
  ~HelperQueries();
  HelperQueries(const HelperQueries&) = delete;
  HelperQueries& operator=(const HelperQueries&) = delete;

  /// Asks for the groups (one at least) of a process and reports the answer. Those of which
  /// something came; the figures of the others are not known now.
  unsigned Ask(std::int32_t pid, unsigned groups) LURKWELL_IN_REGION;

 private:
  struct Asked {
    std::int32_t pid;
    unsigned groups;
  };

  bool IsItsTurn();
  unsigned TakeLate(std::int32_t pid, unsigned groups) LURKWELL_IN_REGION;
  unsigned AskNow(std::int32_t pid, unsigned groups) LURKWELL_IN_REGION;
  void Reset();
  void AppendLine(std::int32_t pid, unsigned groups);
  void HandlePendingDaemonQueries() LURKWELL_IN_REGION;
  void ReportAnswer(std::string_view answer) LURKWELL_IN_REGION;
  void ReportLine(std::string_view line) LURKWELL_IN_REGION;

  DaemonConversation mConversation;
  std::string mLateAnswer;
  /// How many processes the pass came by, and how many of them the next one leaves out.
  std::size_t mCount = 0;
  std::size_t mNextStart = 0;
  bool mIsTimeOver = false;
  std::vector<Asked> mAsked;
  int mQueuedPids = 0;
  /// Of the process that was asked for last.
  unsigned mAnsweredGroups = 0;
  std::size_t mPreviousAnswerLength = 0;
};

}  // namespace lurkwell
