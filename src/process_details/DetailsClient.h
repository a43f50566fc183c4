#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "consolidator/ProcessInformationClient.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// What looks at one process. Main thread.
class DetailsViewer {
 public:
  virtual ~DetailsViewer() = default;
  /// The figures are those of now.
  virtual void turnHasEnded() = 0;
  /// Once; no figures come any more.
  virtual void processHasEnded() = 0;
  /// The client ends: at shutdown, before the viewer does.
  virtual void clientIsGone() = 0;
};

/// The consolidator's client behind a window of one process. What is not seen is not read. Main
/// thread only.
class DetailsClient final : public ProcessInformationClient {
 public:
  DetailsClient(ProcessIdentity process, DetailsViewer& viewer);
  ~DetailsClient() override;

  /// The figures that are needed from now on.
  void SetNeeds(std::vector<const char*> properties);
  /// Out of sight, turns are seldom.
  void SetSeen(bool isSeen);

  void NotifyPidHasBeenRemoved(int pid) override;
  void NotifyPreferencesHaveBeenUpdated() override;
  NeedLevel NeedProcPropertiesForPid(int pid) override;
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  std::vector<std::int32_t> PidsInSight() override;
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "DetailsClient"; }

 private:
  bool Is(int pid) const { return pid == mProcess.pid && !mHasEnded; }
  bool Needs(const char* property) const;
  void SetTurns();
  void End();

  ProcessIdentity mProcess;
  DetailsViewer& mViewer;
  std::vector<const char*> mNeeds;
  bool mIsSeen = true;
  bool mHasEnded = false;
};

}  // namespace lurkwell
