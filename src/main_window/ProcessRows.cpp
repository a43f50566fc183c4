#include "main_window/ProcessRows.h"

#include <algorithm>
#include <utility>

namespace lurkwell {

RowDictionary* ProcessRows::Find(std::int32_t pid) const {
  const auto found = mByPid.find(pid);
  return found == mByPid.end() ? nullptr : found->second.get();
}

RowDictionary& ProcessRows::Add(std::int32_t pid) {
  auto& row = mByPid[pid];
  row = std::make_unique<RowDictionary>(pid);
  row->isWaiting = mIsHeld;
  if (mIsHeld) {
    ++mWaitingCount;
    return *row;
  }
  mHaveComeOrGone = true;
  mAll.push_back(row.get());
  return *row;
}

void ProcessRows::Remove(std::int32_t pid) {
  const auto found = mByPid.find(pid);
  if (found == mByPid.end()) return;
  if (found->second->isWaiting) {
    --mWaitingCount;
  } else {
    found->second->isDeparted = true;
    found->second->SetChanged(true);
    if (mIsHeld)
      ++mEndedCount;
    else
      mHaveComeOrGone = true;
    mDeparted.push_back(std::move(found->second));
  }
  mByPid.erase(found);
}

void ProcessRows::SetHeld(bool held) {
  if (std::exchange(mIsHeld, held) == held || held) return;
  mHaveComeOrGone = mHaveComeOrGone || mEndedCount > 0 || mWaitingCount > 0;
  mEndedCount = mWaitingCount = 0;
  std::vector<RowDictionary*> came;
  for (auto& [pid, row] : mByPid)
    if (std::exchange(row->isWaiting, false)) came.push_back(row.get());
  std::ranges::sort(came, {}, [](const RowDictionary* row) {
    return std::pair(row->origin.startStamp, row->Pid());
  });
  mAll.insert(mAll.end(), came.begin(), came.end());
}

void ProcessRows::TidyUp() {
  if (mDeparted.empty() || mIsHeld) return;
  std::erase_if(mAll, [](const auto* row) { return row->isDeparted; });
  std::erase_if(mDeparted, [](const auto& row) { return row->shownIndex < 0; });
}

void ProcessRows::RemoveAll() {
  for (auto* row : mAll) Remove(row->Pid());
}

void ProcessRows::AppendNew(const std::vector<RowDictionary*>& wanted) {
  std::vector<RowDictionary*> fresh;
  for (auto* row : wanted)
    if (row->shownIndex < 0) fresh.push_back(row);
  if (fresh.empty()) return;
  const int first = static_cast<int>(mShown.size());
  mAnnouncer.BeginInsert(first, first + static_cast<int>(fresh.size()) - 1);
  for (auto* row : fresh) {
    row->shownIndex = static_cast<int>(mShown.size());
    mShown.push_back(row);
  }
  mAnnouncer.EndInsert();
}

void ProcessRows::Place(const std::vector<RowDictionary*>& order) {
  if (order == mShown) return;
  mAnnouncer.Reorder([&] {
    mShown = order;
    for (std::size_t i = 0; i < mShown.size(); ++i) mShown[i]->shownIndex = static_cast<int>(i);
  });
}

void ProcessRows::DropTail(std::size_t count) {
  if (count == 0) return;
  const auto kept = mShown.size() - count;
  mAnnouncer.BeginRemove(static_cast<int>(kept), static_cast<int>(mShown.size()) - 1);
  for (std::size_t i = kept; i < mShown.size(); ++i) mShown[i]->shownIndex = -1;
  mShown.resize(kept);
  mAnnouncer.EndRemove();
}

void ProcessRows::Commit(std::vector<RowDictionary*> order) {
  TidyUp();
  AppendNew(order);
  const auto wanted = order.size();
  // Those that go move behind the others first, so that they go in one piece.
  if (mShown.size() > wanted) {
    std::vector<bool> stays(mShown.size(), false);
    for (const auto* row : order) stays[static_cast<std::size_t>(row->shownIndex)] = true;
    for (std::size_t i = 0; i < mShown.size(); ++i)
      if (!stays[i]) order.push_back(mShown[i]);
  }
  Place(order);
  DropTail(mShown.size() - wanted);
  if (!mIsHeld) mDeparted.clear();
  mHaveComeOrGone = false;
  CommitCells();
}

void ProcessRows::CommitCells() {
  int first = -1;
  int last = -1;
  for (std::size_t i = 0; i < mShown.size(); ++i) {
    if (!mShown[i]->HasChanged()) continue;
    if (first < 0) first = static_cast<int>(i);
    last = static_cast<int>(i);
  }
  if (first < 0) return;
  mAnnouncer.CellsChanged(first, last);
  for (auto* row : mShown) row->SetChanged(false);
}

}  // namespace lurkwell
