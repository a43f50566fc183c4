#pragma once

#include <atomic>
#include <cstdint>
#include <memory>

#include "animated_view/DrawingThread.h"
#include "animated_view/Placement.h"
#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/QuintessentialInformationProcessInfo.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/WholeNames.h"
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

/// A place in the current window, in logical points from its bottom left corner.
struct QuintessentialPoint {
  double x = 0;
  double y = 0;
};

/// How the view is drawn.
struct QuintessentialDrawingSettings {
  bool drawConnectors = true;
  bool drawConnectorsFullscreen = false;
  double iconScale = 150.0;
  double fullscreenExtraScale = 1.5;
  double underlayAlpha = 0.25;  ///< 0 to 1, of the overlay's background
};

/// The three intervals of the preferences, in milliseconds, made to fit: none below 1, and frames
/// at least as often as updates, updates at least as often as CPU readings; the slower ones give
/// way. Main thread.
struct AnimationIntervals {
  std::int32_t frame = 100;
  std::int32_t main = 200;
  std::int32_t cpu = 1000;
};
AnimationIntervals FittedAnimationIntervals();

/// How opaque the overlay's window is to be by the preferences, 0 to 1. Main thread.
double OverlayWindowAlpha();

/// The processes of the animated view: which they are, where they float, how heavy they are. Made
/// on the main thread with new when the view is first shown; deleted, like every client, by the
/// registry. Notifications come on the main thread; what the drawing thread looks at changes inside
/// gQuintessentialMutex.
class QuintessentialInformationClient final : public ProcessInformationClient,
                                              public FrameSource,
                                              private WatchedRecords {
 public:
  /// `interval` in milliseconds, raised to that of the frames when it is less. Becomes
  /// gQuintessentialInformationClient; makes the CPU watcher and has it served. `random` is for
  /// tests.
  explicit QuintessentialInformationClient(std::int32_t interval,
                                           RandomSource random = SystemRandom);
  ~QuintessentialInformationClient() override;

  // ---- Being shown. Main thread; nothing happens when it is so already.

  /// The first update comes with the next turn of the run loop. Inside the mutex or not.
  void HookIntoConsolidator();
  /// Destroys all records. The next showing begins afresh.
  void UnhookFromConsolidator();

  /// While the view is covered or minimised: no frames, and hardly any updates. Continues where it
  /// was.
  void SetPaused(bool paused);
  bool IsPaused() const override { return mPaused; }

  /// Starts the thread that draws whatever client there is, once per run of the program; in any
  /// case the next frame comes at once. Call it whenever gQuintessentialViewIsCurrentlyShown was
  /// set, and when the view is exposed: where the system has no thread to spare, which is said on
  /// standard error, nothing is drawn until a later call gets one.
  void CreateDrawingThreadIfNecessary();
  /// Ends the thread and waits for its frame; not inside the mutex. At shutdown.
  static void EndDrawingThread();

  // ---- One frame. Inside the mutex.

  /// Moves the records, unless the user wants less motion, and has the current view drawn.
  void InternalDraw() override LURKWELL_REQUIRES(gQuintessentialMutex);

  /// Makes the labels anew, as for another scale; the caller has seen to their textures.
  void MakeLabelsAnew() LURKWELL_REQUIRES(gQuintessentialMutex);

  QipiList& qipiList() override LURKWELL_REQUIRES(gQuintessentialMutex) { return mQipiList; }
  const QuintessentialDrawingSettings& DrawingSettings() const
      LURKWELL_REQUIRES(gQuintessentialMutex) {
    return mDrawing;
  }
  std::int32_t GLThreadInterval() const override LURKWELL_REQUIRES(gQuintessentialMutex) {
    return mIntervals.frame;
  }

  /// The pid of the record nearest to `point`, -1 when there is none.
  std::int32_t GetClosestPidToPoint(QuintessentialPoint point) const
      LURKWELL_REQUIRES(gQuintessentialMutex);

  // ---- The consolidator's notifications

  void NotifyPidHasBeenAdded(int pid) override;
  void NotifyPidHasBeenRemoved(int pid) override;
  void NotifyPidHasChangedAppreciably(int pid) override;
  void NotifyPreferencesHaveBeenUpdated() override;
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "QuintessentialInformationClient"; }

 private:
  using Info = QuintessentialInformationProcessInfo;

  void WatcherIsGone() override { mWatcher = nullptr; }

  /// Gives the new records that are ready to be shown places and names.
  void PlaceNewRecords(QipiList& ready);
  /// Gives a record that has no name yet the one of its process; false when it goes without.
  bool NameIfNameless(Info& info);
  void LearnNames();
  void StabilizeOnce() LURKWELL_REQUIRES(gQuintessentialMutex);
  /// Takes over what the preferences say now.
  void ReadSettings() LURKWELL_REQUIRES(gQuintessentialMutex);
  void ReadDrawingSettings() LURKWELL_REQUIRES(gQuintessentialMutex);
  void ApplyIntervals() LURKWELL_REQUIRES(gQuintessentialMutex);
  void TakeIcon(Info& info);
  static void CleanUp(QipiList& list) LURKWELL_REQUIRES(gQuintessentialMutex);

  RandomSource mRandom;
  QipiList mQipiList LURKWELL_GUARDED_BY(gQuintessentialMutex);
  /// Main thread only.
  QipiList mNewQipiList;
  NamesToLearn mNames;
  QuintessentialHelperCPUWatcher* mWatcher = nullptr;
  QuintessentialDrawingSettings mDrawing LURKWELL_GUARDED_BY(gQuintessentialMutex);
  AnimationIntervals mIntervals LURKWELL_GUARDED_BY(gQuintessentialMutex);
  std::shared_ptr<const Picture> mDefaultIcon;
  /// The user wants less motion: records stay where they have been placed.
  bool mIsStill LURKWELL_GUARDED_BY(gQuintessentialMutex) = false;
  bool mHasStabilized = false;
  bool mHooked = false;
  bool mWatcherIsServed = false;
  std::atomic<bool> mPaused = false;

  static std::unique_ptr<DrawingThread> zmThread;
};

/// Has the current view draw itself. Drawing thread. Fails
/// "theCurrentQuintessentialView" when there is no view.
void UpdateProcessInformationCocoa() LURKWELL_REQUIRES(gQuintessentialMutex);

}  // namespace lurkwell
