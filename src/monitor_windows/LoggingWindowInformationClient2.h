#pragma once

#include <cstdint>

#include "consolidator/ProcessInformationClient.h"

namespace lurkwell {

class LoggingWindowUI;

/// The consolidator's client behind a logging window: reads its process's figures. Whoever deletes
/// it first, the window's closing or the end of the program, takes the other along. Main thread.
class LoggingWindowInformationClient2 final : public ProcessInformationClient {
 public:
  /// `interval` in milliseconds.
  LoggingWindowInformationClient2(const Uuid* uuid, std::int32_t interval,
                                  LoggingWindowUI& controller);
  ~LoggingWindowInformationClient2() override;

  void NotifyPidHasBeenRemoved(int pid) override;
  NeedLevel NeedProcPropertiesForPid(int pid) override;
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  bool NeedsEnds() override { return false; }
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "LoggingWindowInformationClient2"; }

 private:
  LoggingWindowUI& mController;
};

}  // namespace lurkwell
