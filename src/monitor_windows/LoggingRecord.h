#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "consolidator/ProcessInformationClient.h"
#include "platform/Clock.h"

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

/// The figures of the last row; sizes in bytes. Nothing where there was none yet.
struct LoggedInfoStruct {
  TimeValue timestamp;
  std::optional<TimeValue> activetime;
  std::optional<std::int64_t> realMemUsed;
  std::optional<std::int64_t> virtualMemUsed;
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
  /// As the file has it: plain numbers behind tabs, changes with their signs; without a time it
  /// begins with a tab.
  std::string line;
};

/// The first line of a file: the names of the fields, with their units, as its lines have them.
std::string LogHeader(const LoggingSwitches& switches);

/// The row for an update, and `last` brought up to it; nothing when no figure is another one than
/// in the last row, or other than 0 before the first. The change of a figure that is seen for the
/// first time is 0.
std::optional<LoggedRow> LogFigures(const LoggingSwitches& switches, const LoggingFigures& figures,
                                    LoggedInfoStruct& last);

class LoggingWindowInformationClient2;

/// The log behind which a client stands. Main thread.
class LogOfClient {
 public:
  virtual ~LogOfClient() = default;
  /// The process that is logged, or was.
  virtual std::int32_t loggedPid() const = 0;
  virtual const LoggingSwitches& switches() const = 0;
  /// Whether that process is the one, and has not ended.
  virtual bool logs(std::int32_t pid) const = 0;
  virtual void processesHaveBeenUpdated(const LoggingFigures& figures) = 0;
  virtual void processHasEnded() = 0;
  /// Called when the client ends.
  virtual void clientIsGone(const LoggingWindowInformationClient2& client) = 0;
};

/// The consolidator's client behind a logging window: reads its process's figures. It and
/// the window end together, whether the window is closed or the program ends. Main thread.
class LoggingWindowInformationClient2 final : public ProcessInformationClient {
 public:
  /// `interval` in milliseconds.
  LoggingWindowInformationClient2(const Uuid* uuid, std::int32_t interval, LogOfClient& log);
  ~LoggingWindowInformationClient2() override;

  void NotifyPidHasBeenRemoved(int pid) override;
  NeedLevel NeedProcPropertiesForPid(int pid) override;
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  bool NeedsEnds() override { return false; }
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "LoggingWindowInformationClient2"; }

 private:
  LogOfClient& mLog;
};

}  // namespace lurkwell
