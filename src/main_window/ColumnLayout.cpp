#include "main_window/ColumnLayout.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "preferences/PreferenceArrays.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

constexpr char kMainWindowColumnsKey[] = "MAIN_WINDOW_COLUMNS";
constexpr char kColumnKeyKey[] = "COLUMN_KEY";
constexpr char kColumnWidthKey[] = "COLUMN_WIDTH";
constexpr char kColumnSortDirectionKey[] = "COLUMN_SORT_DIRECTION";
constexpr char kSortColumnIndexKey[] = "MAIN_WINDOW_SORT_COLUMN_INDEX";

/// Of sizes, times and shares one wants to see the largest.
char DefaultDirection(std::string_view key) {
  if (key == KeyText(kInternalCPUPercent) || key == KeyText(kInternalMemGraph)) return 0;
  const auto type = GetProcPropertyType(std::string(key).c_str(), nullptr);
  const bool isDescending = type == kPropertyTypeMemory || type == kPropertyTypeTime ||
                            type == kPropertyTypeClock || type == kPropertyTypeReal ||
                            type == kPropertyTypeShare || type == kPropertyTypeRate;
  return isDescending ? 0 : 1;
}

/// The key of a remembered column, at most 63 characters; empty when there is none to be read.
std::string RememberedKey(std::int32_t index) {
  char key[64] = "";
  if (IsPrefArrayValuePresent(kMainWindowColumnsKey, index, kColumnKeyKey))
    GetPrefArrayString(kMainWindowColumnsKey, index, kColumnKeyKey, key, sizeof key, false, "");
  return key;
}

/// A number of a remembered column; `usual` when there is none.
std::int32_t RememberedInt(std::int32_t index, const char* dictKey, std::int32_t usual) {
  return IsPrefArrayValuePresent(kMainWindowColumnsKey, index, dictKey)
             ? GetPrefArrayInt(kMainWindowColumnsKey, index, dictKey, false, 0)
             : usual;
}

/// Appends a column to the remembered ones; one that was never measured has no width.
void RememberColumn(std::int32_t index, const char* key, int width, std::int32_t direction) {
  const PrefArrayField fields[] = {{kColumnKeyKey, key},
                                   {kColumnSortDirectionKey, direction},
                                   {kColumnWidthKey, std::int32_t{width}}};
  SetPrefArrayFields(kMainWindowColumnsKey, index,
                     std::span(fields).first(width > 0 ? std::size(fields) : 2));
}

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

void ColumnLayout::Track(KeyId key, char direction) {
  if (Has(KeyText(key))) return;
  mKeys.push_back(key);
  mHas.insert(KeyText(key));
  mDirections[key] = direction;
}

void ColumnLayout::Read() {
  // What is added here is on disk whole or not at all.
  const PreferenceBatch batch;
  const auto count = GetPrefArrayCount(kMainWindowColumnsKey);
  const auto sortIndex = ReadInt(kSortColumnIndexKey);
  for (std::int32_t i = 0; i < count; ++i) {
    const auto text = RememberedKey(i);
    const int width = RememberedInt(i, kColumnWidthKey, 0);
    const char direction =
        RememberedInt(i, kColumnSortDirectionKey, DefaultDirection(text)) != 0 ? 1 : 0;
    if (CanBeShown(text)) {
      if (!Has(text) && width > 0) mWidths[InternKey(text)] = width;
      Track(InternKey(text), direction);
    } else if (!text.empty() && !IsInternalKey(text)) {
      mAbsent.push_back({text, width, direction});
    } else {
      continue;
    }
    if (i == sortIndex) mRememberedSortKey = text;
  }
  const auto known = mKeys.size();
  mHasUsualColumns = count == 0;
  if (mHasUsualColumns)
    for (const KeyId key :
         {kMetaPid, kInternalIcon, kMetaName, kMetaActiveTime, kInternalCPUPercent})
      Track(key, DefaultDirection(KeyText(key)));
  Track(kMetaPid, 1);
  AddMissing();
  if (mKeys.size() != known) Save(kNoKey);
}

void ColumnLayout::AddMissing() {
  const auto once = [this](IntegerSetting flag, KeyId key, KeyId afterKey) {
    if (StoredInt(flag)) return;
    StoreInt(flag, 1);
    Add(key, afterKey);
  };
  once("HAS_RUN_TWO_POINT_THREE", kInternalIndicator, kInternalIcon);
  once("HAS_RUN_TWO_POINT_FOUR", kInternalMemGraph, kInternalCPUPercent);
}

void ColumnLayout::Save(KeyId sortColumn) {
  // Another instance's columns must not come in between.
  const PreferenceBatch batch;
  RemoveSetting(kMainWindowColumnsKey);
  std::int32_t count = 0;
  const auto remember = [&](const char* key, int width, std::int32_t direction) {
    if (mRememberedSortKey == key) StoreInt(kSortColumnIndexKey, count);
    RememberColumn(count++, key, width, direction);
  };
  for (const KeyId key : mKeys) {
    if (key == sortColumn) StoreInt(kSortColumnIndexKey, count);
    remember(KeyText(key).data(), WidthOf(key), DirectionOf(key));
  }
  for (const auto& column : mAbsent) remember(column.key.c_str(), column.width, column.direction);
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
  mDirections.try_emplace(key, DefaultDirection(KeyText(key)));
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
      mAbsent, [](const AbsentColumn& column) { return CanBeShown(column.key); });
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
  auto index = ReadInt(kSortColumnIndexKey);
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
