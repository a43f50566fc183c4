#include "monitor_windows/LoggingPreferences.h"

#include <algorithm>

#include "monitor_windows/RememberedWindows.h"
#include "preferences/PreferenceArrays.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

struct ColumnKeys {
  const char* identifier;
  bool LoggingSwitches::*isShown;
  IntegerSetting general;
  const char* own;
  const char* width;
};

constexpr ColumnKeys kLogColumns[kLoggingColumns] = {
    {"timestampColID", &LoggingSwitches::includeTimeStamp, "LOG_WINDOW_INCLUDE_TIMESTAMP",
     "INCLUDE_TIMESTAMP", "LOG_TIMESTAMP_COL_WIDTH"},
    {"activeColID", &LoggingSwitches::logActiveTime, "LOG_WINDOW_ACTIVE_TIME_BOOL",
     "LOG_ACTIVE_TIME", "LOG_ACTIVE_COL_WIDTH"},
    {"\306activeColID", &LoggingSwitches::logDeltaActiveTime, "LOG_WINDOW_DELTA_ACTIVE_TIME_BOOL",
     "LOG_DELTA_ACTIVE_TIME", "LOG_DELTA_ACTIVE_COL_WIDTH"},
    {"realColID", &LoggingSwitches::logRealMemUsed, "LOG_WINDOW_REAL_MEM_BOOL", "LOG_REAL_MEM_USED",
     "LOG_REAL_MEM_COL_WIDTH"},
    {"\306realColID", &LoggingSwitches::logDeltaRealMemUsed, "LOG_WINDOW_DELTA_REAL_MEM_BOOL",
     "LOG_DELTA_REAL_MEM_USED", "LOG_DELTA_REAL_MEM_COL_WIDTH"},
    {"virtualColID", &LoggingSwitches::logVirtualMemUsed, "LOG_WINDOW_VIRTUAL_MEM_BOOL",
     "LOG_VIRTUAL_MEM_USED", "LOG_VIRTUAL_MEM_COL_WIDTH"},
    {"\306virtualColID", &LoggingSwitches::logDeltaVirtualMemUsed,
     "LOG_WINDOW_DELTA_VIRTUAL_MEM_BOOL", "LOG_DELTA_VIRTUAL_MEM_USED",
     "LOG_DELTA_VIRTUAL_MEM_COL_WIDTH"},
};

constexpr char kLogToFileKey[] = "LOG_TO_FILE";
constexpr char kLogIntervalKey[] = "CUSTOM_UPDATE_INTERVAL";

bool ReadSwitch(std::int32_t prefsIndex, const char* own, IntegerSetting general) {
  const auto value = ReadInt(general);
  return ReadRememberedInt(kLoggingWindowKind, prefsIndex, own, value) != 0;
}

}  // namespace

LoggingSwitches ReadLoggingSwitches(std::int32_t prefsIndex) {
  LoggingSwitches switches;
  for (const auto& column : kLogColumns)
    switches.*column.isShown = ReadSwitch(prefsIndex, column.own, column.general);
  return switches;
}

bool ReadLogToFile(std::int32_t prefsIndex) {
  return ReadSwitch(prefsIndex, kLogToFileKey, "LOG_WINDOW_LOG_TO_FILE");
}

std::int32_t ReadLoggingInterval(std::int32_t prefsIndex, std::int32_t fallback) {
  return ReadRememberedInt(kLoggingWindowKind, prefsIndex, kLogIntervalKey, fallback);
}

std::optional<int> ReadColumnWidth(std::int32_t prefsIndex, LoggingColumn column) {
  constexpr double kNarrowest = 10, kWidest = 4000;
  const char* key = kLogColumns[column].width;
  if (!IsPrefArrayValuePresent(kLoggingWindowKind, prefsIndex, key)) return std::nullopt;
  const double width = GetPrefArrayDouble(kLoggingWindowKind, prefsIndex, key, false, 0);
  if (!(width > 0)) return std::nullopt;
  return static_cast<int>(std::clamp(width, kNarrowest, kWidest));
}

void SaveLoggingSettings(std::int32_t prefsIndex, const LoggingSwitches& switches, bool logToFile,
                         std::int32_t interval, std::span<const LoggingColumnWidth> widths) {
  RememberedChanges changes(kLoggingWindowKind, prefsIndex);
  for (const auto& column : kLogColumns)
    changes.SetInt(column.own, switches.*column.isShown ? 1 : 0);
  changes.SetInt(kLogToFileKey, logToFile ? 1 : 0);
  changes.SetInt(kLogIntervalKey, interval);
  for (const auto& [column, width] : widths) changes.SetDouble(kLogColumns[column].width, width);
}

bool IsShown(const LoggingSwitches& switches, LoggingColumn column) {
  return switches.*kLogColumns[column].isShown;
}

const char* LoggingColumnIdentifier(LoggingColumn column) {
  return kLogColumns[column].identifier;
}

}  // namespace lurkwell
