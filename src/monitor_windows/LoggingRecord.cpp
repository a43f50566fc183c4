#include "monitor_windows/LoggingRecord.h"

#include <cstring>
#include <optional>
#include <variant>

#include "consolidator/PI_Consolidator.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "process_control/DisplayFormats.h"
#include "resources/UserLocale.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kDateCharacters = 16;

struct LogField {
  bool LoggingSwitches::*isShown;
  const char* name;
};
/// By LoggingColumn.
constexpr LogField kFields[kLoggingColumns] = {
    {&LoggingSwitches::includeTimeStamp, "time_s"},
    {&LoggingSwitches::logActiveTime, "cpu_time_s"},
    {&LoggingSwitches::logDeltaActiveTime, "cpu_time_change_s"},
    {&LoggingSwitches::logRealMemUsed, "resident_bytes"},
    {&LoggingSwitches::logDeltaRealMemUsed, "resident_change_bytes"},
    {&LoggingSwitches::logVirtualMemUsed, "virtual_bytes"},
    {&LoggingSwitches::logDeltaVirtualMemUsed, "virtual_change_bytes"},
};

class RowWriter {
 public:
  void WriteTime(TimeValue now) {
    mRow.cells[kTimeStampColumn] = DateText(now, kDateCharacters).toStdString();
    mRow.line = TimeString(now);
  }
  void WriteSpan(LoggingColumn column, TimeValue span) {
    Write(column, TimeString(span), TimeString(span));
  }
  /// A CPU time never becomes less.
  void WriteSpanChange(LoggingColumn column, TimeValue change) {
    const auto text = TimeString(change);
    if (change.IsZero()) return Write(column, text, text);
    Write(column, "+ " + text, '+' + text);
  }
  void WriteMemory(LoggingColumn column, std::int64_t bytes) {
    Write(column, MemoryString(bytes), std::to_string(bytes));
  }
  void WriteMemoryChange(LoggingColumn column, std::int64_t bytes) {
    Write(column, MemoryString(bytes, true), (bytes > 0 ? "+" : "") + std::to_string(bytes));
  }

  LoggedRow Take() { return std::move(mRow); }

 private:
  /// People read the cell, programs the line.
  void Write(LoggingColumn column, const std::string& cell, const std::string& number) {
    mRow.cells[column] = LocalFigure(QString::fromStdString(cell)).toStdString();
    mRow.line += '\t' + number;
  }

  LoggedRow mRow;
};

/// What is known now, else what was known.
template <typename T>
std::optional<T> Latest(bool isLogged, const std::optional<T>& now, const std::optional<T>& last) {
  return isLogged && now ? now : last;
}

template <typename T>
bool Differs(const std::optional<T>& now, const std::optional<T>& last) {
  return now.value_or(T{}) != last.value_or(T{});
}

template <typename T>
T Change(const std::optional<T>& now, const std::optional<T>& last) {
  return now && last ? *now - *last : T{};
}

}  // namespace

std::string LogHeader(const LoggingSwitches& switches) {
  std::string header;
  for (const auto& field : kFields) {
    if (&field != kFields && switches.*field.isShown) header += '\t';
    if (switches.*field.isShown) header += field.name;
  }
  return header;
}

std::optional<LoggedRow> LogFigures(const LoggingSwitches& switches, const LoggingFigures& figures,
                                    LoggedInfoStruct& last) {
  const LoggedInfoStruct present{
      figures.now, Latest(switches.ActiveTime(), figures.activetime, last.activetime),
      Latest(switches.RealMem(), figures.realMemUsed, last.realMemUsed),
      Latest(switches.VirtualMem(), figures.virtualMemUsed, last.virtualMemUsed)};
  if (!Differs(present.activetime, last.activetime) &&
      !Differs(present.realMemUsed, last.realMemUsed) &&
      !Differs(present.virtualMemUsed, last.virtualMemUsed))
    return std::nullopt;

  RowWriter row;
  if (switches.includeTimeStamp) row.WriteTime(present.timestamp);
  if (switches.logActiveTime)
    row.WriteSpan(kActiveColumn, present.activetime.value_or(TimeValue{}));
  if (switches.logDeltaActiveTime)
    row.WriteSpanChange(kDeltaActiveColumn, Change(present.activetime, last.activetime));
  if (switches.logRealMemUsed) row.WriteMemory(kRealColumn, present.realMemUsed.value_or(0));
  if (switches.logDeltaRealMemUsed)
    row.WriteMemoryChange(kDeltaRealColumn, Change(present.realMemUsed, last.realMemUsed));
  if (switches.logVirtualMemUsed)
    row.WriteMemory(kVirtualColumn, present.virtualMemUsed.value_or(0));
  if (switches.logDeltaVirtualMemUsed)
    row.WriteMemoryChange(kDeltaVirtualColumn, Change(present.virtualMemUsed, last.virtualMemUsed));
  last = present;
  return row.Take();
}

namespace {

constexpr char kActiveTime[] = "meta_active_time";
constexpr char kRealSize[] = "pid_rsz";
constexpr char kVirtualSize[] = "pid_vsz";

std::optional<std::int64_t> ReadSize(int pid, const char* property) {
  const auto value = GetPIDPropertyTypedValue(pid, property);
  const auto* size = std::get_if<std::int64_t>(&value);
  return size != nullptr ? std::optional(*size) : std::nullopt;
}

}  // namespace

LoggingWindowInformationClient2::LoggingWindowInformationClient2(const Uuid* uuid,
                                                                 std::int32_t interval,
                                                                 LogOfClient& log)
    : ProcessInformationClient(uuid, interval), mLog(log) {}

LoggingWindowInformationClient2::~LoggingWindowInformationClient2() {
  mLog.clientIsGone(*this);
}

ProcessInformationClient::NeedLevel LoggingWindowInformationClient2::NeedProcPropertiesForPid(
    int pid) {
  return mLog.logs(pid) ? kNeedSomeProcProperties : kNeedNoProcProperties;
}

ProcessInformationClient::NeedLevel LoggingWindowInformationClient2::NeedPidsForProcProperty(
    const char* property) {
  const bool needed = NeedPidProcProperty(mLog.loggedPid(), property);
  return needed ? kNeedSomePids : kNeedNoPids;
}

bool LoggingWindowInformationClient2::NeedPidProcProperty(int pid, const char* property) {
  if (!mLog.logs(pid)) return false;
  for (const char* needed : {kActiveTime, kRealSize, kVirtualSize})
    if (std::strcmp(property, needed) == 0) return true;
  return false;
}

void LoggingWindowInformationClient2::NotifyProcessesHaveBeenUpdated() {
  const int pid = mLog.loggedPid();
  if (!mLog.logs(pid)) return;
  const auto& switches = mLog.switches();
  LoggingFigures figures;
  figures.now = TheMachine().clock.CalendarNow();
  if (switches.ActiveTime()) figures.activetime = ActiveTimeOf(pid);
  if (switches.RealMem()) figures.realMemUsed = ReadSize(pid, kRealSize);
  if (switches.VirtualMem()) figures.virtualMemUsed = ReadSize(pid, kVirtualSize);
  mLog.processesHaveBeenUpdated(figures);
}

void LoggingWindowInformationClient2::NotifyPidHasBeenRemoved(int pid) {
  if (mLog.logs(pid)) mLog.processHasEnded();
}

}  // namespace lurkwell
