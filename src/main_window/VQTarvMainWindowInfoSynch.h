#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "consolidator/ProcessInformationClient.h"
#include "consolidator/PropertyValues.h"
#include "consolidator/WholeNames.h"
#include "main_window/ColumnLayout.h"
#include "main_window/ProcessRows.h"
#include "platform/Clock.h"
#include "platform/RunLoop.h"
#include "windows/RowDictionary.h"
#include "windows/SystemFigures.h"

namespace lurkwell {

class MainToolbar;

/// What the synchroniser needs of its table. Main thread.
class SynchronisedTable {
 public:
  virtual ~SynchronisedTable() = default;
  /// Null before there is one.
  virtual QWidget* tableWindow() const = 0;
  virtual ProcessRows& rows() = 0;
  virtual const ColumnLayout& layout() const = 0;
  /// A column shows the property, or the filter looks at it.
  virtual bool needsProperty(const char* key) const = 0;
  /// Null while it is hidden.
  virtual MainToolbar* visibleToolbar() const = 0;
  /// The sort column; kNoKey for none.
  virtual KeyId sortedBy() const = 0;
  /// What has to be read of every process besides the columns.
  virtual std::span<const KeyId> keysBesideColumns() const = 0;
  /// Whether it may be another row that a row stands below when the value changes.
  virtual bool standingDependsOn(KeyId key) const = 0;
  /// It may be another one.
  virtual void noteStandingHasChanged() = 0;
  /// The largest total of virtual sizes that a cell shows, 0 for none.
  virtual std::int64_t biggestTotalVSZ() const = 0;
  /// The processes whose rows can be seen, in the order of the rows.
  virtual std::vector<std::int32_t> pidsInSight() const = 0;

  /// Rows show what they showed when the user paused; what comes and goes meanwhile is only noted.
  virtual bool isPaused() const = 0;
  /// What has to be read of every process and was not when the user paused.
  virtual std::vector<KeyId> keysSincePause() const = 0;
  /// Rows of the pause have got such a figure.
  virtual void noteHeldRowsWereRead(KeyId key) = 0;

  /// Rows came or changed so that their order may be another one; done at the next commit.
  virtual void setNeedsResort() = 0;
  virtual void setNeedsReload() = 0;
  /// What memory bars show may be another figure.
  virtual void readMemoryFigure() = 0;
  /// What commands depend on may be something else: a badge came or went.
  virtual void noteFactsHaveChanged() = 0;
  /// Marks the ps columns that the turn brought no figures for; what they had stays, greyed.
  virtual void noteStaleColumns() = 0;
  /// Between turns: takes the mark from the ps columns that have come meanwhile.
  virtual void noteFreshColumns() = 0;
  /// Shows the remembered columns that ps did not offer before and does now; those that it turns
  /// out not to have go, but stay remembered.
  virtual void showColumnsThatCame() = 0;
  /// Lets the view have everything that has changed. While the order is held, only what cells show.
  virtual void commitChanges() = 0;
  virtual void triggerReload() = 0;
  virtual void turnHasEnded() = 0;

  virtual bool selectPid(std::int32_t pid) = 0;
  virtual void saveColumnPrefs() = 0;
  virtual void synchronizerIsGone() = 0;
};

/// The main window while its table is served, null otherwise.
extern QPointer<QWidget> gNSMainWindow;

/// A column was added since the last update, so that even what never changes has to be read.
extern bool gNewColumnWasAddedRecently;

/// The consolidator's client behind the main table: a row per process, CPU shares from one update
/// to the next, the figures of the columns that are shown. Main thread only.
class VQTarvMainWindowInfoSynch final : public ProcessInformationClient {
 public:
  /// `interval` in milliseconds; the owner outlives this.
  VQTarvMainWindowInfoSynch(long interval, SynchronisedTable& owner);
  ~VQTarvMainWindowInfoSynch() override;

  void NotifyPidHasBeenAdded(int pid) override;
  void NotifyPidHasBeenRemoved(int pid) override;
  void NotifyPidHasChangedAppreciably(int pid) override;
  /// Shows what was read last in the formats that hold now. Shares, gauges and the light stay as
  /// they are until the next update: nothing was measured.
  void NotifyPreferencesHaveBeenUpdated() override;
  void NotifyPSColumnsHaveChanged() override;
  NeedLevel NeedPidsForProcProperty(const char* key) override;
  bool NeedPidProcProperty(int pid, const char* key) override;
  std::vector<std::int32_t> PidsInSight() override;
  void NotifyProcessesHaveBeenUpdated() override;
  bool NeedsEnds() override { return mIsSeen; }
  const char* TypeName() const override { return "VQTarvMainWindowInfoSynch"; }

