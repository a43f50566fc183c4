#include "main_window/VQTarvMainWindowInfoSynch.h"

#include <QApplication>
#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "consolidator/PI_Consolidator.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/HostStatistics.h"
#include "platform/Machine.h"
#include "preferences/Settings.h"
#include "process_control/ProcessActions.h"
#include "windows/ControllerAssertion.h"
#include "windows/CustomCells.h"
#include "windows/PropertyText.h"
#include "windows/RowSorting.h"

namespace lurkwell {

QPointer<QWidget> gNSMainWindow;
bool gNewColumnWasAddedRecently = false;
VQTarvMainWindowInfoSynch* VQTarvMainWindowInfoSynch::zm_MainWindow = nullptr;

namespace {

constexpr char kSynchUnit[] = "VQTarvMainWindowInfoSynch";
constexpr char kIntervalKey[] = "MAIN_WINDOW_INTERVAL";
constexpr std::int32_t kUnseenFactor = 10;

/// Read of every process, shown or not: for the bars, the filter, questions and two sorts.
const std::array<KeyId, 3>& AlwaysRead() {
  static const std::array<KeyId, 3> keys{kMetaName, kPidRsz, kPidVsz};
  return keys;
}

/// What the order of the rows depends on when they are sorted by a column; kNoKey for the badges,
/// which are no values.
KeyId SortedBy(KeyId column) {
  if (column == kInternalCPUPercent) return kInternalCpuUsage;
  if (column == kInternalMemGraph) return MemoryFigureKey();
  if (column == kInternalIcon) return kMetaName;
  return column == kInternalIndicator ? kNoKey : column;
}

bool IsOfPS(KeyId key) {
  const char* name = KeyText(key).data();
  return !IsInternalKey(name) && FindBuiltInProperty(name) == nullptr;
}

}  // namespace

VQTarvMainWindowInfoSynch::VQTarvMainWindowInfoSynch(long interval, SynchronisedTable& owner)
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
  // While this was not served, not even what never changes was read, no change of preferences was
  // told, and what happened is no figure of one turn.
  gNewColumnWasAddedRecently = true;
  SetSeenInterval(ReadInt(kIntervalKey));
  mMachineUsage = {};
  mPreviousPageouts.reset();
  mFilteredPageouts = 0.0;
  AddProcessInformationClient(this);
  gNSMainWindow = mOwner.tableWindow();
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

void VQTarvMainWindowInfoSynch::SetSeenInterval(std::int32_t milliseconds) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max() / kUnseenFactor;
  SetInterval(mIsSeen ? milliseconds : std::min(milliseconds, kMost) * kUnseenFactor);
}

void VQTarvMainWindowInfoSynch::SetSeen(bool isSeen) {
  if (std::exchange(mIsSeen, isSeen) == isSeen) return;
  SetSeenInterval(ReadInt(kIntervalKey));
  if (!isSeen) StopFlashing();
  if (isSeen && mHooked) RequestUpdate(this);
}

ProcessInformationClient::NeedLevel VQTarvMainWindowInfoSynch::NeedPidsForProcProperty(
    const char* key) {
  // Out of sight it only keeps up with what is there; the first turn in sight reads the rest.
  if (!mIsSeen) return kNeedNoPids;
  const bool needed = NeedPidProcProperty(kInvalidPID, key) || std::strcmp(key, "pid_rsz") == 0 ||
                      std::strcmp(key, "pid_vsz") == 0;
  return needed ? kNeedAllPids : kNeedNoPids;
}

bool VQTarvMainWindowInfoSynch::NeedPidProcProperty(int, const char* key) {
  // Questions, the filter and two sorts want names, shown or not.
  return mOwner.needsProperty(key) || std::strcmp(key, "meta_active_time") == 0 ||
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
  Set(row, kInternalCpuUsage, share);
}

void VQTarvMainWindowInfoSynch::Set(RowDictionary& row, KeyId key, RowValue value) {
  if (!row.Set(key, std::move(value)) || row.isWaiting) return;
  if (key == mSortedBy) mOwner.setNeedsResort();
  if (mOwner.standingDependsOn(key)) mOwner.noteStandingHasChanged();
  // What is remembered is remembered by name.
  if (key == kMetaName && !row.isFoldChosen) row.isFolded.reset();
}

