#include "process_details/DetailsClient.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

/// Milliseconds; the graphs' moments are no closer.
constexpr std::int32_t kShortestTurn = 500;
constexpr std::int32_t kLongestTurn = 5000;
constexpr std::int32_t kUnseenTurns = 5;

}  // namespace

DetailsClient::DetailsClient(ProcessIdentity process, DetailsViewer& viewer)
    : ProcessInformationClient(nullptr, kShortestTurn), mProcess(process), mViewer(viewer) {
  SetTurns();
}

DetailsClient::~DetailsClient() {
  mViewer.clientIsGone();
}

void DetailsClient::SetTurns() {
  const auto turn = std::clamp(ReadInt("MAIN_WINDOW_INTERVAL"), kShortestTurn, kLongestTurn);
  SetInterval(mIsSeen ? turn : turn * kUnseenTurns);
}

void DetailsClient::SetNeeds(std::vector<const char*> properties) {
  mNeeds = std::move(properties);
  if (mIsSeen) RequestUpdate(this);
}

void DetailsClient::SetSeen(bool isSeen) {
  if (std::exchange(mIsSeen, isSeen) == isSeen) return;
  SetTurns();
  if (isSeen) RequestUpdate(this);
}

bool DetailsClient::Needs(const char* property) const {
  return std::ranges::any_of(
      mNeeds, [property](const char* needed) { return std::strcmp(needed, property) == 0; });
}

ProcessInformationClient::NeedLevel DetailsClient::NeedProcPropertiesForPid(int pid) {
  return Is(pid) ? kNeedSomeProcProperties : kNeedNoProcProperties;
}

ProcessInformationClient::NeedLevel DetailsClient::NeedPidsForProcProperty(const char* property) {
  return !mHasEnded && Needs(property) ? kNeedSomePids : kNeedNoPids;
}

bool DetailsClient::NeedPidProcProperty(int pid, const char* property) {
  return Is(pid) && Needs(property);
}

std::vector<std::int32_t> DetailsClient::PidsInSight() {
  return mIsSeen && !mHasEnded ? std::vector{mProcess.pid} : std::vector<std::int32_t>();
}

void DetailsClient::NotifyPidHasBeenRemoved(int pid) {
  if (Is(pid)) End();
}

void DetailsClient::NotifyPreferencesHaveBeenUpdated() {
  SetTurns();
  if (!mHasEnded) RequestUpdate(this);
}

void DetailsClient::NotifyProcessesHaveBeenUpdated() {
  if (mHasEnded) return;
  // Another process may have the pid already.
  if (GetPidsStartStamp(mProcess.pid) != mProcess.startStamp) return End();
  mViewer.turnHasEnded();
}

void DetailsClient::End() {
  mHasEnded = true;
  mNeeds.clear();
  mViewer.processHasEnded();
}

}  // namespace lurkwell
