#pragma once

#include <cstdint>

#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/QuintessentialInformationProcessInfo.h"
#include "consolidator/ProcessInformationClient.h"
#include "platform/Clock.h"
#include "platform/ThreadSafety.h"

namespace lurkwell {

/// The records whose weights follow CPU use. Main thread.
class WatchedRecords {
 public:
  virtual ~WatchedRecords() = default;
  virtual bool IsPaused() const = 0;
  virtual QipiList& qipiList() LURKWELL_REQUIRES(gQuintessentialMutex) = 0;
  virtual void WatcherIsGone() = 0;
};

/// Turns CPU use into the weights that the icons ease towards: 0.5 at rest, from 0.9 when busy, 8.5
/// at four processors or more. Main thread. Made by its owner with new and deleted by the registry
/// or the owner, whichever ends first.
class QuintessentialHelperCPUWatcher final : public ProcessInformationClient {
 public:
  /// `interval` in milliseconds. Is served from now on.
  QuintessentialHelperCPUWatcher(WatchedRecords& owner, std::int32_t interval);
  ~QuintessentialHelperCPUWatcher() override;

  void NotifyProcessesHaveBeenUpdated() override;
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  const char* TypeName() const override { return "QuintessentialHelperCPUWatcher"; }

  /// The owner is gone.
  void Disown() { mOwner = nullptr; }

 private:
  bool IsWatching() const;

  WatchedRecords* mOwner;
  TimeValue mPreviousPass;
  /// How many times its activity each of the program's own two processes counts with; 0 for once.
  double mTarvikFactor = 0.0;
};

}  // namespace lurkwell
