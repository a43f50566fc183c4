#include "consolidator/HelperQueries.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

#include "channel/DaemonCommunication.h"
#include "consolidator/PidReport.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/TextScan.h"

namespace lurkwell {
namespace {

constexpr std::string_view kHeader = "Lkw Info Extraction:\n";
constexpr int kMostQueuedPids = 7;
constexpr std::size_t kLongestText = 512;
constexpr std::size_t kBufferSize = 8192;
constexpr std::size_t kLongestProperty = 63;

/// The request being built and the answer read, used by this feeder only; the answer before it is
/// kept to see what is new.
char gQueryBuf[kBufferSize];
std::size_t gQueryLength = 0;
char gAnswerBuf[kBufferSize];
char gPreviousAnswerBuf[kBufferSize];

void AppendToQuery(std::string_view text) {
  std::memcpy(gQueryBuf + gQueryLength, text.data(), text.size());
  gQueryLength += text.size();
  gQueryBuf[gQueryLength] = '\0';
}

/// What the pass before left: where to begin, and the process whose answer was not waited for.
std::size_t gStart = 0;
std::int32_t gLatePid = kInvalidPID;
unsigned gLateGroups = 0;

void MarkUnknown(std::int32_t pid, unsigned groups) LURKWELL_IN_REGION {
  PidReport report(pid);
  for (const auto& row : FigureProperties())
    if ((row.group & groups) != 0) report.NoValue(row, Missing::kNotYetKnown);
}

}  // namespace

HelperQueries::HelperQueries() : mLateAnswer(DaemonConversation::TakeLateAnswer()) {
  Reset();
}

HelperQueries::~HelperQueries() {
  gStart = mNextStart;
}

void HelperQueries::Reset() {
  gQueryLength = 0;
  AppendToQuery(kHeader);
  mAsked.clear();
  mQueuedPids = 0;
  mPreviousAnswerLength = 0;
}

unsigned HelperQueries::Ask(std::int32_t pid, unsigned groups) {
  unsigned known = TakeLate(pid, groups);
  if (known != groups && IsItsTurn()) known |= AskNow(pid, groups);
  if (known != groups) MarkUnknown(pid, groups & ~known);
  return known;
}

bool HelperQueries::IsItsTurn() {
  return ++mCount > gStart && !mIsTimeOver;
}

unsigned HelperQueries::TakeLate(std::int32_t pid, unsigned groups) {
  if (pid != gLatePid || mLateAnswer.empty()) return 0;
  mAsked = {{pid, std::exchange(gLateGroups, 0) & groups}};
  gLatePid = kInvalidPID;
  mAnsweredGroups = 0;
  ReportAnswer(mLateAnswer);
  Reset();
  return mAnsweredGroups;
}

unsigned HelperQueries::AskNow(std::int32_t pid, unsigned groups) {
  mAnsweredGroups = 0;
  AppendLine(pid, groups);
  ++mQueuedPids;
  HandlePendingDaemonQueries();
  if (mQueuedPids > kMostQueuedPids || gQueryLength > kLongestText) {
    Reset();
  } else {
    mQueuedPids = 0;
  }
  return mAnsweredGroups;
}

void HelperQueries::AppendLine(std::int32_t pid, unsigned groups) {
  AppendToQuery("pid_internal");
  for (const auto& [group, word] : kFigureGroupWords)
    if ((groups & group) != 0) AppendToQuery(word);
  char number[16] = {' '};
  char* end = std::to_chars(number + 1, std::end(number) - 1, pid).ptr;
  *end++ = '\n';
  AppendToQuery({number, static_cast<std::size_t>(end - number)});
  mAsked.push_back({pid, groups});
}

void HelperQueries::HandlePendingDaemonQueries() {
  const auto length = mConversation.Query(gQueryBuf, gAnswerBuf, kBufferSize - 1);
  if (length == kDaemonAnswersLater || length == kDaemonNotAsked) {
    mIsTimeOver = true;
    const bool wasAsked = length == kDaemonAnswersLater;
    mNextStart = wasAsked ? mCount : mCount - 1;
    if (wasAsked) {
      gLatePid = mAsked.back().pid;
      gLateGroups = mAsked.back().groups;
    }
  }
  const std::string_view answer(gAnswerBuf, length > 0 ? std::strlen(gAnswerBuf) : std::size_t{0});
  // Figures that the last answer gave, letter for letter, are in the records already.
  const std::string_view previous(gPreviousAnswerBuf, mPreviousAnswerLength);
  ReportAnswer(answer.starts_with(previous) ? answer.substr(previous.size()) : answer);
  std::memcpy(gPreviousAnswerBuf, answer.data(), answer.size());
  mPreviousAnswerLength = answer.size();
}

void HelperQueries::ReportAnswer(std::string_view answer) {
  while (const auto line = ScanLine(answer)) ReportLine(*line);
}

void HelperQueries::ReportLine(std::string_view line) {
  const auto property = ScanWord(line).substr(0, kLongestProperty);
  const auto* row = FindBuiltInProperty(property);
  const auto pid = ScanInteger(line);
  if (row == nullptr || !pid || !std::in_range<std::int32_t>(*pid)) return;
  // A helper that has gone wrong must not write into other processes' records.
  const auto asked = std::ranges::find(mAsked, *pid, &Asked::pid);
  const unsigned group = row->group;
  if (asked == mAsked.end() || (asked->groups & group) == 0) return;
  if (asked->pid == mAsked.back().pid) mAnsweredGroups |= group;
  SkipBlanks(line);
  PidReport(asked->pid).Text(*row, line);
}

}  // namespace lurkwell
