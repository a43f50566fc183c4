#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "consolidator/ProcessInformationClient.h"
#include "monitor_windows/CPUHistoryGraph.h"
#include "monitor_windows/CPUHistoryPreferences.h"
#include "monitor_windows/FloatingWindow.h"
#include "monitor_windows/ProcessInformationWindow.h"
#include "monitor_windows/RememberedWindows.h"
#include "platform/Clock.h"
#include "windows/MonitorWindows.h"
#include "windows/PropertyText.h"

namespace lurkwell {

/// A small translucent window that follows the CPU share of one process, a pixel column per update.
/// Made with new and registered; it deletes itself when its process has ended or its window is
/// closed. Main thread only.
class CPUHistoryWindowInformationClient final : public ProcessInformationClient,
                                                public ProcessInformationWindow {
 public:
  /// `uuid` may be null, `interval` is in milliseconds; the window comes up with the process. A
  /// rectangle without width is a fatal assertion.
  CPUHistoryWindowInformationClient(const Uuid* uuid, std::int32_t interval, std::int32_t pid,
                                    const WindowRect& rect, bool trackDescendants);
  ~CPUHistoryWindowInformationClient() override;

  void NotifyPidHasBeenAdded(int pid) override;
  void NotifyPidHasBeenRemoved(int pid) override;
  void NotifyPidHasChangedAppreciably(int pid) override;
  void NotifyPreferencesHaveBeenUpdated() override;
  NeedLevel NeedProcPropertiesForPid(int pid) override;
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  bool NeedsEnds() override { return false; }
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "CPUHistoryWindowInformationClient"; }

  std::int32_t Pid() const { return mPid; }
  /// Tells the process from others that get its pid.
  std::uint64_t StartStamp() const { return mStartStamp; }

  /// Where it is to come up, or was when its size changed last.
  const WindowRect& Bounds() const { return mBounds; }
  /// The program's name and the pid, for people.
  QString Title() const;

  /// Writes the window's place into its record when it has been moved since the last time.
  void RememberPlace();

  OSStatus NotifyUpdate() override;
  OSStatus NotifyDrawContent() override;
  OSStatus NotifyBoundsChanged() override;
  OSStatus NotifyClosed() override;
  bool AdjustMinimumAndMaximumWindowSizes(Point& min, Point& max) override;
  void UglyHookCalledImmediatelyBeforeOverlayWindowIsCreated(QWidget& group) override;

  const CPUHistoryGraph& Graph() const { return mGraph; }
  /// The labels; null without a window.
  const Satellite* NameWindow() const { return mNameWindow; }
  const Satellite* IdentityWindow() const { return mIdentityWindow; }
  const Satellite* HighWaterMarkWindow() const { return mHighWaterMarkWindow; }
  const Satellite* IconWindow() const { return mIconWindow; }
  const Satellite* CurrentPercentageWindow() const { return mCurrentPercentageWindow; }

 private:
  void CreateMacWindow();
  void DisposeOfWindows();
  void MarkKind();
  void RedrawEntireWindow();
  void ApplyColours();
  void SetLabelColours();
  /// The time that the descendants have used since the last update. Those that have ended or
  /// belong to others now do not count any more.
  double TakeDescendantsSeconds();
  void DrawLabels();
  void DrawLine(Satellite& label, const QString& text, int beside) const;
  void DrawIdentity(const QString& name);
  void PlaceLabels();
  void FillMenu(QMenu& menu) const;
  void DrawIcon();
  void DrawPercentage(double value);
  QString SpokenGraph() const;
  void PaintGraph(QPainter& painter) const;

  std::int32_t mPid;
  std::uint64_t mStartStamp;
  FollowedProcess mProcess;
  WindowRect mBounds;
  WindowRect mRememberedPlace;
  bool mProcessGone = false;
  bool mIsApplication = false;
  TimeValue mLastUpdateTime;
  TimeValue mLastActiveTime;
  struct Descendant {
    TimeValue activeTime;  ///< at the last update
    bool unread = false;   ///< it was there before the window, and no figure was asked for yet
  };
  std::map<std::int32_t, Descendant> mDescendants;
  bool mDescendantsKnown = false;

  CPUHistoryPreferences mPreferences;
  CPUHistoryGraph mGraph;

  /// Children of the window.
  Satellite* mNameWindow = nullptr;
  Satellite* mIdentityWindow = nullptr;
  Satellite* mHighWaterMarkWindow = nullptr;
  Satellite* mIconWindow = nullptr;
  Satellite* mCurrentPercentageWindow = nullptr;
};

/// Opens a window for a process. Without `rect` it goes where new windows go; one without size gets
/// the usual one. Without `uuid` the window is a new one: it is remembered from now on, and an
/// unknown process opens nothing. `interval` in milliseconds.
void CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid, const Uuid* uuid,
                            const WindowRect* rect);

/// Those that are on the screen or about to be, for processes that have not ended.
std::vector<MonitorWindows::OpenWindow> ListCPUHistoryWindows();
/// Whether one of these has that identifier.
bool IsCPUHistoryWindowOpen(const Uuid& uuid);
/// Tells those of a process of that pid, unless it is still there, that it has ended.
void CPUHistoryProcessHasEnded(std::int32_t pid);
void RememberCPUHistoryPlaces();

}  // namespace lurkwell
