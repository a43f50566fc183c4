#include "monitor_windows/LoggingRecord.h"

#include "process_control/DisplayFormats.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kDateCharacters = 16;

/// The change since the last row; none at the first one.
TimeValue ActiveTimeSince(TimeValue last, TimeValue now) {
  return last.IsZero() ? TimeValue{} : now - last;
}

class RowWriter {
 public:
  void WriteTime(TimeValue now) {
    mRow.cells[kTimeStampColumn] = DateString(now, kDateCharacters);
    mRow.line = TimeString(now);
  }

  void Write(LoggingColumn column, std::string cell, const std::string& number) {
    mRow.cells[column] = std::move(cell);
    mRow.line += '\t' + number;
  }
  void WriteSpan(LoggingColumn column, TimeValue span) {
    Write(column, TimeString(span), TimeString(span));
  }
  void WriteMemory(LoggingColumn column, std::int64_t bytes, bool withSign) {
    Write(column, MemoryString(bytes, withSign), std::to_string(bytes));
  }

  LoggedRow Take() { return std::move(mRow); }

 private:
  LoggedRow mRow;
};

}  // namespace

std::optional<LoggedRow> LogFigures(const LoggingSwitches& switches, const LoggingFigures& figures,
                                    LoggedInfoStruct& last) {
  LoggedInfoStruct present = last;
  present.timestamp = figures.now;
  if (switches.ActiveTime()) present.activetime = figures.activetime.value_or(last.activetime);
  if (switches.RealMem()) present.realMemUsed = figures.realMemUsed.value_or(last.realMemUsed);
  if (switches.VirtualMem())
    present.virtualMemUsed = figures.virtualMemUsed.value_or(last.virtualMemUsed);
  if (present.activetime == last.activetime && present.realMemUsed == last.realMemUsed &&
      present.virtualMemUsed == last.virtualMemUsed)
    return std::nullopt;

  RowWriter row;
  if (switches.includeTimeStamp) row.WriteTime(present.timestamp);
  if (switches.logActiveTime) row.WriteSpan(kActiveColumn, present.activetime);
  if (switches.logDeltaActiveTime)
    row.WriteSpan(kDeltaActiveColumn, ActiveTimeSince(last.activetime, present.activetime));
  if (switches.logRealMemUsed) row.WriteMemory(kRealColumn, present.realMemUsed, false);
  if (switches.logDeltaRealMemUsed)
    row.WriteMemory(kDeltaRealColumn, present.realMemUsed - last.realMemUsed, true);
  if (switches.logVirtualMemUsed) row.WriteMemory(kVirtualColumn, present.virtualMemUsed, false);
  // Unlike the resident change, without a sign in front: this column is read by its numbers.
  if (switches.logDeltaVirtualMemUsed)
    row.WriteMemory(kDeltaVirtualColumn, present.virtualMemUsed - last.virtualMemUsed, false);
  last = present;
  return row.Take();
}

}  // namespace lurkwell
