// The columns of the main table as they stand on the screen.
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>
#include <utility>

#include "consolidator/PropertyCatalogue.h"
#include "main_window/ColumnGroups.h"
#include "main_window/RowTotals.h"
#include "main_window/vqMainTableController.h"
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
/// Where there are many columns, figures are worth more than the ends of names.
constexpr int kNarrowestFirstName = 150;
/// Points beside the columns that nobody has left on purpose.
constexpr int kNearlyFull = 12;
const KeyId kCommandLine = InternKey("pid_command_line");
/// "Nov 22 09:00:00 2026", in characters as wide as they are counted when a date is fitted.
constexpr int kDateLength = 20;
constexpr int kPointsPerDateCharacter = 6;

bool IsPicture(KeyId key) {
  return key == kInternalIcon || key == kInternalIndicator;
}

bool IsRightAligned(KeyId key, PropertyType type) {
  if (IsInternalKey(KeyText(key))) return false;
  return key == kMetaActiveTime || type == kPropertyTypeInteger || type == kPropertyTypeMemory ||
         type == kPropertyTypeReal || type == kPropertyTypeTime || type == kPropertyTypeDate ||
         type == kPropertyTypeClock || type == kPropertyTypeShare || type == kPropertyTypeRate;
}

/// A number of things, which may be large, and not one that names something.
bool IsCount(KeyId key, PropertyType type) {
  return type == kPropertyTypeInteger && !KeysToAddUp(std::span(&key, 1)).empty();
}

/// Bars draw other values than one under their own key.
RowDictionary::Cells CellsOf(KeyId column) {
  auto cells = RowDictionary::CellsOf(column);
  if (column == kInternalCPUPercent) cells |= RowDictionary::CellsOf(kInternalCpuUsage);
  if (column == kInternalMemGraph)
    for (const KeyId key : {kPidRsz, kPidVsz, InternKey("pid_pss")})
      cells |= RowDictionary::CellsOf(key);
  return cells;
}

/// What columns have room for at first, where that is more than their titles take.
struct UsualText {
  std::string_view key, text;
};
constexpr UsualText kUsualTexts[] = {
    {"meta_kind", "Kernel thread"},
    {"pid_owner", "messagebus"},
    {"pid_state", "uninterruptible"},
    {"pid_command_line", "/usr/lib/systemd/systemd --user --deserialize"},
    {"pid_executable", "/usr/lib/systemd/systemd-journald"},
    {"pid_running_time", "100-00:00:00"},
    {"pid_io_priority", "best effort 4"},
    {"pid_cgroup", "/user.slice/user-1000.slice/session-2.scope"},
    {"pid_unit", "systemd-journald.service"},
    {"pid_slice", "user-1000.slice"},
    {"pid_app_scope", "org.example.Editor"},
    {"pid_container", "Docker 3f2a8c91d0be"},
    {"pid_namespace", "4026531836"},
    {"pid_capabilities", "net_bind_service, net_raw"},
    {"pid_label", "unconfined_u:unconfined_r"},
    {"pid_elevated", "capabilities"},
};

std::string_view UsualTextOf(std::string_view key, PropertyType type) {
  const auto* usual = std::ranges::find(kUsualTexts, key, &UsualText::key);
  if (usual != std::end(kUsualTexts)) return usual->text;
  return type == kPropertyTypeRate ? "999.9 MB/s" : type == kPropertyTypeShare ? "1600.0" : "";
}

}  // namespace

void vqMainTableController::showColumnsThatCame() {
  const auto missing = fLayout.Missing();
  if (!missing.empty()) adoptScreenLayout();
  for (const KeyId key : missing) {
    fLayout.PutAway(key, key == fSortColumn);
    removeFromKeysWeTrackForUI(key);
  }
  while (const auto key = fLayout.TakeArrived()) {
    if (fLayout.TakeIsSortColumn(*key)) {
      setSortColumn(*key, fLayout.DirectionOf(*key));
      setNeedsResort();
    }
    addToKeysWeTrackForUI(*key);
  }
}

