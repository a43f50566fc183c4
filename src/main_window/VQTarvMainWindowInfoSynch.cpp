#include "main_window/VQTarvMainWindowInfoSynch.h"

#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "consolidator/PI_Consolidator.h"
#include "main_window/ControllerAssertion.h"
#include "main_window/Preferences.h"
#include "main_window/PropertyText.h"
#include "main_window/vqMainTableController.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "preferences/PreferencesRetrieval.h"
#include "process_control/ProcessActions.h"

namespace lurkwell {

QPointer<QWidget> gNSMainWindow;
std::int64_t gBiggestVSZ = 0;
bool gDrawVSZText = false;
bool gNewColumnWasAddedRecently = false;
VQTarvMainWindowInfoSynch* VQTarvMainWindowInfoSynch::zm_MainWindow = nullptr;

namespace {

constexpr char kSynchUnit[] = "VQTarvMainWindowInfoSynch";

/// A property's text in a buffer that is used over and over; nothing for a process that is gone.
class PropertyReader {
 public:
  /// Null when there is no such process.
  const char* Read(std::int32_t pid, const char* key) {
    bool found = false;
    mHasValue = GetPIDPropertyValue(pid, key, mText, sizeof mText, &found);
    return found ? mText : nullptr;
  }
  /// Whether what was read last is a value rather than a note that there is none.
  bool HasValue() const { return mHasValue; }

