#include "consolidator/RecordStore.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

#include "platform/Assertion.h"

namespace lurkwell {

std::int32_t RecordStore::HeadPid() const {
  return mRecords.empty() ? kInvalidPID : mRecords.front().pid;
}

MetaProcessInformation* RecordStore::GetExistingPIDInformation(std::int32_t pid) {
  if (mLastFound != nullptr && mLastFound->pid == pid) return mLastFound;
  const auto found = mByPid.find(pid);
  if (found == mByPid.end()) return nullptr;
  return mLastFound = found->second;
}

MetaProcessInformation& RecordStore::GetPIDInformation(std::int32_t pid) {
  Require(pid != kInvalidPID, kUnit, "pid != kInvalidPID");
  if (auto* existing = GetExistingPIDInformation(pid)) return *existing;
  auto& record = mRecords.emplace_front(pid);
  record.valid = true;
  if (pid >= 0)
    record.pidInfo = std::make_unique<PidBlock>();
  else
    ++mWithoutKernelPid;
  mByPid.emplace(pid, &record);
  mLastFound = &record;
  return record;
}

MetaProcessInformation* RecordStore::FindBySerialNumber(ProcessSerialNumber psn) {
  const auto found = mBySerialNumber.find(psn);
  return found == mBySerialNumber.end() ? nullptr : found->second;
}

void RecordStore::SetSerialNumber(MetaProcessInformation& record, ProcessSerialNumber psn) {
  if (record.psn == psn) return;
  if (FindBySerialNumber(record.psn) == &record) mBySerialNumber.erase(record.psn);
  record.psn = psn;
  record.NoteValueChange();
  if (psn.IsNone()) {
    mWithSerialNumber.erase(&record);
    return;
  }
  mBySerialNumber[psn] = &record;
  mWithSerialNumber.insert(&record);
}

void RecordStore::Invalidate(MetaProcessInformation& record) {
  if (std::exchange(record.valid, false)) ++mInvalid;
}

RecordStore::List::iterator RecordStore::EraseAfter(List::iterator position) {
  auto& record = *std::next(position);
  if (FindBySerialNumber(record.psn) == &record) mBySerialNumber.erase(record.psn);
  mWithSerialNumber.erase(&record);
  if (!record.valid) --mInvalid;
  if (record.pid < 0) --mWithoutKernelPid;
  mByPid.erase(record.pid);
  mLastFound = nullptr;
  return mRecords.erase_after(position);
}

void RecordStore::Clear() {
  mLastFound = nullptr;
  mWithoutKernelPid = 0;
  mInvalid = 0;
  mHaveAnyChanged = false;
  mByPid.clear();
  mBySerialNumber.clear();
  mWithSerialNumber.clear();
  mRecords.clear();
}

std::optional<std::int32_t> SyntheticPidTable::Find(ProcessSerialNumber psn) const {
  for (std::size_t i = 0; i < mCount; ++i)
    if (mSlots[i].inUse && mSlots[i].psn == psn) return mSlots[i].pid;
  return std::nullopt;
}

std::optional<ProcessSerialNumber> SyntheticPidTable::Find(std::int32_t pid) const {
  for (std::size_t i = 0; i < mCount; ++i)
    if (mSlots[i].inUse && mSlots[i].pid == pid) return mSlots[i].psn;
  return std::nullopt;
}

/// A flood of serial numbers may use up all negative numbers; then they start over, below those
/// that are kept.
std::int32_t SyntheticPidTable::After(std::int32_t pid) {
  constexpr auto kKept = static_cast<std::int32_t>(std::tuple_size_v<decltype(mSlots)>) - 1;
  return pid == std::numeric_limits<std::int32_t>::min() ? kFirst - kKept : pid - 1;
}

std::int32_t SyntheticPidTable::HandOut(ProcessSerialNumber psn, RecordStore& records) {
  std::int32_t pid = gCurrentFakePid;
  while (records.GetExistingPIDInformation(pid) != nullptr) pid = After(pid);
  mSlots[mCount] = {psn, pid, true};
  gCurrentFakePid = After(pid);
  mCount = std::min(mCount + 1, mSlots.size() - 1);
  return pid;
}

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
