#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "windows/Keys.h"

namespace lurkwell {

/// Which columns the table has, in which order, how wide they are, in which direction each sorts,
/// and how all of it is remembered. Knows no view: the table that shows the columns says how they
/// stand on the screen. Directions are 1, ascending, and 0. Main thread only.
class ColumnLayout {
 public:
  /// The remembered columns that can be shown, or the usual ones, and those that must be there;
  /// what is new is remembered. Once.
  void Read();
  /// Remembers the columns as they are, and which of them is the sort column.
  void Save(KeyId sortColumn);

  /// Nothing was remembered.
  bool HasUsualColumns() const { return mHasUsualColumns; }
  const std::vector<KeyId>& Keys() const { return mKeys; }
  bool Has(std::string_view key) const { return mHas.contains(key); }
  /// Points; 0 for a column that was never measured.
  int WidthOf(KeyId key) const;
  void SetWidth(KeyId key, int width) { mWidths[key] = width; }
  char DirectionOf(KeyId key) const;
  char ToggleDirection(KeyId key);

  /// Right behind `afterKey` when that is there, else at the end. False when it was there already.
  bool Add(KeyId key, KeyId afterKey = kNoKey);
  void Remove(KeyId key);
  /// The same columns in another order.
  void SetOrder(std::vector<KeyId> keys) { mKeys = std::move(keys); }

  // ---- Columns of ps, which may tell them late, or not any more ---------------------------------

  /// Those that ps turned out not to have.
  std::vector<KeyId> Missing() const;
  /// Takes such a column away, and remembers it for another time.
  void PutAway(KeyId key, bool isSortColumn);
  /// One that was put away and is there now, with its width and direction; none when there is no
  /// more. It is to be added.
  std::optional<KeyId> TakeArrived();

  // ---- The remembered sort column ---------------------------------------------------------------

  /// Which column to sort by at first; kNoKey without columns.
  KeyId TakeInitialSortColumn();
  /// Whether an arrived column is the one that was sorted by; once.
  bool TakeIsSortColumn(KeyId key);
  /// The user has chosen another.
  void ForgetSortColumn() { mRememberedSortKey.clear(); }

 private:
  /// Remembered, but not offered by ps this time.
  struct AbsentColumn {
    std::string key;
    int width;
    std::int32_t direction;
  };

  void Track(KeyId key, char direction);
  void AddMissing();

  /// In the order of the columns.
  std::vector<KeyId> mKeys;
  std::unordered_set<std::string_view> mHas;
  std::unordered_map<KeyId, char> mDirections;
  std::unordered_map<KeyId, int> mWidths;
  std::vector<AbsentColumn> mAbsent;
  /// While it is not the sort column: before the columns are there, and as long as it is absent and
  /// the user has chosen no other.
  std::string mRememberedSortKey;
  bool mHasUsualColumns = false;
};

}  // namespace lurkwell
