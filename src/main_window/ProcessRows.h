#pragma once

#include <QAbstractItemModel>
#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "windows/RowDictionary.h"

namespace lurkwell {

/// The rows of the table: all of them, in the order of the sort, and those that the view has been
/// told of. Changes collect in the first and reach the view together, in one commit. Main thread.
class ProcessRows {
 public:
  /// The model whose rows these are; it lets this class announce changes in its name.
  class Announcer {
   public:
    virtual ~Announcer() = default;
    virtual void BeginInsert(int first, int last) = 0;
    virtual void EndInsert() = 0;
    virtual void BeginRemove(int first, int last) = 0;
    virtual void EndRemove() = 0;
    /// The rows take other places; `change` does it, and RowDictionary::shownIndex tells where
    /// each one is before and after.
    virtual void Reorder(const std::function<void()>& change) = 0;
    virtual void CellsChanged(int firstRow, int lastRow) = 0;
  };

  explicit ProcessRows(Announcer& announcer) : mAnnouncer(announcer) {}

  // ---- What there is ----------------------------------------------------------------------------

  /// The process's row, or null; constant time.
  RowDictionary* Find(std::int32_t pid) const;
  /// Appends a row for a process that has none.
  RowDictionary& Add(std::int32_t pid);
  void Remove(std::int32_t pid);
  void RemoveAll();
  void TidyUp();
  const std::vector<RowDictionary*>& All() const { return mAll; }
  /// To put them into another order. Ended ones are among them until TidyUp or Commit.
  std::vector<RowDictionary*>& All() { return mAll; }
  /// Whether a row came or went since the last commit.
  bool HaveComeOrGone() const { return mHaveComeOrGone; }

  /// While they are held, All are those that there were at the beginning: ended ones stay, marked
  /// as departed, and new ones wait, where Find has them and nobody else. Nothing when they are
  /// held already, or not.
  void SetHeld(bool held);
  /// Since rows have been held; 0 when they are not.
  std::size_t CountEnded() const { return mEndedCount; }
  std::size_t CountWaiting() const { return mWaitingCount; }

  // ---- What the view has ------------------------------------------------------------------------

  const std::vector<RowDictionary*>& Shown() const { return mShown; }

  /// Makes the view have these rows in this order: at most one insertion, one change of places,
  /// one removal and one announcement of changed cells. Those that are not among All stay their
  /// maker's, and must be there until the next commit without them has ended.
  void Commit(std::vector<RowDictionary*> order);

  /// Announces changed cells alone. Rows keep their places, also those of processes that ended.
  void CommitCells();

 private:
  void AppendNew(const std::vector<RowDictionary*>& wanted);
  void Place(const std::vector<RowDictionary*>& order);
  void DropTail(std::size_t count);

  Announcer& mAnnouncer;
  std::unordered_map<std::int32_t, std::unique_ptr<RowDictionary>> mByPid;
  std::vector<RowDictionary*> mAll;
  std::vector<RowDictionary*> mShown;
  /// Ended, but the view may still have them.
  std::vector<std::unique_ptr<RowDictionary>> mDeparted;
  bool mHaveComeOrGone = false;
  bool mIsHeld = false;
  std::size_t mEndedCount = 0;
  std::size_t mWaitingCount = 0;
};

}  // namespace lurkwell
