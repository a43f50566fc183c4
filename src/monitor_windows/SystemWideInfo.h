#pragma once

#include <QString>
#include <cstdint>

#include "consolidator/ProcessInformationClient.h"
#include "monitor_windows/ProcessInformationWindow.h"
#include "windows/SystemFigures.h"

namespace lurkwell {

/// A small debugging window: memory in use, the CPU usage of the whole machine, pageouts. Main
/// thread only.
class SystemWideInfo final : public ProcessInformationClient, public ProcessInformationWindow {
 public:
  /// `interval` in milliseconds; the window comes up at its last place.
  explicit SystemWideInfo(std::int32_t interval);
  /// Keeps the window's place.
  ~SystemWideInfo() override;

  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  void NotifyProcessesHaveBeenUpdated() override;
  /// Not called: the base class's answer for a process is the one that counts.
  virtual NeedLevel NeedProcPropertyForPid(int pid);
  const char* TypeName() const override { return "SystemWideInfo"; }

  /// The three lines.
  const QString& MemoryLine() const { return mMemoryLine; }
  const QString& UsageLine() const { return mUsageLine; }
  const QString& PageoutsLine() const { return mPageoutsLine; }

 private:
  MachineUsage mUsage;
  QString mMemoryLine;
  QString mUsageLine;
  QString mPageoutsLine;
};

/// The one instance, or null.
extern SystemWideInfo* gSystemWideInfo;

/// A second one is a fatal assertion.
void CreateSystemWideInfo(long interval);
/// Does nothing when there is none.
void CleanupSystemWideInfo();

}  // namespace lurkwell