void VQTarvMainWindowInfoSynch::TakeOrigin(RowDictionary& row, const ProcessGlance& glance) {
  const RowOrigin origin{glance.parentPid, glance.startStamp, glance.isApplication,
                         glance.isKernelThread};
  if (std::exchange(row.origin, origin) != origin && !row.isWaiting)
    mOwner.noteStandingHasChanged();
}

void VQTarvMainWindowInfoSynch::UpdateSingleFieldForPid(RowDictionary& row, KeyId key, int pid) {
  const char* name = KeyText(key).data();
  if (IsInternalKey(name)) return;
  const auto type = GetProcPropertyType(name, nullptr);
  if (type == kPropertyTypeHex) {
    mHexadecimalWasMet = true;
    return;
  }
  if (type == kPropertyTypeDate && pid < 0) return;
  if (key == kMetaName) {
    mNamesToLearn.Add(pid);
    Set(row, key, WholeNameOf(pid));
    return;
  }
  Set(row, key, GetPIDPropertyTypedValue(pid, name));
}

void VQTarvMainWindowInfoSynch::UpdateAllFields(RowDictionary& row, int pid) {
  row.changeStamp = GlanceAt(pid).changeStamp;
  for (const KeyId key : AlwaysRead()) UpdateSingleFieldForPid(row, key, pid);
  for (const KeyId key : mOwner.layout().Keys())
    if (std::ranges::find(AlwaysRead(), key) == AlwaysRead().end())
      UpdateSingleFieldForPid(row, key, pid);
  for (const KeyId key : mOwner.keysBesideColumns())
    if (!mOwner.layout().Has(KeyText(key))) UpdateSingleFieldForPid(row, key, pid);
}

void VQTarvMainWindowInfoSynch::RefreshBars() {
  const bool drewText = std::exchange(gDrawVSZText, ReadSwitch("MEM_GRAPH_DRAW_VSZ"));
  const KeyId figure = MemoryFigureKey();
  const auto physical = mFigures.physicalBytes > 0 ? mFigures.physicalBytes
                                                   : TheMachine().hostStatistics.PhysicalMemory();
  gMostMeasured = physical > 0 ? physical : std::numeric_limits<std::int64_t>::max();
  const auto biggest = std::exchange(gBiggestVSZ, 0);
  const bool ignoresPidZero = IgnoresPidZero();
  for (auto* row : mOwner.rows().All()) {
    // Its pid may be another's by now.
    if (!row->isDeparted && row->SetIndicator(ProcessIndicatorImageName(row->Pid()))) {
      mOwner.noteFactsHaveChanged();
      if (mSortedBy == kNoKey) mOwner.setNeedsResort();
    }
    const auto size = IntegerOf(row->Get(figure));
    if ((row->Pid() != 0 || !ignoresPidZero) && size <= gMostMeasured)
      gBiggestVSZ = std::max(gBiggestVSZ, size);
  }
  gBiggestVSZ = std::max(gBiggestVSZ, mOwner.biggestTotalVSZ());
  // Every bar is measured by the biggest.
  const bool haveBarsChanged = drewText != gDrawVSZText || biggest != gBiggestVSZ;
  if (haveBarsChanged && mOwner.layout().Has(KeyText(kInternalMemGraph)))
    for (auto* row : mOwner.rows().All()) row->SetChanged(true);
}

void VQTarvMainWindowInfoSynch::RefreshRow(RowDictionary& row, TimeValue now) {
  const auto glance = GlanceAt(row.Pid());
  if (glance.changeStamp == 0) {
    DiagnoseVerbatim("ACK! %d DOES NOT EXIST OR SOMETHING!!!", row.Pid());
    return;
  }
  TakeOrigin(row, glance);
  // Without a reading the share stays, and the next one is of all the time since the last.
  if (glance.timesAreFresh) setCPUDelta(row, glance.activeTime, now);
  if (row.changeStamp == glance.changeStamp && !gNewColumnWasAddedRecently) return;
  row.SetRunState(glance.runState);
  UpdateAllFields(row, row.Pid());
}

void VQTarvMainWindowInfoSynch::LearnNames() {
  for (const auto pid : mNamesToLearn.LearnSome())
    if (auto* row = mOwner.rows().Find(pid)) Set(*row, kMetaName, WholeNameOf(pid));
}

void VQTarvMainWindowInfoSynch::RefreshRows() {
  const auto now = TheMachine().clock.Now();
  mSortedBy = SortedBy(mOwner.sortedBy());
  mOwner.rows().TidyUp();
  for (auto* row : mOwner.rows().All()) RefreshRow(*row, now);
  LearnNames();
  RefreshBars();
}

