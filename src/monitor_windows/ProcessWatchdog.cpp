#include "monitor_windows/ProcessWatchdog.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "consolidator/PI_Consolidator.h"
#include "consolidator/ProcessQueries.h"
#include "monitor_windows/RememberedWindows.h"
#include "platform/Assertion.h"
#include "platform/Diagnostics.h"
#include "platform/Uuid.h"
#include "preferences/PreferenceArrays.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

std::string KeyOf(const char* name, const char* kind) {
  std::string program(name);
  program += '\0';
  return program += kind;
}

}  // namespace

std::string RememberedPrograms::ProgramAt(std::int32_t index) const {
  if (!IsPrefArrayValuePresent(mArrayName, index, "PROCESS_NAME") ||
      !IsPrefArrayValuePresent(mArrayName, index, "PROCESS_KIND"))
    return {};
  char name[kRememberedTextSize];
  char kind[kRememberedTextSize];
  ReadRememberedText(mArrayName, index, "PROCESS_NAME", name);
  ReadRememberedText(mArrayName, index, "PROCESS_KIND", kind);
  char uuid[kRememberedTextSize];
  ReadRememberedText(mArrayName, index, "WINDOW_UUID", uuid);
  return Uuid::FromText(uuid) ? KeyOf(name, kind) : std::string();
}

void RememberedPrograms::Refresh() {
  mIndices.clear();
  mPids.clear();
  mHaveOwners = false;
  mCount = GetPrefArrayCount(mArrayName);
  for (std::int32_t index = 0; index < mCount; ++index)
    if (auto program = ProgramAt(index); !program.empty()) {
      mIndices[std::move(program)].push_back(index);
      mHaveOwners = mHaveOwners || IsPrefArrayValuePresent(mArrayName, index, kRememberedOwnerKey);
      mPids.insert(ReadRememberedInt(mArrayName, index, kRememberedPidKey, -1));
    }
}

std::int32_t RememberedPrograms::Known(const std::string& program, std::int32_t startIndex) const {
  const auto at = mIndices.find(program);
  if (at == mIndices.end()) return -1;
  const auto index = std::ranges::lower_bound(at->second, startIndex);
  return index != at->second.end() ? *index : -1;
}

bool RememberedPrograms::IsOneMissing(const std::set<Program>& running) {
  Refresh();
  return std::ranges::any_of(mIndices, [&](const auto& remembered) {
    const auto& key = remembered.first;
    const auto end = key.find('\0');
    return !running.contains({key.substr(0, end), key.substr(end + 1)});
  });
}

std::int32_t RememberedPrograms::Find(const char* name, const char* kind, std::int32_t startIndex) {
  if (GetPrefArrayCount(mArrayName) != mCount) Refresh();
  const auto program = KeyOf(name, kind);
  const auto index = Known(program, startIndex);
  if (index < 0 || ProgramAt(index) == program) return index;
  // Another instance has changed the records under us.
  Refresh();
  return Known(program, startIndex);
}

namespace {

bool IsNameOrKind(const char* property) {
  return std::strcmp(property, "meta_name") == 0 || std::strcmp(property, "meta_kind") == 0;
}

bool IsApplicationSignature(const char* property) {
  return std::strcmp(property, "carbonpsn_signature") == 0;
}

bool ReadText(int pid, const char* property, char* text) {
  return GetPIDPropertyValue(pid, property, text, kRememberedTextSize, nullptr);
}

}  // namespace

ProcessWatchdog::ProcessWatchdog(std::int32_t interval, MonitorWindowKinds& kinds)
    : ProcessInformationClient(nullptr, interval), mWatchfulInterval(interval), mKinds(kinds) {}

std::int32_t ProcessWatchdog::CountRemembered() {
  return GetPrefArrayCount(kCPUHistoryWindowKind) + GetPrefArrayCount(kLoggingWindowKind);
}

ProcessInformationClient::NeedLevel ProcessWatchdog::NeedPidsForProcProperty(const char* property) {
  if (IsNameOrKind(property)) return kNeedAllPids;
  return IsApplicationSignature(property) ? kNeedSomePids : kNeedNoPids;
}

bool ProcessWatchdog::NeedPidProcProperty(int pid, const char* property) {
  if (IsNameOrKind(property)) return true;
  if (!IsApplicationSignature(property)) return false;
  char kind[kRememberedTextSize];
  return pid < kInvalidPID ||
         (ReadText(pid, "meta_kind", kind) && std::string_view(kind) == "OS X");
}

void ProcessWatchdog::NotifyPidHasBeenRemoved(int pid) {
  mHaveProgramsChanged = true;
  mKinds.ProcessHasEnded(pid);
}

/// While a program is waited for, each process that is there may become it.
bool ProcessWatchdog::NeedsOnlyBirths() {
  const auto remembered = CountRemembered();
  if (std::exchange(mHaveProgramsChanged, false) || remembered != mRemembered)
    mIsOneWaiting = remembered > 0 && IsOneWaiting();
  mRemembered = remembered;
  return !mIsOneWaiting;
}

bool ProcessWatchdog::IsOneWaiting() {
  std::set<RememberedPrograms::Program> running;
  for (const auto pid : PidBlob()) {
    char name[kRememberedTextSize];
    char kind[kRememberedTextSize];
    if (ReadText(pid, "meta_name", name) && ReadText(pid, "meta_kind", kind))
      running.emplace(name, kind);
  }
  return mHistories.IsOneMissing(running) || mLogs.IsOneMissing(running);
}

