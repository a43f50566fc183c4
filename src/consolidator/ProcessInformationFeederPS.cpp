#include "consolidator/ProcessInformationFeederPS.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <map>
#include <string_view>
#include <utility>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/PSHeaders.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/ProcessReports.h"
#include "consolidator/PropertyTypes.h"
#include "consolidator/TextScan.h"
#include "platform/Assertion.h"
#include "platform/Machine.h"
#include "platform/Tools.h"

namespace lurkwell {
namespace {

using Client = ProcessInformationClient;

constexpr char kFeederUnit[] = "ProcessInformationFeederPS";

constexpr auto kDiscoveryLimit = std::chrono::seconds(5);
constexpr auto kPassLimit = std::chrono::seconds(1);
constexpr std::int64_t kRestInMilliseconds = 60'000;

constexpr std::size_t kLongestKeywordList = 1023;
constexpr std::size_t kLongestKeyword = 255;
constexpr std::size_t kLongestHeader = 63;
constexpr std::size_t kLongestLine = 1023;
constexpr std::size_t kLongestValue = 1023;

/// Columns whose ps did not come to its end, and until when they rest.
std::map<std::string, TimeValue, std::less<>> gRestingColumns;

/// Splits at single blanks: two in a row yield an empty word between them.
void AppendWords(std::string_view line, std::vector<std::string>& list) {
  while (!line.empty()) {
    const auto blank = line.find(' ');
    list.emplace_back(line.substr(0, blank).substr(0, kLongestKeyword));
    if (blank == std::string_view::npos) return;
    line.remove_prefix(blank + 1);
  }
}

/// Whether a name belongs to properties that do not come from ps.
bool IsReserved(std::string_view name) {
  constexpr std::string_view kPrefixes[] = {"meta_", "pid_", "carbonpsn_", "classicpsn_",
                                            "internal_"};
  return std::ranges::any_of(kPrefixes,
                             [name](std::string_view prefix) { return name.starts_with(prefix); });
}

struct Column {
  std::string header;
  std::string option;
  Client::NeedLevel level;
};

bool Rests(std::string_view header, TimeValue now) {
  const auto resting = gRestingColumns.find(header);
  if (resting == gRestingColumns.end()) return false;
  if (now < resting->second) return true;
  gRestingColumns.erase(resting);
  return false;
}

std::vector<Column> NeededColumns(TimeValue now) {
  std::vector<Column> columns;
  const int count = GetPSHeaderCount();
  for (int i = 0; i < count; ++i) {
    char header[kLongestHeader];
    GetNthPSHeader(i, header, sizeof header, nullptr);
    // The pid is the first column of every run anyway.
    if (std::string_view(header) == "PID") continue;
    const auto level = Client::NeedAnyPidForProcProperty(header, &now);
    if (level == Client::kNeedNoPids || Rests(header, now)) continue;
    Require(GetNthPSHeadersGeneratingOptionCount(i) > 0, kFeederUnit,
            "GetNthPSHeadersGeneratingOptionCount(i) > 0");
    char option[kLongestKeyword + 1];
    GetNthPSHeadersNthGeneratingOption(i, 0, option, sizeof option);
    columns.push_back({header, option, level});
  }
  return columns;
}

/// The column header as ps prints it above the values, which is the property's name.
std::string HeaderOf(std::string_view line) {
  line = line.substr(0, kLongestLine);
  ScanWord(line);
  return std::string(ScanWord(line).substr(0, kLongestHeader));
}

void ReportLine(std::string_view line, const std::string& header, Client::NeedLevel level,
                TimeValue now) {
  const auto pid = ScanInteger(line).value_or(0);
  if (pid <= 0 || !std::in_range<std::int32_t>(pid)) return;
  const auto narrow = static_cast<std::int32_t>(pid);
  if (level != Client::kNeedAllPids &&
      !Client::NeedAnyPidProcProperty(narrow, header.c_str(), &now)) {
    TouchProcessInformationForPID(narrow, kInformationKindPS);
    return;
  }
  SkipBlanks(line);
  const std::string value(line.substr(0, kLongestValue));
  ReportProcessInformationForPID(narrow, header.c_str(), value.c_str());
}

/// One column's output: a header line, then a line per process. The newline stays in the value.
void PSExtractProcessInformationForField(std::string_view output, Client::NeedLevel level,
                                         TimeValue now) {
  const auto nextLine = [&output] {
    const auto newline = output.find('\n');
    const auto line = output.substr(0, newline == std::string_view::npos ? newline : newline + 1);
    output.remove_prefix(line.size());
    return line;
  };
  const std::string header = HeaderOf(nextLine());
  // A ps that calls the column something else than at start-up has no values for it.
  if (gPSHeaders.Find(header) == nullptr) return;
  while (!output.empty()) ReportLine(nextLine(), header, level, now);
}

}  // namespace

void GetPSAvailableThings(std::vector<std::string>& list) {
  const std::vector<std::string> command = {"/bin/ps -Lww"};
  const auto outputs = TheMachine().tools.Run(command, kDiscoveryLimit);
  std::string_view text(outputs.front().text);
  text = text.substr(0, kLongestKeywordList);
  while (const auto line = ScanLine(text)) AppendWords(*line, list);
}

void DiscoverPSHeaders() {
  std::vector<std::string> options;
  GetPSAvailableThings(options);
  std::vector<std::string> commands;
  for (const auto& option : options) commands.push_back("/bin/ps 0 -o " + option);
  const auto outputs = TheMachine().tools.Run(commands, kDiscoveryLimit);
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    std::string_view text(outputs[i].text);
    std::string_view line = ScanLine(text).value_or(std::string_view{}).substr(0, kLongestLine);
    const std::string header(ScanWord(line).substr(0, kLongestHeader));
    if (!header.empty() && !IsReserved(header))
      EnsureThatPSProcPropertyExists(header.c_str(), options[i].c_str());
  }
}

void PSExtractProcessInformation(TimeValue now) {
  const auto columns = NeededColumns(now);
  if (columns.empty()) return;
  std::vector<std::string> commands;
  for (const auto& column : columns) commands.push_back("/bin/ps -axww -o pid," + column.option);
  const auto outputs = TheMachine().tools.Run(commands, kPassLimit);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    std::string_view text(outputs[i].text);
    if (!outputs[i].complete) {
      gRestingColumns[columns[i].header] = AddMilliseconds(now, kRestInMilliseconds);
      // The last line may have been cut anywhere.
      text = text.substr(0, text.rfind('\n') + 1);
    }
    PSExtractProcessInformationForField(text, columns[i].level, now);
  }
}

}  // namespace lurkwell