 private:
  char mText[255];
  bool mHasValue = false;
};

}  // namespace

VQTarvMainWindowInfoSynch::VQTarvMainWindowInfoSynch(long interval, vqMainTableController& owner)
    : ProcessInformationClient(nullptr, static_cast<std::int32_t>(interval)), mOwner(owner) {
  zm_MainWindow = this;
  ReadSystemInfoPreferences();
}

VQTarvMainWindowInfoSynch::~VQTarvMainWindowInfoSynch() {
  mOwner.saveColumnPrefs();
  UnhookFromConsolidator();
  zm_MainWindow = nullptr;
  mOwner.synchronizerIsGone();
}

void VQTarvMainWindowInfoSynch::HookIntoConsolidator() {
  if (mHooked) return;
  mHooked = true;
  // While nobody was served, not even what never changes was read, no change of preferences was
  // told, and what happened is no figure of one turn.
  gNewColumnWasAddedRecently = true;
  SetInterval(MainWindowInterval());
  mMachineUsage = {};
  mPreviousPageouts.reset();
  mFilteredPageouts = 0.0;
  AddProcessInformationClient(this);
  mOwner.internalRepresentations().KeepOnly(
      [this](std::int32_t pid) { return mOwner.rows().Find(pid) != nullptr; });
  gNSMainWindow = mOwner.window();
  mOwner.commitChanges();
  RequestUpdate(this);
}

void VQTarvMainWindowInfoSynch::UnhookFromConsolidator() {
  gNSMainWindow = nullptr;
  if (!mHooked) return;
  RemoveProcessInformationClient(this);
  mHooked = false;
  StopFlashing();
}

ProcessInformationClient::NeedLevel VQTarvMainWindowInfoSynch::NeedPidsForProcProperty(
    const char* key) {
  const bool needed = NeedPidProcProperty(kInvalidPID, key) || std::strcmp(key, "pid_rsz") == 0 ||
                      std::strcmp(key, "pid_vsz") == 0;
  return needed ? kNeedAllPids : kNeedNoPids;
}

bool VQTarvMainWindowInfoSynch::NeedPidProcProperty(int, const char* key) {
  // Questions, the filter and two sorts want names, shown or not.
  return mOwner.isTracked(key) || std::strcmp(key, "meta_active_time") == 0 ||
         std::strcmp(key, "meta_name") == 0;
}

void VQTarvMainWindowInfoSynch::setCPUDelta(RowDictionary& row, TimeValue activeTime,
                                            TimeValue now) {
  auto& reading = row.cpuReading;
  reading.internal_last_active_time = reading.internal_current_active_time;
  reading.internal_current_active_time = activeTime;
  reading.internal_last_wall_time = reading.internal_current_wall_time;
  reading.internal_current_wall_time = now;
  double active = 0.0;
  if (!reading.internal_last_active_time.IsZero())
    active = SecondsBetween(reading.internal_last_active_time, activeTime);
  double wall = 0.1;
  if (!reading.internal_last_wall_time.IsZero())
    wall = std::max(SecondsBetween(reading.internal_last_wall_time, now), 0.01);
  const double share = std::clamp(active / wall, 0.0, 1.0);
  row.Set(kInternalCpuUsage, share);
  row.Sortable().Set(kInternalCPUPercent, share);
}

void VQTarvMainWindowInfoSynch::UpdateSingleFieldForPid(RowDictionary& row, KeyId key, int pid) {
  const char* name = KeyText(key).data();
  if (IsInternalKey(name)) return;
  const bool isPSColumn = FindBuiltInProperty(name) == nullptr;
  // A remembered column that ps has not told of so far.
  if (isPSColumn && !IsKnownProcProperty(name)) return;
  PropertyReader reader;
  const char* text = reader.Read(pid, name);
  // ps has no line for every process, and not every column has come yet.
  if (text == nullptr || (!reader.HasValue() && isPSColumn)) return;
  const auto type = GetProcPropertyType(name, nullptr);
  if (type == kPropertyTypeHex) {
    mHexadecimalWasMet = true;
    return;
  }
  if (type == kPropertyTypeDate && pid < 0) return;
  auto value = isPSColumn ? ReadPSValue(type, text) : ReadValue(type, text);
  if (type == kPropertyTypeMemory || type == kPropertyTypeTime || type == kPropertyTypeDate)
    row.Sortable().Set(key, value);
  row.Set(key, std::move(value));
}

void VQTarvMainWindowInfoSynch::UpdateAllFields(RowDictionary& row, int pid) {
  for (const KeyId key : mOwner.keysWeTrackForUI()) UpdateSingleFieldForPid(row, key, pid);
}

void VQTarvMainWindowInfoSynch::FindBiggestVSZ() {
  const bool ignoresPidZero = IgnoresPidZero();
  gBiggestVSZ = 0;
  PropertyReader reader;
  for (const std::int32_t pid : PidBlob()) {
    const char* text = reader.Read(pid, "pid_vsz");
    if (text == nullptr) {
      std::printf("ACK! %d DOES NOT EXIST OR SOMETHING!!!\n", pid);
      continue;
    }
    const auto size = IntegerOf(ReadValue(kPropertyTypeInteger, text));
    // The row's own figure is the same one; it is not read twice.
    if (auto* row = mOwner.rows().Find(pid)) row->Set(kInternalVsz, size);
    if (pid == 0 && ignoresPidZero) continue;
    gBiggestVSZ = std::max(gBiggestVSZ, size);
  }
}

void VQTarvMainWindowInfoSynch::RefreshBars() {
  const bool drewText = gDrawVSZText;
  const auto biggest = gBiggestVSZ;
  gDrawVSZText = DrawsVSZText();
  mOwner.rows().TidyUp();
  FindBiggestVSZ();
  PropertyReader reader;
  for (auto* row : mOwner.rows().All()) {
    if (const char* text = reader.Read(row->Pid(), "pid_rsz"))
      row->Set(kInternalRsz, ReadValue(kPropertyTypeInteger, text));
    row->SetIndicator(ProcessIndicatorImageName(row->Pid()));
  }
  // Every bar is measured by the biggest.
  if (drewText != gDrawVSZText || biggest != gBiggestVSZ) mOwner.memoryBarsHaveChanged();
}

void VQTarvMainWindowInfoSynch::UpdateCPUShares() {
  const auto now = TheMachine().clock.Now();
  for (auto* row : mOwner.rows().All()) {
    const auto activeTime = ActiveTimeOf(row->Pid());
    if (!activeTime) continue;
    // Without a reading the share stays, and the next one is of all the time since the last.
    const auto& reading = row->cpuReading;
    if (!reading.internal_current_active_time.IsZero() && !AreCPUTimesFresh(row->Pid())) continue;
    setCPUDelta(*row, *activeTime, now);
    row->Set(kMetaActiveTime, *activeTime);
    row->Sortable().Set(kMetaActiveTime, *activeTime);
  }
}

void VQTarvMainWindowInfoSynch::BeepForHexadecimals() {
  if (std::exchange(mHexadecimalWasMet, false)) QApplication::beep();
}

void VQTarvMainWindowInfoSynch::UpdateChangingFields() {
  for (const KeyId key : mOwner.keysWeTrackForUI()) {
    const char* name = KeyText(key).data();
    // The active time has just been read.
    if (IsInternalKey(name) || key == kMetaActiveTime) continue;
    int changes = 0;
    GetProcPropertyType(name, &changes);
    const bool all = changes != 0 || gNewColumnWasAddedRecently;
    // What stays may come late all the same: a column of ps after its row.
    if (!all && FindBuiltInProperty(name) != nullptr) continue;
    for (auto* row : mOwner.rows().All())
      if (all || std::holds_alternative<std::monostate>(row->Get(key)))
        UpdateSingleFieldForPid(*row, key, row->Pid());
  }
}

void VQTarvMainWindowInfoSynch::NotifyPSColumnsHaveChanged() {
  mOwner.showColumnsThatCame();
  bool isSorted = false;
  for (const KeyId key : mOwner.keysWeTrackForUI()) {
    const char* name = KeyText(key).data();
    if (IsInternalKey(name) || FindBuiltInProperty(name) != nullptr) continue;
    for (auto* row : mOwner.rows().All()) UpdateSingleFieldForPid(*row, key, row->Pid());
    if (key == mOwner.sortColumn()) isSorted = true;
  }
  mOwner.noteFreshColumns();
  if (isSorted) mOwner.setNeedsResort();
  mOwner.triggerReload();
}

void VQTarvMainWindowInfoSynch::NotifyProcessesHaveBeenUpdated() {
  RefreshBars();
  UpdateCPUShares();
  UpdateChangingFields();
  gNewColumnWasAddedRecently = false;
  mOwner.noteStaleColumns();
  mOwner.showColumnsThatCame();
  BeepForHexadecimals();
  if (mOwner.sortColumn() != kNoKey) {
    int changes = 0;
    const char* name = KeyText(mOwner.sortColumn()).data();
    GetProcPropertyType(name, &changes);
    if (changes != 0) mOwner.setNeedsResort();
  }
  mFigures = ReadSystemFigures();
  UpdateSystemInfoToolbarItemCPU();
  UpdateSystemInfoToolbarItemMemory();
  UpdateSystemInfoToolbarItemPageouts();
  mOwner.triggerReload();
  mOwner.turnHasEnded();
}

void VQTarvMainWindowInfoSynch::NotifyPidHasBeenAdded(int pid) {
  if (!Expect(mOwner.rows().Find(pid) == nullptr, kSynchUnit, "0")) return;
  auto& row = mOwner.rows().Add(pid, mOwner.internalRepresentations().Of(pid));
  UpdateAllFields(row, pid);
  mOwner.setNeedsResort();
}

void VQTarvMainWindowInfoSynch::NotifyPidHasBeenRemoved(int pid) {
  mOwner.rows().Remove(pid);
  mOwner.forgetSortableValues(pid);
  mOwner.setNeedsReload();
}

void VQTarvMainWindowInfoSynch::NotifyPidHasChangedAppreciably(int pid) {
  auto* row = mOwner.rows().Find(pid);
  if (row == nullptr) return;
  row->icon.internal_Icon_Has_Been_Inited = false;
  row->SetChanged(true);
  UpdateAllFields(*row, pid);
  mOwner.setNeedsResort();
}

void VQTarvMainWindowInfoSynch::NotifyPreferencesHaveBeenUpdated() {
  std::uint8_t found = 0;
  const auto interval = GetPrefInt(kMainWindowIntervalKey, &found, false, 0);
  if (found != 0) SetInterval(interval);
  RefreshBars();
  for (auto* row : mOwner.rows().All()) {
    UpdateAllFields(*row, row->Pid());
    // Formats may be others, too.
    row->SetChanged(true);
  }
  BeepForHexadecimals();
  mOwner.setNeedsResort();
  // The gauges' texts have formats, too.
  ShowSystemInfo();
  mOwner.triggerReload();
}

bool VQTarvMainWindowInfoSynch::SelectPID(int pid) {
  return zm_MainWindow != nullptr && zm_MainWindow->mOwner.selectPid(pid);
}

}  // namespace lurkwell
