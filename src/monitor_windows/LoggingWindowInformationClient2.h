#pragma once

#include <cstdint>

#include "consolidator/ProcessInformationClient.h"
#include "monitor_windows/LoggingRecord.h"

namespace lurkwell {

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
