// The columns of the main table: which there are, how wide, and how they are remembered.
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>
#include <span>
#include <utility>

#include "consolidator/PSHeaders.h"
#include "consolidator/PropertyCatalogue.h"
#include "main_window/Preferences.h"
#include "main_window/vqMainTableController.h"
#include "preferences/PreferenceArrays.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "windows/ControllerAssertion.h"

namespace lurkwell {
namespace {

constexpr char kColumnsUnit[] = "vqMainTableController";
constexpr int kWidthBesideTitle = 15;
constexpr int kPictureWidth = 24;
constexpr int kSmallestPidWidth = 45;
/// Names and bars need more room than their titles take.
constexpr int kSmallestNameWidth = 220;
constexpr int kSmallestBarWidth = 110;
constexpr int kWidestFirstName = 440;
constexpr QLatin1String kLongestKind("Kernel thread");
/// "Nov 22 09:00:00 2026", in characters as wide as they are counted when a date is fitted.
constexpr int kDateLength = 20;
constexpr int kPointsPerDateCharacter = 6;

/// Of sizes, times and shares one wants to see the largest.
char DefaultDirection(std::string_view key) {
  if (key == KeyText(kInternalCPUPercent) || key == KeyText(kInternalMemGraph)) return 0;
  const auto type = GetProcPropertyType(std::string(key).c_str(), nullptr);
  const bool isDescending = type == kPropertyTypeMemory || type == kPropertyTypeTime ||
                            type == kPropertyTypeClock || type == kPropertyTypeReal;
  return isDescending ? 0 : 1;
}

bool IsPicture(KeyId key) {
  return key == kInternalIcon || key == kInternalIndicator;
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
    return IsPicture(id) || id == kInternalCPUPercent || id == kInternalMemGraph;
  }
  if (key.empty() || key == "PID") return false;
  return IsKnownProcProperty(key.c_str()) || (!ArePSColumnsKnown() && IsPSColumnName(key));
}

bool IsRightAligned(KeyId key, PropertyType type) {
  if (IsInternalKey(KeyText(key))) return false;
  return key == kMetaActiveTime || type == kPropertyTypeInteger || type == kPropertyTypeMemory ||
         type == kPropertyTypeTime || type == kPropertyTypeDate || type == kPropertyTypeClock;
}

}  // namespace

void vqMainTableController::track(KeyId key, char direction) {
  if (isTracked(KeyText(key))) return;
  fKeysWeTrackForUI.push_back(key);
  fTracked.insert(KeyText(key));
  fColumnSortDirection[key] = direction;
}

void vqMainTableController::readColumnPrefs() {
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
      if (!isTracked(text) && width > 0) fColumnWidths[InternKey(text)] = width;
      track(InternKey(text), direction);
    } else if (!text.empty() && !IsInternalKey(text)) {
      fAbsentColumns.push_back({text, width, direction});
    } else {
      continue;
    }
    if (i == sortIndex) fRememberedSortKey = text;
  }
  const auto known = fKeysWeTrackForUI.size();
  fHasUsualColumns = count == 0;
  if (fHasUsualColumns)
    for (const KeyId key :
         {kMetaPid, kInternalIcon, kMetaName, kMetaActiveTime, kInternalCPUPercent})
      track(key, DefaultDirection(KeyText(key)));
  track(kMetaPid, 1);
  addMissingColumns();
  if (fKeysWeTrackForUI.size() != known) saveColumnPrefs();
}

void vqMainTableController::addMissingColumns() {
  const auto once = [this](IntegerSetting flag, KeyId key, KeyId afterKey) {
    if (StoredInt(flag)) return;
    StoreInt(flag, 1);
    addToKeysWeTrackForUI(key, afterKey);
  };
  once("HAS_RUN_TWO_POINT_THREE", kInternalIndicator, kInternalIcon);
  once("HAS_RUN_TWO_POINT_FOUR", kInternalMemGraph, kInternalCPUPercent);
}

