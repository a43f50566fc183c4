#include "consolidator/FamilyIndex.h"

#include <algorithm>

namespace lurkwell {

std::int32_t ParentOf(const MetaProcessInformation& record) {
  if (record.pidInfo == nullptr) return kInvalidPID;
  const std::int32_t parent = record.pidInfo->parentPid;
  return parent == record.pid ? kInvalidPID : parent;
}

void FamilyIndex::Make(RecordStore& records) {
  mChildren.clear();
  std::uint32_t place = 0;
  for (const auto& record : records.Records()) {
    const auto parent = ParentOf(record);
    if (parent != kInvalidPID) mChildren.push_back({parent, record.pid, place, record.valid});
    ++place;
  }
  std::ranges::sort(mChildren, {}, &Child::parent);
  mIsTaken.assign(place, false);
  mIsMade = mIsShared;
}

std::vector<std::int32_t> FamilyIndex::Descendants(RecordStore& records, std::int32_t ancestor) {
  if (!mIsMade) Make(records);
  std::vector<Child> family;
  const auto takeChildrenOf = [&](std::int32_t pid) {
    auto child = std::ranges::lower_bound(mChildren, pid, {}, &Child::parent);
    for (; child != mChildren.end() && child->parent == pid; ++child) {
      // Families that go round in a loop end where they began.
      if (mIsTaken[child->place]) continue;
      mIsTaken[child->place] = true;
      family.push_back(*child);
    }
  };
  takeChildrenOf(ancestor);
  for (std::size_t next = 0; next < family.size(); ++next) takeChildrenOf(family[next].pid);
  std::ranges::sort(family, {}, &Child::place);
  std::vector<std::int32_t> pids;
  for (const auto& member : family) {
    mIsTaken[member.place] = false;
    if (member.valid) pids.push_back(member.pid);
  }
  return pids;
}

}  // namespace lurkwell
