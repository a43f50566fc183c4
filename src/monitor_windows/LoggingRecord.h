#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/TimeValue.h"

namespace lurkwell {

/// What a logging window writes down about its process. Main thread only.

/// In the order of the columns, and of the fields of a line.
enum LoggingColumn {
  kTimeStampColumn,
  kActiveColumn,
  kDeltaActiveColumn,
  kRealColumn,
  kDeltaRealColumn,
  kVirtualColumn,
  kDeltaVirtualColumn,
  kLoggingColumns,
};

/// Which columns there are.
struct LoggingSwitches {
  bool includeTimeStamp = false;
  bool logActiveTime = false;
  bool logDeltaActiveTime = false;
  bool logRealMemUsed = false;
  bool logDeltaRealMemUsed = false;
  bool logVirtualMemUsed = false;
  bool logDeltaVirtualMemUsed = false;

  bool ActiveTime() const { return logActiveTime || logDeltaActiveTime; }
  bool RealMem() const { return logRealMemUsed || logDeltaRealMemUsed; }
  bool VirtualMem() const { return logVirtualMemUsed || logDeltaVirtualMemUsed; }
};

/// The figures of the last row; sizes in bytes. All zero before the first.
struct LoggedInfoStruct {
  TimeValue timestamp;
  TimeValue activetime;
  std::int64_t realMemUsed = 0;
  std::int64_t virtualMemUsed = 0;
};

/// The figures of an update; nothing where the process has none or no column asks for it.
struct LoggingFigures {
  TimeValue now;
  std::optional<TimeValue> activetime;
  std::optional<std::int64_t> realMemUsed;
  std::optional<std::int64_t> virtualMemUsed;
};

struct LoggedRow {
  /// As the table shows them, by LoggingColumn; empty where the column is switched off.
  std::array<std::string, kLoggingColumns> cells;
  /// As the file has it: plain numbers behind tabs; without a time it begins with a tab.
  std::string line;
};

/// The row for an update, and `last` brought up to it; nothing when no figure is another one than
/// in the last row.
std::optional<LoggedRow> LogFigures(const LoggingSwitches& switches, const LoggingFigures& figures,
                                    LoggedInfoStruct& last);

}  // namespace lurkwell