void VQTarvMainWindowInfoSynch::ReadForHeldRows(bool psHasEnded) {
  for (const KeyId key : mOwner.keysSincePause()) {
    if (IsOfPS(key) != psHasEnded) continue;
    // What the record has may be of long ago; what it has not may come from the background.
    const bool isNew = std::ranges::find(mReadInPause, key) == mReadInPause.end();
    if (isNew) mReadInPause.push_back(key);
    for (auto* row : mOwner.rows().All())
      if (!row->isDeparted && (isNew || !IsKnown(row->Get(key))))
        UpdateSingleFieldForPid(*row, key, row->Pid());
    mOwner.noteHeldRowsWereRead(key);
  }
}

void VQTarvMainWindowInfoSynch::BeepForHexadecimals() {
  if (std::exchange(mHexadecimalWasMet, false)) QApplication::beep();
}

void VQTarvMainWindowInfoSynch::NotifyPSColumnsHaveChanged() {
  if (mOwner.isPaused()) {
    gNewColumnWasAddedRecently = true;
    ReadForHeldRows(true);
    mOwner.commitChanges();
    return;
  }
  mOwner.showColumnsThatCame();
  mSortedBy = SortedBy(mOwner.sortedBy());
  for (const KeyId key : mOwner.layout().Keys()) {
    if (!IsOfPS(key)) continue;
    for (auto* row : mOwner.rows().All()) UpdateSingleFieldForPid(*row, key, row->Pid());
  }
  mOwner.noteFreshColumns();
  mOwner.commitChanges();
}

std::vector<std::int32_t> VQTarvMainWindowInfoSynch::PidsInSight() {
  return mIsSeen ? mOwner.pidsInSight() : std::vector<std::int32_t>();
}

void VQTarvMainWindowInfoSynch::NotifyProcessesHaveBeenUpdated() {
  if (!mIsSeen) return mOwner.commitChanges();
  if (mOwner.isPaused()) {
    ReadForHeldRows(false);
  } else {
    mReadInPause.clear();
    RefreshRows();
    gNewColumnWasAddedRecently = false;
    mOwner.noteStaleColumns();
    mOwner.showColumnsThatCame();
    BeepForHexadecimals();
  }
  mFigures = ReadSystemFigures();
  UpdateSystemInfoToolbarItemCPU();
  UpdateSystemInfoToolbarItemMemory();
  UpdateSystemInfoToolbarItemPageouts();
  mOwner.commitChanges();
  mOwner.turnHasEnded();
}

void VQTarvMainWindowInfoSynch::NotifyPidHasBeenAdded(int pid) {
  if (!Expect(mOwner.rows().Find(pid) == nullptr, kSynchUnit, "0")) return;
  auto& row = mOwner.rows().Add(pid);
  const auto glance = GlanceAt(pid);
  row.SetRunState(glance.runState);
  TakeOrigin(row, glance);
  UpdateAllFields(row, pid);
  if (!row.isWaiting) mOwner.setNeedsResort();
}

void VQTarvMainWindowInfoSynch::NotifyPidHasBeenRemoved(int pid) {
  mOwner.rows().Remove(pid);
  mOwner.setNeedsReload();
}

void VQTarvMainWindowInfoSynch::NotifyPidHasChangedAppreciably(int pid) {
  auto* row = mOwner.rows().Find(pid);
  if (row == nullptr) return;
  row->icon.internal_Icon_Has_Been_Inited = false;
  if (mOwner.isPaused() && !row->isWaiting) {
    // So that the row is read when it goes on.
    row->changeStamp = 0;
    return;
  }
  row->SetChanged(true);
  UpdateAllFields(*row, pid);
  mOwner.setNeedsResort();
}

void VQTarvMainWindowInfoSynch::NotifyPreferencesHaveBeenUpdated() {
  if (const auto interval = StoredInt(kIntervalKey)) SetSeenInterval(*interval);
  mOwner.readMemoryFigure();
  mOwner.rows().TidyUp();
  for (auto* row : mOwner.rows().All()) {
    if (mOwner.isPaused())
      row->changeStamp = 0;
    else
      UpdateAllFields(*row, row->Pid());
    // Formats may be others, too.
    row->SetChanged(true);
  }
  RefreshBars();
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
