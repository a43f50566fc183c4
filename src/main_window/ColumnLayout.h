#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "main_window/TableShape.h"
#include "windows/Keys.h"

namespace lurkwell {

/// A column as it is remembered: its width in points, 0 when it was never measured, and 1 when it
/// sorts in ascending order, else 0.
struct RememberedColumn {
  std::string key;
  int width = 0;
  std::int32_t direction = 1;
};

/// What a set of columns keeps.
struct ColumnSetContents {
  /// Also those that cannot be shown at present.
  std::vector<RememberedColumn> columns;
  /// The column that is sorted by.
  std::string sortKey;
  /// Its place among those that can be shown, where the key names none.
  std::int32_t sortPlace = 0;
  TableShape shape = TableShape::kList;
  /// Nothing was remembered: as the program brings it.
  bool isOriginal = false;
};

/// Of sizes, times and shares one wants to see the largest.
std::int32_t UsualDirectionOf(std::string_view key);

/// Which columns the table has, in which order, how wide they are and in which direction each
/// sorts. Knows no view: the table that shows the columns says how they stand on the screen.
/// Directions are 1, ascending, and 0. Main thread only.
class ColumnLayout {
 public:
  /// Has these columns from now on, as far as they can be shown.
  void Take(const ColumnSetContents& contents);
  /// All but the shape, to be remembered.
  ColumnSetContents Contents(KeyId sortColumn) const;

  /// Nothing was remembered.
  bool IsOriginal() const { return mIsOriginal; }
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

  /// Which column to sort by at first, once for each Take; kNoKey without columns.
  KeyId TakeInitialSortColumn();
  /// Whether an arrived column is the one that was sorted by; once.
  bool TakeIsSortColumn(KeyId key);
  /// The user has chosen another.
  void ForgetSortColumn() { mRememberedSortKey.clear(); }

 private:
  void Track(const RememberedColumn& column);

  /// In the order of the columns.
  std::vector<KeyId> mKeys;
  std::unordered_set<std::string_view> mHas;
  std::unordered_map<KeyId, char> mDirections;
  std::unordered_map<KeyId, int> mWidths;
  /// Remembered, but not offered by ps this time.
  std::vector<RememberedColumn> mAbsent;
  /// While it is not the sort column: before the columns are there, and as long as it is absent and
  /// the user has chosen no other.
  std::string mRememberedSortKey;
  std::int32_t mSortPlace = 0;
  bool mIsOriginal = false;
};

}  // namespace lurkwell
