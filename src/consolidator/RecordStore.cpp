#include "consolidator/RecordStore.h"

#include <iterator>
#include <utility>

#include "consolidator/Unit.h"
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

}  // namespace lurkwell
