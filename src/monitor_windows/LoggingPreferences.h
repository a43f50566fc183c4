#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "monitor_windows/LoggingRecord.h"

namespace lurkwell {

/// The settings of logging windows. Those of a remembered window (`prefsIndex`, its element, -1 for
/// none) go before the general ones. Main thread only.
LoggingSwitches ReadLoggingSwitches(std::int32_t prefsIndex);
bool ReadLogToFile(std::int32_t prefsIndex);
/// Milliseconds.
std::int32_t ReadLoggingInterval(std::int32_t prefsIndex, std::int32_t fallback);
/// In points; nothing when none is remembered.
std::optional<int> ReadColumnWidth(std::int32_t prefsIndex, LoggingColumn column);

struct LoggingColumnWidth {
  LoggingColumn column;
  int width;
};
void SaveLoggingSettings(std::int32_t prefsIndex, const LoggingSwitches& switches, bool logToFile,
                         std::int32_t interval, std::span<const LoggingColumnWidth> widths);

bool IsShown(const LoggingSwitches& switches, LoggingColumn column);
/// The key of a column's cells: "∆" in Mac Roman begins those of changes.
const char* LoggingColumnIdentifier(LoggingColumn column);

}  // namespace lurkwell
