#include <algorithm>
#include <chrono>
#include <cstdint>
#include <string_view>
#include <utility>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/Feeders.h"
#include "consolidator/PSHeaders.h"
#include "consolidator/PSPrograms.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/ProcessReports.h"
#include "consolidator/TextScan.h"
#include "consolidator/TypedValue.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"

namespace lurkwell {
namespace {

using Client = ProcessInformationClient;

constexpr char kFeederUnit[] = "ProcessInformationFeederPS";

constexpr double kSecondsBetweenLooks = 0.02;

constexpr std::size_t kLongestKeywordList = 1023;
constexpr std::size_t kLongestKeyword = 255;
constexpr std::size_t kLongestPrintedHeader = 63;
constexpr std::size_t kLongestHeaderLine = 1023;
constexpr std::size_t kLongestValue = 1023;

/// For how long a pass waits for the runs that it has begun.
std::chrono::milliseconds gPatience{0};
bool gPSIsLeftOut = false;

/// Splits at single blanks: two in a row yield an empty word between them.
void AppendWords(std::string_view line, std::vector<std::string>& list) {
  while (!line.empty()) {
    const auto blank = line.find(' ');
    list.emplace_back(line.substr(0, blank).substr(0, kLongestKeyword));
    if (blank == std::string_view::npos) return;
    line.remove_prefix(blank + 1);
  }
}

/// Begins a run for each column that clients need: those that are due at `dueAt`, or all for null.
void StartNeededColumns(TimeValue now, const TimeValue* dueAt) LURKWELL_IN_REGION {
  auto clients = Client::DueClients(dueAt);
  std::erase_if(clients, [](Client* client) { return client->NeedsOnlyBirths(); });
  if (clients.empty()) return;
  const int count = GetPSHeaderCount();
  for (int i = 0; i < count; ++i) {
    const auto& known = gPSHeaders.Nth(i);
    const char* header = known.keyword.c_str();
    // Nothing is derived from a column of ps, so that each client is asked for it alone.
    const bool isNeeded = std::ranges::any_of(clients, [header](Client* client) {
      return client->NeedPidsForProcProperty(header) != Client::kNeedNoPids;
    });
    // The pid is the first column of every run anyway.
    if (!isNeeded || known.keyword == "PID") continue;
    Require(GetNthPSHeadersGeneratingOptionCount(i) > 0, kFeederUnit,
            "GetNthPSHeadersGeneratingOptionCount(i) > 0");
    // The values of the run before are the newest there can be.
    if (known.hasNewestValues) EnsureThatPSProcPropertyExists(header, nullptr);
    if (!gPSPrograms.MayStart(header, now)) continue;
    char option[kLongestKeyword + 1];
    GetNthPSHeadersNthGeneratingOption(i, 0, option, sizeof option);
    gPSPrograms.Start(header, std::string("/bin/ps -axww -o pid,") + option);
  }
}

/// The column header as ps prints it above the values, which is the property's name.
std::string HeaderOf(std::string_view line) {
  line = line.substr(0, kLongestHeaderLine);
  ScanWord(line);
  return std::string(ScanWord(line).substr(0, kLongestPrintedHeader));
}

/// The clients that need a column for some processes and have to be asked for each.
struct ColumnNeed {
  Client::NeedLevel level = Client::kNeedNoPids;
  Client::Clients clients;
};

/// Whether a client is due now says nothing: the output was asked for by those that were due when
/// its run began.
ColumnNeed NeedOf(const char* header) {
  ColumnNeed need;
  for (auto* client : Client::DueClients(nullptr)) {
    const auto level = client->NeedPidsForProcProperty(header);
    need.level = Client::AggregateNeedLevels(need.level, level);
    if (level != Client::kNeedNoPids) need.clients.push_back(client);
  }
  return need;
}

/// Whether there was a value.
bool ReportLine(std::string_view line, const std::string& header, const ColumnNeed& need) {
  const auto pid = ScanInteger(line).value_or(0);
  if (pid <= 0 || !std::in_range<std::int32_t>(pid)) return false;
  const auto narrow = static_cast<std::int32_t>(pid);
  if (need.level != Client::kNeedAllPids &&
      !Client::NeedAnyPidProcProperty(narrow, header.c_str(), need.clients)) {
    TouchProcessInformationForPID(narrow, kInformationKindPS);
    return false;
  }
  SkipBlanks(line);
  const std::string value(line.substr(0, kLongestValue));
  ReportProcessInformationForPID(narrow, header.c_str(), value.c_str());
  return true;
}

/// One column's output: a header line, then a line per process. The newline stays in the value.
/// False when there was no value in it.
bool PSExtractProcessInformationForField(std::string_view output) LURKWELL_IN_REGION {
  const auto nextLine = [&output] {
    const auto newline = output.find('\n');
    const auto line = output.substr(0, newline == std::string_view::npos ? newline : newline + 1);
    output.remove_prefix(line.size());
    return line;
  };
  const std::string header = HeaderOf(nextLine());
  // A ps that calls the column something else than at start-up has no values for it.
  if (gPSHeaders.Find(header) == nullptr) return false;
  const auto need = NeedOf(header.c_str());
  if (need.level == Client::kNeedNoPids) return false;
  bool found = false;
  while (!output.empty())
    if (ReportLine(nextLine(), header, need)) found = true;
  return found;
}

/// True when something had ended.
bool FeedWhatHasEnded() LURKWELL_IN_REGION {
  const auto ended = gPSPrograms.TakeEnded();
  for (const auto& [header, printed] : ended) {
    std::string_view text(printed.text);
    // The last line may have been cut anywhere.
    if (!printed.complete) text = text.substr(0, text.rfind('\n') + 1);
    const bool found = PSExtractProcessInformationForField(text);
    gPSHeaders.Find(header)->hasNewestValues = found && printed.complete;
  }
  return !ended.empty();
}

void Serve();

bool IsAnythingUnderWay() {
  return gPSDiscovery.IsUnderWay() || gPSPrograms.AreUnderWay() || gPSHasNews;
}

void KeepServing() {
  if (gPSTimer != nullptr || !IsAnythingUnderWay()) return;
  gPSTimer = TheMachine().runLoop.AddTimer(TheMachine().clock.AbsoluteTime() + kSecondsBetweenLooks,
                                           kSecondsBetweenLooks, Serve);
}

/// A column is handed out when it comes, however far away the next turn is.
void Serve() {
  const ConsolidatorGuard guard;
  const TimeValue now = TheMachine().clock.Now();
  bool hasNews = std::exchange(gPSHasNews, false);
  if (gPSDiscovery.GoOn(now)) {
    StartNeededColumns(now, nullptr);
    hasNews = true;
  }
  if (FeedWhatHasEnded()) hasNews = true;
  if (!IsAnythingUnderWay()) gPSTimer.reset();
  if (hasNews) Client::NotifyAllPSColumnsHaveChanged();
}

}  // namespace

void GetPSAvailableThings(std::string_view listing, std::vector<std::string>& list) {
  listing = listing.substr(0, kLongestKeywordList);
  while (const auto line = ScanLine(listing)) AppendWords(*line, list);
}

void LeavePSOut(bool leaveOut) {
  gPSIsLeftOut = leaveOut;
}

void DiscoverPSHeaders() {
  if (gPSIsLeftOut) return;
  gPSDiscovery.GoOn(TheMachine().clock.Now());
  KeepServing();
}

void AwaitPSColumns(std::chrono::milliseconds limit) {
  gPSDiscovery.Await(limit);
}

void SetPSPatience(std::chrono::milliseconds patience) {
  gPatience = patience;
}

void PSExtractProcessInformation(TimeValue now) {
  if (gPSIsLeftOut) return;
  if (gPSDiscovery.GoOn(now)) gPSHasNews = true;
  if (FeedWhatHasEnded()) gPSHasNews = true;
  StartNeededColumns(now, &now);
  if (gPatience > gPatience.zero()) {
    gPSPrograms.Await(gPatience);
    if (FeedWhatHasEnded()) gPSHasNews = true;
  }
  KeepServing();
}

}  // namespace lurkwell
