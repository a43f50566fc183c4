#include "platform/desktop/KnownApplications.h"

#include <utility>

namespace lurkwell {

KnownApplication& KnownApplications::Add(const ProcessIdentity& process,
                                         const ProcFolder& processes) {
  mPlaces[process.pid] = mOrder.size();
  auto& added = *mOrder.emplace_back(std::make_unique<KnownApplication>());
  added.process = process;
  added.psn = SerialNumberOf(process);
  added.end = processes.Follow(process);
  mEnds.push_back({added.end.Get(), POLLIN, 0});
  return added;
}

void KnownApplications::DropEnded(const ProcFolder& processes) {
  const bool areAsked = ::poll(mEnds.data(), mEnds.size(), 0) >= 0;
  std::size_t kept = 0;
  for (std::size_t i = 0; i < mOrder.size(); ++i) {
    const bool mayHaveEnded = !areAsked || mEnds[i].fd < 0 || mEnds[i].revents != 0;
    if (mayHaveEnded && !processes.IsThere(mOrder[i]->process)) {
      mPlaces.erase(mOrder[i]->process.pid);
      continue;
    }
    mPlaces[mOrder[i]->process.pid] = kept;
    std::swap(mEnds[kept], mEnds[i]);
    std::swap(mOrder[kept++], mOrder[i]);
  }
  mOrder.resize(kept);
  mEnds.resize(kept);
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