void ProcessWatchdog::Remember(int pid) {
  mHaveProgramsChanged = true;
  if (!mNewPids.Contains(pid)) mNewPids.Push(pid);
}

void ProcessWatchdog::NotifyProcessesHaveBeenUpdated() {
  constexpr std::int32_t kIdleFactor = 8;
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max() / kIdleFactor;
  SetInterval(CountRemembered() > 0 ? mWatchfulInterval
                                    : std::min(mWatchfulInterval, kMost) * kIdleFactor);
  if (mNewPids.Empty()) return;
  const PreferenceBatch batch;
  mHistories.Refresh();
  mLogs.Refresh();
  std::vector<std::pair<std::uint64_t, int>> processes;
  while (!mNewPids.Empty()) {
    const int pid = mNewPids.Pop();
    processes.emplace_back(GetPidsStartStamp(pid), pid);
  }
  // Of a program's processes the first is the one that has started the others.
  std::ranges::sort(processes);
  for (const auto& [start, pid] : processes)
    if (mHistories.IsAnyOf(pid) || mLogs.IsAnyOf(pid)) OpenWindowsOf(pid, Claim::kFollowedLast);
  if (processes.size() > 1 && (mHistories.HaveOwners() || mLogs.HaveOwners()))
    for (const auto& [start, pid] : processes) OpenWindowsOf(pid, Claim::kSameOwner);
  for (const auto& [start, pid] : processes) OpenWindowsOf(pid, Claim::kAny);
}

bool ProcessWatchdog::IsDue(const char* arrayName, std::int32_t nextIndex, int pid, Claim claim,
                            bool isOpen) const {
  if (isOpen) return false;
  if (claim == Claim::kFollowedLast) return IsRememberedProcess(arrayName, nextIndex - 1, pid);
  if (claim == Claim::kAny) return true;
  char owner[kRememberedTextSize];
  ReadRememberedText(arrayName, nextIndex - 1, kRememberedOwnerKey, owner);
  return *owner != '\0' && DescribeFollowed(pid).owner == owner;
}

void ProcessWatchdog::OpenWindowsOf(int pid, Claim claim) {
  WindowRect rect;
  Uuid uuid;
  std::int32_t index = 0;
  while (CheckClientKindForNewPid(kCPUHistoryWindowKind, pid, &index, &rect, &uuid)) {
    if (!IsDue(kCPUHistoryWindowKind, index, pid, claim, mKinds.IsCPUHistoryWindowOpen(uuid)))
      continue;
    if (!MayOpen()) break;
    const auto interval = ReadInt("DEFAULT_CPU_HISTORY_WINDOW_INTERVAL");
    mKinds.CreateCPUHistoryWindow(interval, pid, &uuid, &rect);
    RememberProcess(kCPUHistoryWindowKind, index - 1, pid);
  }
  index = 0;
  while (CheckClientKindForNewPid(kLoggingWindowKind, pid, &index, &rect, &uuid)) {
    if (!IsDue(kLoggingWindowKind, index, pid, claim, mKinds.IsLoggingWindowOpen(uuid))) continue;
    if (!MayOpen()) break;
    const auto interval = ReadInt("DEFAULT_LOGGING_WINDOW_INTERVAL");
    mKinds.CreateLoggingWindow(interval, pid, &uuid, &rect, index - 1);
    RememberProcess(kLoggingWindowKind, index - 1, pid);
  }
}

bool ProcessWatchdog::MayOpen() {
  if (mKinds.CountOpenWindows() < MonitorWindowKinds::kMostOpenWindows) return true;
  if (!mHasSaidTooMany)
    Diagnose("%d windows are open; remembered ones stay closed",
             MonitorWindowKinds::kMostOpenWindows);
  mHasSaidTooMany = true;
  return false;
}

bool ProcessWatchdog::CheckClientKindForNewPid(const char* arrayName, int pid,
                                               std::int32_t* startIndex, WindowRect* rect,
                                               Uuid* uuid) {
  Require(arrayName != nullptr, "ProcessWatchdog", "arrayName != NULL");
  if (GetPrefArrayCount(arrayName) == 0) return false;
  char name[kRememberedTextSize];
  char kind[kRememberedTextSize];
  if (!ReadText(pid, "meta_name", name) || !ReadText(pid, "meta_kind", kind)) return false;
  const bool isHistory = std::strcmp(arrayName, kCPUHistoryWindowKind) == 0;
  const auto index = (isHistory ? mHistories : mLogs).Find(name, kind, *startIndex);
  if (index < 0) return false;
  char text[kRememberedTextSize];
  ReadRememberedText(arrayName, index, "WINDOW_UUID", text);
  const auto identifier = Uuid::FromText(text);
  if (!identifier) return false;
  *rect = ReadRememberedRect(arrayName, index);
  *uuid = *identifier;
  *startIndex = index + 1;
  return true;
}

void InitializeProcessWatchdog(std::int32_t interval, MonitorWindowKinds& kinds,
                               StartUpWindows& windows) {
  AddProcessInformationClient(new ProcessWatchdog(interval, kinds));
  if (ReadSwitch("DEFAULT_SHOW_PROCESS_LIST_WINDOW")) windows.doShowMainWindow();
  if (ReadSwitch("DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW"))
    return windows.showQuintessentialViewFullScreen();
  if (ReadSwitch("DEFAULT_SHOW_PROCESS_QUIVA_WINDOW")) windows.doShowQuintessentialView();
}

}  // namespace lurkwell
