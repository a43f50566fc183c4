#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "windows/RowDictionary.h"

namespace lurkwell {

/// Rows in such an order that each is followed by all that stands below it; what does not change as
/// long as nobody comes, goes or gets another parent.
struct RowPlaces {
  std::vector<RowDictionary*> rows;
  /// The place of the row above, -1 for none.
  std::vector<int> parents;
  /// One behind the last place below.
  std::vector<int> ends;
  /// From 0.
  std::vector<int> levels;
  /// The places of those that have others below, in their order.
  std::vector<int> inner;
};

/// What rows show of those below them: totals, and for groups also what all of theirs have in
/// common. Only what has become different since the last time is looked at again. Main thread.
class BranchTotals {
 public:
  /// The rows, or what stands below what, have become others.
  void Forget() { mIsNew = true; }

  /// Adds up the columns for the rows that are folded, for groups, and by `sortKey` for all. The
  /// places are the same as the last time, unless they have been forgotten.
  void Update(const RowPlaces& places, std::span<const KeyId> columns, KeyId sortKey);

 private:
  /// One figure of all rows, by their places; NaN for what is missing. Of sizes below 8 PiB and
  /// times of less than 285 years, in microseconds, no bit is lost.
  struct Sum {
    KeyId key = kNoKey;
    enum class Kind : std::uint8_t { kUnknown, kInteger, kReal, kTime } kind = Kind::kUnknown;
    bool isStale = true;
    /// It has been added up and not been shown yet.
    bool isNew = false;
    std::vector<double> own;
    std::vector<double> total;
    /// As of the last time.
    std::vector<double> before;

    double AmountOf(const RowValue& value);
    RowValue ValueAt(int place) const;
    void AddUp(const RowPlaces& places);
    bool IsAnother(int place) const;
  };

  /// Whether all below a group have the same value.
  struct Common {
    KeyId key = kNoKey;
    /// By the group's place: that of one which has another value than the first, -1 for none.
    std::vector<int> odd;
  };

  void TakeColumns(std::span<const KeyId> columns, std::size_t rows);
  void ReadChanged(const RowPlaces& places);
  /// Finds out which rows have to have all of their totals, and adds up what somebody has to have.
  void AddUp(const RowPlaces& places, KeyId sortKey);
  void Show(const RowPlaces& places, KeyId sortKey);
  void ShowCommon(const RowPlaces& places);
  static void LookForOdd(const RowPlaces& places, Common& common, int group);
  static void LookAtMember(const RowPlaces& places, Common& common, int group, int member);

  bool mIsNew = true;
  std::vector<KeyId> mColumns;
  KeyId mFigureOfBars = kNoKey;
  KeyId mSortKey = kNoKey;
  std::vector<Sum> mSums;
  std::vector<Common> mCommons;
  /// Places whose figures have changed.
  std::vector<int> mChanged;
  /// Of those that have others below, in their order: whether they have to have all of their
  /// totals.
  enum class Wants : std::uint8_t { kNone, kAll, kAllFromNow };
  std::vector<Wants> mWants;
};

}  // namespace lurkwell
