#include "animated_view/QuintessentialInformationProcessInfo.h"

#include <utility>

namespace lurkwell {

QuintessentialInformationProcessInfo& QipiList::PushFront(Info&& info) {
  mRecords.push_front(std::move(info));
  mByPid.emplace(mRecords.front().pid, mRecords.begin());
  return mRecords.front();
}

QuintessentialInformationProcessInfo& QipiList::PushBack(Info&& info) {
  mRecords.push_back(std::move(info));
  mByPid.emplace(mRecords.back().pid, std::prev(mRecords.end()));
  return mRecords.back();
}

QipiList::iterator QipiList::Take(QipiList& from, iterator record) {
  const auto behind = std::next(record);
  auto [entry, last] = from.mByPid.equal_range(record->pid);
  while (entry != last && entry->second != record) ++entry;
  if (entry != last) from.mByPid.erase(entry);
  mRecords.splice(mRecords.end(), from.mRecords, record);
  mByPid.emplace(record->pid, record);
  return behind;
}

void QipiList::Clear() {
  mByPid.clear();
  mRecords.clear();
}

QuintessentialInformationProcessInfo* QipiList::Find(std::int32_t pid) {
  const auto found = mByPid.find(pid);
  return found != mByPid.end() ? &*found->second : nullptr;
}

const QuintessentialInformationProcessInfo* QipiList::Find(std::int32_t pid) const {
  const auto found = mByPid.find(pid);
  return found != mByPid.end() ? &*found->second : nullptr;
}

}  // namespace lurkwell