void vqMainTableController::addToKeysWeTrackForUI(KeyId key, KeyId afterKey) {
  if (isTracked(KeyText(key))) return;
  adoptScreenLayout();
  fLayout.Add(key, afterKey);
  gNewColumnWasAddedRecently = true;
  if (fTable == nullptr) return;
  rebuildColumns();
  saveColumnPrefs();
  // The cells need not wait for the next turn.
  updateNow();
}

void vqMainTableController::removeFromKeysWeTrackForUI(KeyId key) {
  adoptScreenLayout();
  fLayout.Remove(key);
  if (fTable == nullptr) return;
  if (key == fSortColumn) {
    // Its figures are not read any more.
    setSortColumn(kMetaPid, fLayout.DirectionOf(kMetaPid));
    fNeedsResort = true;
    setNeedsReload();
  }
  rebuildColumns();
  saveColumnPrefs();
}

void vqMainTableController::adoptScreenLayout() {
  if (fTable == nullptr || fColumns.empty()) return;
  const auto& header = *fTable->horizontalHeader();
  std::vector<KeyId> keys;
  for (int place = 0; place < header.count(); ++place) {
    const int column = header.logicalIndex(place);
    const KeyId key = fColumns[static_cast<std::size_t>(column)].key;
    keys.push_back(key);
    fLayout.SetWidth(key, header.sectionSize(column));
  }
  fLayout.SetOrder(std::move(keys));
}

void vqMainTableController::clearColumns() {
  fColumns.clear();
}

void vqMainTableController::rebuildColumns() {
  rememberSelection();
  const auto focused = fTable->currentIndex();
  const auto* focusedRow =
      focused.isValid() ? fRows.Shown()[static_cast<std::size_t>(focused.row())] : nullptr;
  beginResetModel();
  clearColumns();
  for (const KeyId key : keysWeTrackForUI()) addColumnToMainTable(key);
  endResetModel();
  auto& header = *fTable->horizontalHeader();
  for (int column = 0; column < columnCount(); ++column) {
    const KeyId key = fColumns[static_cast<std::size_t>(column)].key;
    header.moveSection(header.visualIndex(column), column);
    header.resizeSection(column, fLayout.WidthOf(key));
    QAbstractItemDelegate* cell = &fTextCell;
    if (key == treeColumn()) cell = &fTreeCell;
    if (IsPicture(key)) cell = &fImageCell;
    if (key == kInternalCPUPercent) cell = &fCPUCell;
    if (key == kInternalMemGraph) cell = &fMemGraphCell;
    fTable->setItemDelegateForColumn(column, cell);
  }
  stripedTable()->setSearchColumn(columnIndexOf(kMetaName));
  stripedTable()->setTreeColumn(columnIndexOf(treeColumn()));
  readWhatIsNeeded();
  showSortIndicator();
  restoreSelection();
  moveFocusTo(focusedRow);
  Q_EMIT columnsChanged();
}

void vqMainTableController::addColumnToMainTable(KeyId key) {
  if (!Expect(columnIndexOf(key) < 0, kColumnsUnit, "keyIndex == -1")) return;
  const std::string name(KeyText(key));
  const auto type = GetProcPropertyType(name.c_str(), nullptr);
  if (fLayout.WidthOf(key) <= 0)
    fLayout.SetWidth(key, widthForColumn(key, ColumnTitle(name.c_str())));
  fColumns.push_back({key, type, IsInternalKey(name), IsRightAligned(key, type), IsCount(key, type),
                      CellsOf(key)});
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
  const auto type = GetProcPropertyType(name.data(), nullptr);
  if (const auto usual = UsualTextOf(name, type); !usual.empty())
    return std::max(width, metrics.horizontalAdvance(QString::fromUtf8(
                               usual.data(), static_cast<qsizetype>(usual.size()))) +
                               kWidthBesideTitle);
  if (type == kPropertyTypeDate)
    return std::max(width, kDateLength * std::max(metrics.horizontalAdvance(QLatin1Char('0')),
                                                  kPointsPerDateCharacter) +
                               kWidthBesideTitle);
  const bool isBar = key == kInternalCPUPercent || key == kInternalMemGraph;
  return isBar ? std::max(width, kSmallestBarWidth) : width;
}

