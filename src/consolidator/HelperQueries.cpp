#include "consolidator/HelperQueries.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

#include "consolidator/PidReport.h"
#include "consolidator/TextScan.h"
#include "process_control/DaemonCommunication.h"

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

unsigned GroupOf(const CatalogueRow& row) {
  if (row.name == "pid_user_time" || row.name == "pid_system_time") return kThreadTime;
  if (std::holds_alternative<std::int64_t PidBlock::*>(row.field) &&
      row.type == kPropertyTypeInteger)
    return kEventsInfo;
  if (row.type == kPropertyTypeMemory || row.type == kPropertyTypeTime ||
      row.name == "pid_suspend_count" || row.name == "pid_policy")
    return kBasicInfo;
  return 0;
}

}  // namespace

HelperQueries::HelperQueries() {
  Reset();
}

void HelperQueries::Reset() {
  gQueryLength = 0;
  AppendToQuery(kHeader);
  mAsked.clear();
  mQueuedPids = 0;
  mPreviousAnswerLength = 0;
}

unsigned HelperQueries::Ask(std::int32_t pid, unsigned groups) {
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
  if (groups & kThreadTime) AppendToQuery("_thread_time");
  if (groups & kBasicInfo) AppendToQuery("_basic_info");
  if (groups & kEventsInfo) AppendToQuery("_events_info");
  char number[16] = {' '};
  char* end = std::to_chars(number + 1, std::end(number) - 1, pid).ptr;
  *end++ = '\n';
  AppendToQuery({number, static_cast<std::size_t>(end - number)});
  mAsked.push_back({pid, groups});
}

void HelperQueries::HandlePendingDaemonQueries() {
  const auto length = QueryDaemon(gQueryBuf, gAnswerBuf, kBufferSize - 1);
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
  const unsigned group = GroupOf(*row);
  if (asked == mAsked.end() || (asked->groups & group) == 0) return;
  if (asked->pid == mAsked.back().pid) mAnsweredGroups |= group;
  SkipBlanks(line);
  PidReport(asked->pid).Text(*row, line);
}

}  // namespace lurkwell
