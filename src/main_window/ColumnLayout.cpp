#include "main_window/ColumnLayout.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "consolidator/PI_Consolidator.h"

namespace lurkwell {
namespace {

/// A key that a table can show: its own columns, or a property that is known at present or may be
/// a column of a ps that has not told them yet. What ps has for PID stands in meta_pid.
bool CanBeShown(const std::string& key) {
  if (IsInternalKey(key)) {
    const KeyId id = InternKey(key);
    return id == kInternalIcon || id == kInternalIndicator || id == kInternalCPUPercent ||
           id == kInternalMemGraph;
  }
  if (key.empty() || key == "PID") return false;
  return IsKnownProcProperty(key.c_str()) || (!ArePSColumnsKnown() && IsPSColumnName(key));
}

}  // namespace

std::int32_t UsualDirectionOf(std::string_view key) {
  if (key == KeyText(kInternalCPUPercent) || key == KeyText(kInternalMemGraph)) return 0;
  const auto type = GetProcPropertyType(std::string(key).c_str(), nullptr);
  const bool isDescending = type == kPropertyTypeMemory || type == kPropertyTypeTime ||
                            type == kPropertyTypeClock || type == kPropertyTypeReal ||
                            type == kPropertyTypeShare || type == kPropertyTypeRate;
  return isDescending ? 0 : 1;
}

void ColumnLayout::Track(const RememberedColumn& column) {
  if (Has(column.key)) return;
  const KeyId key = InternKey(column.key);
  mKeys.push_back(key);
  mHas.insert(KeyText(key));
  mDirections[key] = column.direction != 0 ? 1 : 0;
  if (column.width > 0) mWidths[key] = column.width;
}

void ColumnLayout::Take(const ColumnSetContents& contents) {
  *this = {};
  for (const auto& column : contents.columns) {
    if (CanBeShown(column.key)) {
      Track(column);
    } else if (!column.key.empty() && !IsInternalKey(column.key)) {
      mAbsent.push_back(column);
    }
  }
  const bool isThere =
      Has(contents.sortKey) ||
      std::ranges::find(mAbsent, contents.sortKey, &RememberedColumn::key) != mAbsent.end();
  if (isThere) mRememberedSortKey = contents.sortKey;
  mSortPlace = contents.sortPlace;
  mIsOriginal = contents.isOriginal;
}

ColumnSetContents ColumnLayout::Contents(KeyId sortColumn) const {
  ColumnSetContents contents;
  for (const KeyId key : mKeys)
    contents.columns.push_back({std::string(KeyText(key)), WidthOf(key), DirectionOf(key)});
  contents.columns.insert(contents.columns.end(), mAbsent.begin(), mAbsent.end());
  contents.sortKey = mRememberedSortKey;
  if (contents.sortKey.empty() && sortColumn != kNoKey) contents.sortKey = KeyText(sortColumn);
  return contents;
}

int ColumnLayout::WidthOf(KeyId key) const {
  const auto found = mWidths.find(key);
  return found != mWidths.end() ? found->second : 0;
}

char ColumnLayout::DirectionOf(KeyId key) const {
  const auto found = mDirections.find(key);
  return found != mDirections.end() ? found->second : char{0};
}

char ColumnLayout::ToggleDirection(KeyId key) {
  auto& direction = mDirections[key];
  direction = direction == 0 ? 1 : 0;
  return direction;
}

bool ColumnLayout::Add(KeyId key, KeyId afterKey) {
  if (Has(KeyText(key))) return false;
  auto place = std::ranges::find(mKeys, afterKey);
  if (place != mKeys.end()) ++place;
  mKeys.insert(place, key);
  mHas.insert(KeyText(key));
  mDirections.try_emplace(key, static_cast<char>(UsualDirectionOf(KeyText(key))));
  return true;
}

void ColumnLayout::Remove(KeyId key) {
  std::erase(mKeys, key);
  mHas.erase(KeyText(key));
}

std::vector<KeyId> ColumnLayout::Missing() const {
  std::vector<KeyId> missing;
  if (!ArePSColumnsKnown()) return missing;
  std::ranges::copy_if(mKeys, std::back_inserter(missing), [](KeyId key) {
    return !IsInternalKey(KeyText(key)) && !IsKnownProcProperty(KeyText(key).data());
  });
  return missing;
}

void ColumnLayout::PutAway(KeyId key, bool isSortColumn) {
  mAbsent.push_back({std::string(KeyText(key)), WidthOf(key), DirectionOf(key)});
  if (isSortColumn) mRememberedSortKey = KeyText(key);
}

std::optional<KeyId> ColumnLayout::TakeArrived() {
  const auto found = std::ranges::find_if(
      mAbsent, [](const RememberedColumn& column) { return CanBeShown(column.key); });
  if (found == mAbsent.end()) return std::nullopt;
  const KeyId key = InternKey(found->key);
  mWidths[key] = found->width;
  mDirections[key] = found->direction != 0 ? 1 : 0;
  mAbsent.erase(found);
  return key;
}

KeyId ColumnLayout::TakeInitialSortColumn() {
  if (mKeys.empty()) return kNoKey;
  if (Has(mRememberedSortKey)) return InternKey(std::exchange(mRememberedSortKey, {}));
  auto index = mSortPlace;
  const auto count = static_cast<std::int32_t>(mKeys.size());
  // One behind the last is let through here, and is no column either.
  if (index > count || index < 0 || !mRememberedSortKey.empty()) index = 0;
  if (index == count) index = count - 1;
  return mKeys[static_cast<std::size_t>(index)];
}

bool ColumnLayout::TakeIsSortColumn(KeyId key) {
  if (mRememberedSortKey != KeyText(key)) return false;
  mRememberedSortKey.clear();
  return true;
}

}  // namespace lurkwell