int vqMainTableController::elasticColumn() const {
  const int line = columnIndexOf(kCommandLine);
  return line >= 0 ? line : columnIndexOf(kMetaName);
}

int vqMainTableController::restOfWidth(int width) const {
  return width - fTable->horizontalHeader()->length() - fTable->frameWidth() -
         fTable->verticalScrollBar()->sizeHint().width();
}

void vqMainTableController::fillWidth(int width) {
  auto& header = *fTable->horizontalHeader();
  const int rest = restOfWidth(width);
  const int column = elasticColumn();
  if (column < 0) return;
  const int wanted = header.sectionSize(column) + rest;
  if (!fLayout.IsOriginal()) {
    // It filled a larger window.
    if (rest < 0 && header.sectionSize(column) > kWidestFirstName)
      header.resizeSection(column, std::max(wanted, kWidestFirstName));
    return;
  }
  const bool isLine = fColumns[static_cast<std::size_t>(column)].key == kCommandLine;
  header.resizeSection(
      column, std::clamp(wanted, std::min(kNarrowestFirstName, header.sectionSize(column)),
                         isLine ? std::max(wanted, kNarrowestFirstName) : kWidestFirstName));
}

void vqMainTableController::followWidth(int before, int width) {
  const int column = elasticColumn();
  if (column < 0) return;
  auto& header = *fTable->horizontalHeader();
  const int size = header.sectionSize(column);
  const int former = restOfWidth(before);
  const bool filled = former >= 0 && former <= kNearlyFull;
  // It gave all that it had to a narrower window.
  const bool gaveAll = former < 0 && size == kNarrowestFirstName;
  if (filled || gaveAll)
    header.resizeSection(column, std::max(size + restOfWidth(width), kNarrowestFirstName));
}

// ---- Sets of columns ----------------------------------------------------------------------------

void vqMainTableController::saveColumnPrefs() {
  adoptScreenLayout();
  auto contents = fLayout.Contents(fSortColumn);
  contents.shape = fShape;
  fSets.Store(fSets.Shown(), contents);
}

void vqMainTableController::showColumnSet(int place) {
  if (place < 0 || place >= fSets.Count() || place == fSets.Shown()) return;
  saveColumnPrefs();
  fSets.SetShown(place);
  takeColumnSet();
}

void vqMainTableController::takeColumnSet() {
  const auto contents = fSets.Read(fSets.Shown());
  fLayout.Take(contents);
  const auto change = [&] {
    rebuildColumns();
    const KeyId sortColumn = fLayout.TakeInitialSortColumn();
    setSortColumn(sortColumn, fLayout.DirectionOf(sortColumn));
    fNeedsResort = true;
    if (contents.shape != fShape) changeShape(contents.shape);
    readWhatIsNeeded();
    commitChanges();
  };
  // Who has selected nothing sees the beginning of the order.
  const bool keepsPlace = hasSelection();
  if (keepsPlace) {
    keepPlace(change);
  } else {
    change();
    fTable->scrollToTop();
  }
  // The figures that the new order depends on come with the update.
  fKeepsPlaceOnce = keepsPlace;
  if (fWindow != nullptr) fillWidth(fWindow->width());
  updateNow();
  Q_EMIT arrangementChanged();
}

void vqMainTableController::saveColumnSetAs(const QString& title) {
  saveColumnPrefs();
  auto contents = fLayout.Contents(fSortColumn);
  contents.shape = fShape;
  fSets.SetShown(fSets.Add(title, contents));
  Q_EMIT arrangementChanged();
}

void vqMainTableController::renameColumnSet(const QString& title) {
  if (!fSets.IsOwn(fSets.Shown())) return;
  fSets.Rename(fSets.Shown(), title);
  Q_EMIT arrangementChanged();
}

void vqMainTableController::deleteColumnSet() {
  if (!fSets.IsOwn(fSets.Shown())) return;
  fSets.Remove(fSets.Shown());
  takeColumnSet();
}

void vqMainTableController::restoreColumnSet() {
  if (fSets.IsOwn(fSets.Shown())) return;
  fSets.Forget(fSets.Shown());
  takeColumnSet();
}

}  // namespace lurkwell
