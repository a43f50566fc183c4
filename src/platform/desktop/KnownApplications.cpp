#include "platform/desktop/KnownApplications.h"

namespace lurkwell {

KnownApplication& KnownApplications::Add(const ProcessIdentity& process) {
  mPlaces[process.pid] = mOrder.size();
  auto& added = *mOrder.emplace_back(std::make_unique<KnownApplication>());
  added.process = process;
  added.psn = SerialNumberOf(process);
  return added;
}

void KnownApplications::DropEnded(const ProcFolder& processes) {
  if (std::erase_if(mOrder,
                    [&](const auto& known) { return !processes.IsThere(known->process); }) == 0) {
    return;
  }
  mPlaces.clear();
  for (std::size_t i = 0; i < mOrder.size(); ++i) mPlaces[mOrder[i]->process.pid] = i;
}

KnownApplication* KnownApplications::FindPid(std::int32_t pid) {
  const auto place = mPlaces.find(pid);
  return place == mPlaces.end() ? nullptr : mOrder[place->second].get();
}

KnownApplication* KnownApplications::Find(ProcessSerialNumber psn) {
  auto* known = FindPid(static_cast<std::int32_t>(psn.low));
  return known != nullptr && known->psn == psn ? known : nullptr;
}

const KnownApplication* KnownApplications::After(ProcessSerialNumber previous) const {
  std::size_t next = 0;
  if (!previous.IsNone()) {
    const auto place = mPlaces.find(static_cast<std::int32_t>(previous.low));
    if (place == mPlaces.end() || mOrder[place->second]->psn != previous) return nullptr;
    next = place->second + 1;
  }
  return next < mOrder.size() ? mOrder[next].get() : nullptr;
}

}  // namespace lurkwell
