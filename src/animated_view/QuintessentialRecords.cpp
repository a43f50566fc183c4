// How processes come into the animated view, change and leave it.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

#include "animated_view/Placement.h"
#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/QuintessentialHost.h"
#include "animated_view/QuintessentialInformationClient.h"
#include "animated_view/QuintessentialLayout.h"
#include "consolidator/Applications.h"
#include "consolidator/PropertyValues.h"
#include "consolidator/WholeNames.h"
#include "platform/PrintableText.h"
#include "preferences/LessMotion.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

using Guard = CriticalRegion::Guard;
using Info = QuintessentialInformationProcessInfo;

/// Busy processes are drawn larger than the usual icon, and have to stay sharp.
constexpr int kIconSize = 256;
constexpr std::int32_t kValueSize = 63;

bool IsNeeded(const char* property) {
  return std::strcmp(property, "meta_name") == 0 || std::strcmp(property, "pid_parent_pid") == 0;
}

bool ReadName(Info& info) {
  char name[Info::kNameSize];
  if (!GetPIDPropertyValue(info.pid, "meta_name", name, sizeof name, nullptr)) return false;
  std::memcpy(info.name, name, sizeof name);
  return true;
}

void ReleaseTextures(Info& info) LURKWELL_REQUIRES(gQuintessentialMutex) {
  if (gQuintessentialHost != nullptr) gQuintessentialHost->ReleaseTextures(info);
  info.texturesReady = false;
}

void MakeLabel(Info& info) {
  const auto whole = WholeNameOf(info.pid);
  // Names come from outside.
  info.labelImage =
      gQuintessentialHost != nullptr
          ? gQuintessentialHost->LabelImage(PrintableText(whole.empty() ? info.name : whole))
          : nullptr;
}

}  // namespace

ProcessInformationClient::NeedLevel QuintessentialInformationClient::NeedPidsForProcProperty(
    const char* property) {
  return NeedPidProcProperty(0, property) ? kNeedAllPids : kNeedNoPids;
}

bool QuintessentialInformationClient::NeedPidProcProperty(int, const char* property) {
  return IsNeeded(property);
}

void QuintessentialInformationClient::NotifyPidHasBeenAdded(int pid) {
  Info info;
  info.pid = pid;
  if (pid != 0) {
    info.x = RandomFraction(mRandom);
    info.y = RandomFraction(mRandom);
  }
  TakeIcon(info);
  mNewQipiList.PushFront(std::move(info));
}

void QuintessentialInformationClient::NotifyPidHasBeenRemoved(int pid) {
  const Guard guard(gQuintessentialMutex);
  mNewQipiList.Remove(pid, ReleaseTextures);
  mQipiList.Remove(pid, ReleaseTextures);
}

void QuintessentialInformationClient::NotifyPidHasChangedAppreciably(int pid) {
  const Guard guard(gQuintessentialMutex);
  // One that still waits for its place is named when it gets it.
  mNewQipiList.ForEach(pid, [this](Info& info) { TakeIcon(info); });
  mQipiList.ForEach(pid, [this](Info& info) LURKWELL_REQUIRES(gQuintessentialMutex) {
    // Nameless, the first record asks for its name again in the coming update.
    if (!ReadName(info)) mQipiList.front().name[0] = '\0';
    mNames.Add(info.pid);
    ReleaseTextures(info);
    TakeIcon(info);
    MakeLabel(info);
  });
}

void QuintessentialInformationClient::NotifyProcessesHaveBeenUpdated() {
  if (!gQuintessentialViewIsCurrentlyShown) return;
  QipiList ready;
  if (!mNewQipiList.empty()) PlaceNewRecords(ready);
  {
    const Guard guard(gQuintessentialMutex);
    for (auto record = ready.begin(); record != ready.end();)
      record = mQipiList.Take(ready, record);
    for (auto& info : mQipiList)
      if (NameIfNameless(info) && info.labelTexture != 0) ReleaseTextures(info);
    mIsStill = WantsLessMotion();
    StabilizeOnce();
  }
  // The machine is waited for outside the mutex, so that the drawing goes on.
  LearnNames();
}

bool QuintessentialInformationClient::NameIfNameless(Info& info) {
  if (info.name[0] != '\0' || !ReadName(info)) return false;
  mNames.Add(info.pid);
  info.texturesReady = false;
  MakeLabel(info);
  return true;
}

void QuintessentialInformationClient::LearnNames() {
  const auto pids = mNames.LearnSome();
  if (pids.empty()) return;
  const Guard guard(gQuintessentialMutex);
  for (const auto pid : pids)
    mQipiList.ForEach(pid, [](Info& info) LURKWELL_REQUIRES(gQuintessentialMutex) {
      ReleaseTextures(info);
      MakeLabel(info);
    });
}

void QuintessentialInformationClient::MakeLabelsAnew() {
  for (auto& info : mQipiList) {
    info.texturesReady = false;
    MakeLabel(info);
  }
}

void QuintessentialInformationClient::PlaceNewRecords(QipiList& ready) {
  for (auto& info : mNewQipiList) {
    if (info.parentPid >= 0) continue;
    char text[kValueSize];
    int parent = -1;
    if (GetPIDPropertyValue(info.pid, "pid_parent_pid", text, kValueSize, nullptr) &&
        std::sscanf(text, "%d", &parent) == 1 && parent >= 0)
      info.parentPid = parent;
  }
  // Places are looked for outside the mutex, so that the drawing goes on.
  Placement placement = [this] {
    const Guard guard(gQuintessentialMutex);
    return Placement(mNewQipiList, mQipiList, mRandom);
  }();
  auto unsettled = mNewQipiList.begin();
  while (unsettled != mNewQipiList.end() && placement.SetUpInitialCoords(*unsettled)) ++unsettled;
  bool isSettled = true;
  for (auto record = mNewQipiList.begin(); record != mNewQipiList.end();) {
    isSettled = isSettled && record != unsettled;
    if (!isSettled && !record->locationInitialized) {
      ++record;
      continue;
    }
    NameIfNameless(*record);
    record = ready.Take(mNewQipiList, record);
  }
}

void QuintessentialInformationClient::StabilizeOnce() {
  if (mHasStabilized) return;
  mHasStabilized = true;
  double spread = DisIsRevoltin(mQipiList, true);
  const auto steps = std::min(ReadInt("QUINT_MAX_ITERATIONS_TO_STABILIZE_WHEN_FIRST_SHOWING"),
                              kMostStabilizingSteps);
  for (std::int32_t i = 0; i < steps; ++i) {
    const double before = std::exchange(spread, DisIsRevoltin(mQipiList, true));
    if (spread <= before) break;
  }
}

void QuintessentialInformationClient::TakeIcon(Info& info) {
  info.iconImage = ProcessIconImage(info.pid, kIconSize);
  info.usesDefaultIcon = info.iconImage == nullptr;
  info.iconTexture = 0;
  info.texturesReady = false;
  if (!info.usesDefaultIcon) return;
  if (mDefaultIcon == nullptr && gQuintessentialHost != nullptr)
    mDefaultIcon = gQuintessentialHost->NamedPicture("qvdefault");
  info.iconImage = mDefaultIcon;
}

void QuintessentialInformationClient::CleanUp(QipiList& list) {
  for (auto& info : list) ReleaseTextures(info);
  list.Clear();
}

}  // namespace lurkwell
