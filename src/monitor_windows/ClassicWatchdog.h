#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "consolidator/ProcessInformationClient.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// How far the nub has come.
enum ClassicWatchdogState : std::int32_t {
  kClassicInitial = 0,
  kClassicNotSeen = 1,      ///< no Classic process
  kClassicNubMissing = 2,   ///< Classic runs, the nub does not: to be launched
  kClassicNubLaunched = 3,  ///< to be seen, else launched again after a while
  kClassicNubFound = 4,     ///< to be told whom to serve
  kClassicNubTold = 5,      ///< steady
};

/// Sees to it that the nub, a small program among the applications of the Classic environment, runs
/// when that environment does and reports to this program. Main thread only, but for the launch.
class ClassicWatchdog final : public ProcessInformationClient {
 public:
  /// `interval` in milliseconds.
  explicit ClassicWatchdog(std::int32_t interval);
  /// Waits for a launch that is under way, which takes two seconds at most.
  ~ClassicWatchdog() override;

  void NotifyPidHasBeenAdded(int pid) override;
  void NotifyPidHasBeenRemoved(int) override {}
  void NotifyProcessesHaveBeenUpdated() override;
  NeedLevel NeedProcPropertiesForPid(int pid) override;
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  bool NeedsEnds() override { return false; }
  const char* TypeName() const override { return "ClassicWatchdog"; }

 private:
  struct Sight {
    bool classic = false;
    /// kInvalidPID for none.
    std::int32_t nub = kInvalidPID;
  };
  Sight LookAtProcesses() const;
  static void TakeNote(const Sight& sight);
  void WaitForNub();
  void LaunchNub();
  /// The body of the launch's own thread. Prints a line when the launch fails.
  static void LaunchClassicNubEntryPoint(const std::vector<std::string>& block);

  /// In updates.
  static constexpr int kFirstPatience = 2;
  static constexpr int kMostPatience = 64;

  int mPatience = kFirstPatience;
  int mWaits = 0;
  std::vector<std::string> mLaunchBlock;
  std::thread mLaunch;
  std::atomic<bool> mIsLaunching{false};
};

/// The one watchdog, or null; the nub's pid, -1 while there is none.
extern ClassicWatchdog* gClassicWatchdog;
extern std::int32_t gClassicNubPid;
extern std::int32_t gClassicWatchdogState;

/// Starts watching, and ends it; at the end the nub is told to rest and asked to quit. Turning on
/// twice, or off what is not on, is a fatal assertion.
void TurnOnClassicNub();
void TurnOffClassicNub();

/// Tells the nub to report to this program at the preferred pace, or not to report at all.
void AdjustClassicNub(bool on);
/// Asks the nub to quit.
void KillClassicNub();

}  // namespace lurkwell