void vqMainTableController::putAwayColumnsThatDidNotCome() {
  if (!ArePSColumnsKnown()) return;
  const auto isMissing = [](KeyId key) {
    return !IsInternalKey(KeyText(key)) && !IsKnownProcProperty(KeyText(key).data());
  };
  if (std::ranges::none_of(fKeysWeTrackForUI, isMissing)) return;
  adoptScreenLayout();
  for (const KeyId key : std::vector<KeyId>(fKeysWeTrackForUI)) {
    if (!isMissing(key)) continue;
    fAbsentColumns.push_back(
        {std::string(KeyText(key)), fColumnWidths[key], fColumnSortDirection[key]});
    if (key == fSortColumn) fRememberedSortKey = KeyText(key);
    removeFromKeysWeTrackForUI(key);
  }
}

void vqMainTableController::showColumnsThatCame() {
  putAwayColumnsThatDidNotCome();
  for (std::size_t i = 0; i < fAbsentColumns.size();) {
    if (!CanBeShown(fAbsentColumns[i].key)) {
      ++i;
      continue;
    }
    const auto column = std::move(fAbsentColumns[i]);
    fAbsentColumns.erase(fAbsentColumns.begin() + static_cast<std::ptrdiff_t>(i));
    const KeyId key = InternKey(column.key);
    fColumnWidths[key] = column.width;
    fColumnSortDirection[key] = column.direction != 0 ? 1 : 0;
    if (fRememberedSortKey == column.key) {
      fRememberedSortKey.clear();
      setSortColumn(key, fColumnSortDirection[key]);
      setNeedsResort();
    }
    addToKeysWeTrackForUI(key);
  }
}

void vqMainTableController::addToKeysWeTrackForUI(KeyId key, KeyId afterKey) {
  if (isTracked(KeyText(key))) return;
  adoptScreenLayout();
  auto place = std::ranges::find(fKeysWeTrackForUI, afterKey);
  if (place != fKeysWeTrackForUI.end()) ++place;
  fKeysWeTrackForUI.insert(place, key);
  fTracked.insert(KeyText(key));
  fColumnSortDirection.try_emplace(key, DefaultDirection(KeyText(key)));
  gNewColumnWasAddedRecently = true;
  if (fTable == nullptr) return;
  rebuildColumns();
  saveColumnPrefs();
  // The cells need not wait for the next turn.
  updateNow();
}

void vqMainTableController::removeFromKeysWeTrackForUI(KeyId key) {
  adoptScreenLayout();
  std::erase(fKeysWeTrackForUI, key);
  fTracked.erase(KeyText(key));
  if (fTable == nullptr) return;
  if (key == fSortColumn) {
    // Its figures are not read any more.
    setSortColumn(kMetaPid, fColumnSortDirection[kMetaPid]);
    setNeedsResort();
  }
  rebuildColumns();
  saveColumnPrefs();
}

void vqMainTableController::adoptScreenLayout() {
  if (fTable == nullptr || fColumns.empty()) return;
  const auto& header = *fTable->horizontalHeader();
  fKeysWeTrackForUI.clear();
  for (int place = 0; place < header.count(); ++place) {
    const int column = header.logicalIndex(place);
    const KeyId key = fColumns[static_cast<std::size_t>(column)].key;
    fKeysWeTrackForUI.push_back(key);
    fColumnWidths[key] = header.sectionSize(column);
  }
}

void vqMainTableController::clearColumns() {
  fColumns.clear();
}

void vqMainTableController::rebuildColumns() {
  rememberSelection();
  const auto focused = fTable->currentIndex();
  const auto pid = focused.isValid() ? fRows.Shown()[static_cast<std::size_t>(focused.row())]->Pid()
                                     : kInvalidPID;
  beginResetModel();
  clearColumns();
  for (const KeyId key : fKeysWeTrackForUI) addColumnToMainTable(key);
  endResetModel();
  auto& header = *fTable->horizontalHeader();
  for (int column = 0; column < columnCount(); ++column) {
    const KeyId key = fColumns[static_cast<std::size_t>(column)].key;
    header.moveSection(header.visualIndex(column), column);
    header.resizeSection(column, fColumnWidths[key]);
    QAbstractItemDelegate* cell = &fTextCell;
    if (IsPicture(key)) cell = &fImageCell;
    if (key == kInternalCPUPercent) cell = &fCPUCell;
    if (key == kInternalMemGraph) cell = &fMemGraphCell;
    fTable->setItemDelegateForColumn(column, cell);
  }
  stripedTable()->setSearchColumn(columnIndexOf(kMetaName));
  showSortIndicator();
  restoreSelection();
  if (pid != kInvalidPID) moveFocusTo(fRows.Find(pid));
}

