#include "consolidator/PidStack.h"

#include "platform/ProcessIdentity.h"

namespace lurkwell {

void PidStack::Push(std::int32_t pid) {
  mPlaces.emplace(pid, mPids.size());
  mPids.push_back(pid);
}

std::int32_t PidStack::Pop() {
  TrimTop();
  const std::int32_t pid = mPids.back();
  const std::size_t place = mPids.size() - 1;
  mPids.pop_back();
  for (auto [at, end] = mPlaces.equal_range(pid); at != end; ++at) {
    if (at->second != place) continue;
    mPlaces.erase(at);
    break;
  }
  return pid;
}

bool PidStack::Remove(std::int32_t pid) {
  const auto [begin, end] = mPlaces.equal_range(pid);
  if (begin == end) return false;
  for (auto at = begin; at != end; ++at) mPids[at->second] = kInvalidPID;
  mPlaces.erase(begin, end);
  TrimTop();
  return true;
}

void PidStack::TrimTop() {
  while (!mPids.empty() && mPids.back() == kInvalidPID) mPids.pop_back();
}

}  // namespace lurkwell
