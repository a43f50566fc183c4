#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>

#include "consolidator/ProcessInformationClient.h"
#include "main_window/RowDictionary.h"
#include "platform/TimeValue.h"

namespace lurkwell {

class vqMainTableController;

/// The main window while its table is served, null otherwise.
extern QPointer<QWidget> gNSMainWindow;

/// The largest virtual size among all processes in the last update, in bytes; what memory bars are
/// measured by.
extern std::int64_t gBiggestVSZ;

/// Whether memory bars carry their size as text; as of the last update.
extern bool gDrawVSZText;

/// A column was added since the last update, so that even what never changes has to be read.
extern bool gNewColumnWasAddedRecently;

/// The consolidator's client behind the main table: a row per process, CPU shares from one update
/// to the next, the figures of the columns that are shown. Main thread only.
class VQTarvMainWindowInfoSynch final : public ProcessInformationClient {
 public:
  /// `interval` in milliseconds; the owner outlives this.
  VQTarvMainWindowInfoSynch(long interval, vqMainTableController& owner);
  ~VQTarvMainWindowInfoSynch() override;

  void NotifyPidHasBeenAdded(int pid) override;
  void NotifyPidHasBeenRemoved(int pid) override;
  void NotifyPidHasChangedAppreciably(int pid) override;
  void NotifyPreferencesHaveBeenUpdated() override;
  NeedLevel NeedPidsForProcProperty(const char* key) override;
  bool NeedPidProcProperty(int pid, const char* key) override;
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "VQTarvMainWindowInfoSynch"; }

  /// Begins and ends being served by the consolidator; either does nothing when it is so already.
  void HookIntoConsolidator();
  void UnhookFromConsolidator();
  bool IsHooked() const { return mHooked; }

  /// Takes a new reading of a process's CPU time and works out its share of one CPU since the one
  /// before, from 0 to 1: 0 at the first reading; readings closer than 10 ms count as 10 ms apart.
  void setCPUDelta(RowDictionary& row, TimeValue activeTime, TimeValue now);

  /// Reads one property into a row, or all that the table shows. A property that the process does
  /// not have leaves the row as it was.
  void UpdateSingleFieldForPid(RowDictionary& row, KeyId key, int pid);
  void UpdateAllFields(RowDictionary& row, int pid);

  /// Selects the row of a process alone and scrolls to it; false when there is no such row.
  static bool SelectPID(int pid);

  static VQTarvMainWindowInfoSynch* zm_MainWindow;

 private:
  void FindBiggestVSZ();
  void UpdateFixedFields(RowDictionary& row, TimeValue now);
  void UpdateChangingFields();

  vqMainTableController& mOwner;
  bool mHooked = false;
  /// A hexadecimal property was asked for; they are not shown, and the user hears it once a turn.
  bool mHexadecimalWasMet = false;
};

}  // namespace lurkwell