void vqMainTableController::addColumnToMainTable(KeyId key) {
  if (!Expect(columnIndexOf(key) < 0, kColumnsUnit, "keyIndex == -1")) return;
  const std::string name(KeyText(key));
  const auto type = GetProcPropertyType(name.c_str(), nullptr);
  if (fColumnWidths[key] <= 0)
    fColumnWidths[key] = widthForColumn(key, LocalizedString(name.c_str()));
  fColumns.push_back({key, type, IsInternalKey(name), IsRightAligned(key, type)});
}

int vqMainTableController::widthForColumn(KeyId key, const QString& title) const {
  if (IsPicture(key)) return kPictureWidth;
  const auto metrics = fTable->horizontalHeader()->fontMetrics();
  const int width = std::max(metrics.horizontalAdvance(title) + kWidthBesideTitle,
                             stripedTable()->header().widthForTitle(title));
  if (key == kMetaPid) return std::max(width, kSmallestPidWidth);
  if (key == kMetaName) return std::max(width, kSmallestNameWidth);
  // Most of their texts would be cut.
  const auto name = KeyText(key);
  if (name == "meta_kind")
    return std::max(width, metrics.horizontalAdvance(kLongestKind) + kWidthBesideTitle);
  if (GetProcPropertyType(name.data(), nullptr) == kPropertyTypeDate)
    return std::max(width, kDateLength * std::max(metrics.horizontalAdvance(QLatin1Char('0')),
                                                  kPointsPerDateCharacter) +
                               kWidthBesideTitle);
  const bool isBar = key == kInternalCPUPercent || key == kInternalMemGraph;
  return isBar ? std::max(width, kSmallestBarWidth) : width;
}

void vqMainTableController::fillWidth(int width) {
  auto& header = *fTable->horizontalHeader();
  const int besideColumns = fTable->verticalScrollBar()->sizeHint().width() + fTable->frameWidth();
  const int rest = width - header.length() - besideColumns;
  const int name = columnIndexOf(kMetaName);
  if (!fHasUsualColumns || name < 0 || rest <= 0) return;
  header.resizeSection(name, std::min(header.sectionSize(name) + rest, kWidestFirstName));
}

void vqMainTableController::chooseInitialSortColumn() {
  if (fKeysWeTrackForUI.empty()) return;
  KeyId key = kNoKey;
  if (isTracked(fRememberedSortKey)) {
    key = InternKey(std::exchange(fRememberedSortKey, {}));
  } else {
    auto index = ReadInt(kSortColumnIndexKey);
    const auto count = static_cast<std::int32_t>(fKeysWeTrackForUI.size());
    // One behind the last is let through here, and is no column either.
    if (index > count || index < 0 || !fRememberedSortKey.empty()) index = 0;
    if (index == count) index = count - 1;
    key = fKeysWeTrackForUI[static_cast<std::size_t>(index)];
  }
  setSortColumn(key, fColumnSortDirection[key]);
}

void vqMainTableController::saveColumnPrefs() {
  adoptScreenLayout();
  // Another instance's columns must not come in between.
  const PreferenceBatch batch;
  RemoveSetting(kMainWindowColumnsKey);
  std::int32_t count = 0;
  const auto remember = [&](const char* key, int width, std::int32_t direction) {
    if (fRememberedSortKey == key) StoreInt(kSortColumnIndexKey, count);
    RememberColumn(count++, key, width, direction);
  };
  for (const KeyId key : fKeysWeTrackForUI) {
    if (key == fSortColumn) StoreInt(kSortColumnIndexKey, count);
    remember(KeyText(key).data(), fColumnWidths[key], fColumnSortDirection[key]);
  }
  for (const auto& column : fAbsentColumns)
    remember(column.key.c_str(), column.width, column.direction);
}

}  // namespace lurkwell