  /// Begins and ends being served by the consolidator; either does nothing when it is so already.
  void HookIntoConsolidator();
  void UnhookFromConsolidator();
  bool IsHooked() const { return mHooked; }

  /// While the window cannot be seen it is served a tenth as often; once it can, at once.
  void SetSeen(bool isSeen);

  /// Takes a new reading of a process's CPU time and works out its share of one CPU since the one
  /// before, from 0 to 1: 0 at the first reading; readings closer than 10 ms count as 10 ms apart.
  void setCPUDelta(RowDictionary& row, TimeValue activeTime, TimeValue now);

  /// Reads one property into a row, or all that the table needs.
  void UpdateSingleFieldForPid(RowDictionary& row, KeyId key, int pid);
  void UpdateAllFields(RowDictionary& row, int pid);

  /// Selects the row of a process alone and scrolls to it; false when there is no such row.
  static bool SelectPID(int pid);

  // ---- The machine as a whole -------------------------------------------------------------------

  /// Take a new figure and, unless the toolbar is hidden, show it there; at the end of each update,
  /// in this order, after ReadSystemFigures. The CPU usage is that since the call before.
  void UpdateSystemInfoToolbarItemCPU();
  void UpdateSystemInfoToolbarItemMemory();
  /// The light holds the largest number of pages written out per update, which decays from one
  /// update to the next: green below the yellow threshold, flashing red from the red one on.
  void UpdateSystemInfoToolbarItemPageouts();
  /// 0 green, 1 yellow, 2 and 3 the two reds.
  void UpdateSystemInfoToolbarItemPageoutsWithSeverity(int severity);
  /// Shows the figures of the last update once more: the toolbar has become visible, or has other
  /// items.
  void ShowSystemInfo();
  /// The other red, while the light is flashing.
  static void PageoutTimerFunc();

  static VQTarvMainWindowInfoSynch* zm_MainWindow;

 private:
  /// Serves the window every so many milliseconds while it is seen.
  void SetSeenInterval(std::int32_t milliseconds);
  void ReadSystemInfoPreferences();
  void StopFlashing();
  void ShowCPU();
  void ShowMemory();
  /// Puts a value into a row; has the rows sorted again when their order depends on it.
  void Set(RowDictionary& row, KeyId key, RowValue value);
  /// Takes what decides about the row's place beside its figures.
  void TakeOrigin(RowDictionary& row, const ProcessGlance& glance);
  /// Takes a row's share, and its figures where they are others than before.
  void RefreshRow(RowDictionary& row, TimeValue now);
  void RefreshRows();
  /// What is asked for during a pause is read once for its rows; of columns of ps while one of its
  /// runs has ended, of others at the end of a turn.
  void ReadForHeldRows(bool psHasEnded);
  /// Has the names that may go on completed.
  void LearnNames();
  /// By the figures that the rows have: badges, and what the memory bars are measured by.
  void RefreshBars();
  void BeepForHexadecimals();

  SynchronisedTable& mOwner;
  bool mHooked = false;
  bool mIsSeen = true;
  /// A hexadecimal property was asked for; they are not shown, and the user hears it once a turn.
  bool mHexadecimalWasMet = false;
  /// Whose names may go on; those that came last are the first.
  NamesToLearn mNamesToLearn;
  /// What has been read for the rows of the pause.
  std::vector<KeyId> mReadInPause;
  /// The value that the rows are sorted by; see Set.
  KeyId mSortedBy = kNoKey;

  MachineUsage mMachineUsage;
  /// Of the last update; no figures before the first.
  double mUsage = 0.0;
  SystemFigures mFigures;
  int mSeverity = -1;
  std::int64_t mNewPageouts = 0;

  /// As of the last reading that succeeded.
  std::optional<std::int64_t> mPreviousPageouts;
  double mPageoutsFilter = 0.0;
  double mFilteredPageouts = 0.0;
  std::int32_t mYellowThreshold = 0;
  std::int32_t mRedThreshold = 0;
  /// Dormant unless the light is flashing; seconds.
  std::unique_ptr<RunLoopTimer> mFlashTimer;
  double mFlashInterval = 0.0;
  /// 0 before the first update, 1 while the light is steady, 2 and 3 while it flashes.
  std::int32_t mPageoutState = 0;
};

}  // namespace lurkwell
