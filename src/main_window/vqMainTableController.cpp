#include "main_window/vqMainTableController.h"

#include <QHeaderView>
#include <QMainWindow>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>

#include "consolidator/Applications.h"
#include "consolidator/PI_Consolidator.h"
#include "main_window/ColumnGroups.h"
#include "platform/ApplicationQuitting.h"
#include "platform/Assertion.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"
#include "preferences/Settings.h"
#include "process_control/ProcessActions.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"
#include "windows/PropertyText.h"
#include "windows/RowSorting.h"

namespace lurkwell {
namespace {

const KeyId kCpuWait = InternKey("pid_cpu_wait");

/// Nanoseconds are counted of this time alone; digits below those of all others would stand below
/// nothing.
TimeValue ToHundredths(TimeValue time) {
  constexpr std::int32_t kHundredth = 10'000;
  return {time.seconds, time.microseconds / kHundredth * kHundredth};
}

/// A character's worth of a column, in points, unless the font has wider digits.
constexpr double kPointsPerCharacter = 6.0;

QPixmap PixmapOf(const Picture& picture, double scale) {
  const QImage image(reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width,
                     picture.height, qsizetype{4} * picture.width,
                     QImage::Format_ARGB32_Premultiplied);
  auto pixmap = QPixmap::fromImage(image.copy());
  pixmap.setDevicePixelRatio(scale);
  return pixmap;
}

}  // namespace

vqMainTableController::vqMainTableController() {
  fInfoSynchronizer = new VQTarvMainWindowInfoSynch(ReadInt("MAIN_WINDOW_INTERVAL"), *this);
  const auto contents = fSets.Read(fSets.Shown());
  fLayout.Take(contents);
  fShape = contents.shape;
  fScope = static_cast<TableScope>(std::clamp(ReadInt("MAIN_WINDOW_SCOPE"), 0, kScopeCount - 1));
  fFollowsSelection = ReadSwitch("MAIN_WINDOW_FOLLOWS_SELECTION");
  readMemoryFigure();
  readWhatIsNeeded();
}

vqMainTableController::~vqMainTableController() {
  delete fInfoSynchronizer;
}

void vqMainTableController::awakeFromNib(QMainWindow& window, StripedTableView& table) {
  fWindow = &window;
  fTable = &table;
  table.setModel(this);
  table.setItemDelegate(&fTextCell);
  rebuildColumns();
  auto& header = *table.horizontalHeader();
  connect(&header, &QHeaderView::sectionClicked, this,
          [this](int column) { shouldSelectTableColumn(column); });
  connect(&table, &StripedTableView::foldWanted, this, &vqMainTableController::foldRow);
  connect(&table, &StripedTableView::released, this, &vqMainTableController::setNeedsReload);
  connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &vqMainTableController::contentsChanged);
  const KeyId sortColumn = fLayout.TakeInitialSortColumn();
  setSortColumn(sortColumn, fLayout.DirectionOf(sortColumn));
  setupToolbar(window);
}

void vqMainTableController::setupToolbar(QMainWindow& window) {
  fToolbar = new MainToolbar(&window);
  window.addToolBar(fToolbar);
  fToolbar->RestoreItems();
  connect(fToolbar, &MainToolbar::itemsChanged, this, [this] {
    fToolbar->Validate(selectionFacts());
    if (fInfoSynchronizer != nullptr) fInfoSynchronizer->ShowSystemInfo();
  });
}

MainToolbar* vqMainTableController::visibleToolbar() const {
  return fToolbar != nullptr && !fToolbar->isHidden() ? fToolbar : nullptr;
}

// ---- The window's life -------------------------------------------------------------------------

void vqMainTableController::windowDidUpdate() {
  if (fInfoSynchronizer != nullptr) fInfoSynchronizer->HookIntoConsolidator();
}

void vqMainTableController::windowDidBecomeKey() {
  windowDidUpdate();
  if (StoredInt(kShowProcessListKey) != 1) StoreInt(kShowProcessListKey, 1);
}

void vqMainTableController::windowWillClose() {
  if (!gApplicationQuitting) StoreInt(kShowProcessListKey, 0);
  if (fInfoSynchronizer != nullptr) fInfoSynchronizer->UnhookFromConsolidator();
  setPaused(false);
  fRows.TidyUp();
  fRows.RemoveAll();
  fHolders.clear();
  commitChanges();
}

// ---- Rows ---------------------------------------------------------------------------------------

void vqMainTableController::setNeedsReload() {
  if (std::exchange(fCommitIsQueued, true)) return;
  // A turn ends with a commit; this is for changes outside of one.
  QTimer::singleShot(0, this, [this] {
    if (fCommitIsQueued) commitChanges();
  });
}

void vqMainTableController::noteAgeOfColumns(bool mayAge) {
  char header[64];
  for (int n = 0; n < GetPSHeaderCount(); ++n) {
    bool isCurrent = false;
    GetNthPSHeader(n, header, sizeof header, &isCurrent);
    if (!isTracked(header) || (!isCurrent && !mayAge)) continue;
    const auto column = std::ranges::find(fColumns, InternKey(header), &Column::key);
    if (column == fColumns.end() || std::exchange(column->isStale, !isCurrent) == !isCurrent)
      continue;
    for (auto* row : fRows.All()) row->SetChanged(true);
  }
}

void vqMainTableController::commitChanges() {
  fCommitIsQueued = false;
  if (isOrderHeld() || isArranged()) {
    if (isTreeCurrent() && !fIsPaused) {
      addUp();
      measureBars();
    }
    fRows.CommitCells();
    if (std::exchange(fFactsHaveChanged, false)) Q_EMIT contentsChanged();
    return;
  }
  if (std::exchange(fKeepsPlaceOnce, false)) {
    keepPlace([this] { arrangeRows(); });
  } else {
    arrangeRows();
  }
  fFactsHaveChanged = false;
  Q_EMIT contentsChanged();
}

void vqMainTableController::arrangeRows() {
  fFilterHasChanged = false;
  fRows.TidyUp();
  rememberSelection();
  auto wanted = rowsToShow();
  keepFocus(wanted);
  const auto followed = followedRow();
  const auto place = placeInSight(followed);
  fRows.Commit(std::move(wanted));
  fTree.TidyUp();
  restoreSelection();
  if (fTable != nullptr) stripedTable()->KeepFoundInSight();
  keepFollowed(followed, place);
}

void vqMainTableController::triggerReload() {
  // Some titles say what their shares are of.
  if (!fColumns.empty()) Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
  fFactsHaveChanged = true;
  commitChanges();
}

void vqMainTableController::processesHaveChanged(const std::vector<std::int32_t>& pids) {
  for (const auto pid : pids)
    if (auto* row = fRows.Find(pid)) row->SetChanged(true);
  triggerReload();
}

void vqMainTableController::resortTable() {
  fNeedsResort = false;
  if (const auto comparison = sortComparison()) SortRows(fRows.All(), comparison, sortContext());
}

RowComparison vqMainTableController::sortComparison() const {
  return fSortColumn != kNoKey ? SortingComparisonForColumn(KeyText(fSortColumn)) : nullptr;
}

compareContextStructure vqMainTableController::sortContext() const {
  return {fSortColumn, fSortColumn == kNoKey || fLayout.DirectionOf(fSortColumn) != 0};
}

void vqMainTableController::updateNow() {
  if (fInfoSynchronizer != nullptr && fInfoSynchronizer->IsHooked())
    RequestUpdate(fInfoSynchronizer);
}

// ---- What the view hears ------------------------------------------------------------------------

void vqMainTableController::BeginInsert(int first, int last) {
  beginInsertRows({}, first, last);
}

void vqMainTableController::BeginRemove(int first, int last) {
  beginRemoveRows({}, first, last);
}

void vqMainTableController::Reorder(const std::function<void()>& change) {
  Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
  const auto before = persistentIndexList();
  std::vector<const RowDictionary*> pointedAt;
  pointedAt.reserve(static_cast<std::size_t>(before.size()));
  for (const auto& index : before)
    pointedAt.push_back(fRows.Shown()[static_cast<std::size_t>(index.row())]);
  change();
  QModelIndexList after;
  after.reserve(before.size());
  for (qsizetype i = 0; i < before.size(); ++i)
    after.append(index(pointedAt[static_cast<std::size_t>(i)]->shownIndex, before[i].column()));
  changePersistentIndexList(before, after);
  Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void vqMainTableController::CellsChanged(int firstRow, int lastRow) {
  if (fColumns.empty()) return;
  Q_EMIT dataChanged(index(firstRow, 0), index(lastRow, columnCount() - 1));
}

// ---- The model ----------------------------------------------------------------------------------

int vqMainTableController::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(fRows.Shown().size());
}

int vqMainTableController::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(fColumns.size());
}

int vqMainTableController::columnIndexOf(KeyId key) const {
  const auto found = std::ranges::find(fColumns, key, &Column::key);
  return found == fColumns.end() ? -1 : static_cast<int>(found - fColumns.begin());
}

QVariant vqMainTableController::iconOf(RowDictionary& row) const {
  auto& icon = row.icon;
  if (!icon.internal_Icon_Has_Been_Inited && !row.isDeparted) {
    icon.internal_Icon_Has_Been_Inited = true;
    const double scale = fTable != nullptr ? fTable->devicePixelRatioF() : 1.0;
    const auto picture =
        ProcessIconImage(row.LeadPid(), static_cast<int>(ImageCell::kSize * scale));
    icon.internal_Icon_Exists = picture != nullptr;
    icon.internal_Icon_Data = picture != nullptr ? PixmapOf(*picture, scale) : QPixmap();
  }
  return icon.internal_Icon_Exists ? QVariant(icon.internal_Icon_Data) : QVariant();
}

const char* vqMainTableController::indicatorNameOf(const RowDictionary& row) {
  return row.Group() == nullptr && !row.isDeparted ? ProcessIndicatorImageName(row.Pid()) : nullptr;
}

QVariant vqMainTableController::indicatorOf(const RowDictionary& row) const {
  const char* name = indicatorNameOf(row);
  return name != nullptr ? QVariant(NamedImage(name)) : QVariant();
}

QString vqMainTableController::textOf(const RowDictionary& row, const Column& column) const {
  // A group's pid is no pid.
  if (row.Group() != nullptr && column.key == kMetaPid) return {};
  if (const auto* count = std::get_if<std::int64_t>(&row.Shown(column.key));
      count != nullptr && column.isCount)
    return LocalNumber(qint64{*count});
  if (const auto* time = std::get_if<TimeValue>(&row.Shown(column.key));
      time != nullptr && column.key == kCpuWait)
    return TimeText(ToHundredths(*time));
  if (column.type != kPropertyTypeDate || fTable == nullptr) {
    const auto text = DisplayText(column.type, row.Shown(column.key), 15, row.Pid());
    const bool counts = row.Group() != nullptr || row.Standing().fold == RowStanding::Fold::kFolded;
    return counts && column.key == kMetaName
               ? text + QLatin1String(" (") + LocalNumber(qint64{row.Standing().below}) +
                     QLatin1Char(')')
               : text;
  }
  const double digit = fTable->fontMetrics().horizontalAdvance(QLatin1Char('0'));
  const int points = fTable->columnWidth(columnIndexOf(column.key));
  const auto width = static_cast<int>(points / std::max(digit, kPointsPerCharacter));
  return DisplayText(column.type, row.Shown(column.key), width, row.Pid());
}

QString vqMainTableController::barTextOf(const RowDictionary& row, const Column& column) {
  if (column.key == kInternalCPUPercent)
    return LocalNumber(NumberOf(row.Shown(kInternalCpuUsage)) * 100.0, 'f', 1);
  return DisplayText(kPropertyTypeMemory, row.Shown(MemoryFigureKey()), 0, row.Pid());
}

QVariant vqMainTableController::objectValueForTableColumn(int columnIndex, int rowIndex) const {
  auto& row = *fRows.Shown()[static_cast<std::size_t>(rowIndex)];
  const auto& column = fColumns[static_cast<std::size_t>(columnIndex)];
  if (column.key == kInternalIcon) return iconOf(row);
  if (column.key == kInternalIndicator) return indicatorOf(row);
  if (column.isInternal) return {};
  return textOf(row, column);
}

QString vqMainTableController::spokenText(const RowDictionary& row, const Column& column) const {
  if (column.key == kInternalCPUPercent)
    return LocalNumber(NumberOf(row.Shown(kInternalCpuUsage)) * 100.0, 'f', 1) +
           QLatin1String(" %");
  if (column.key == kInternalMemGraph) {
    const auto size = [&](KeyId key) {
      return DisplayText(kPropertyTypeMemory, row.Shown(key), 0, row.Pid());
    };
    if (gMemoryFigure != MemoryFigure::kVirtual) return size(MemoryFigureKey());
    return size(kPidRsz) + QLatin1String(" / ") + size(kPidVsz);
  }
  if (column.key == kInternalIndicator) {
    const char* name = indicatorNameOf(row);
    return name != nullptr ? LocalizedString(name) : QString();
  }
  if (column.isInternal) return {};
  const auto missing = MissingText(row.Shown(column.key));
  return missing.isEmpty() ? textOf(row, column) : missing;
}

/// What the look of a row says beside its figures.
QString vqMainTableController::spokenMarks(const RowDictionary& row) const {
  QString text;
  if (fShape != TableShape::kList) text += spokenStanding(row);
  if (row.isDeparted) return text + LocalizedString("row_ended");
  if (row.IsZombie()) text += LocalizedString("row_zombie");
  const char* indicator = isTracked(KeyText(kInternalIndicator)) ? nullptr : indicatorNameOf(row);
  return indicator != nullptr ? text + QLatin1String(", ") + LocalizedString(indicator) : text;
}

std::vector<std::int32_t> vqMainTableController::pidsInSight() const {
  std::vector<std::int32_t> pids;
  if (table() == nullptr || !table()->isVisible()) return pids;
  const int first = table()->rowAt(0);
  const int last = table()->rowAt(table()->viewport()->height() - 1);
  const int end = last < 0 ? rowCount() : last + 1;
  for (int place = std::max(first, 0); place < end; ++place) {
    const auto& row = *fRows.Shown()[static_cast<std::size_t>(place)];
    if (row.Group() == nullptr) {
      pids.push_back(row.Pid());
    } else if (row.Standing().fold == RowStanding::Fold::kFolded) {
      // Its figures are theirs.
      for (const auto& member : row.Group()->shown) pids.push_back(member.pid);
    }
  }
  return pids;
}

QString vqMainTableController::tooltipOf(const RowDictionary& row, const Column& column) const {
  if (row.isDeparted) return LocalizedString("main_window_ended_tip");
  QStringList lines;
  if (row.Standing().fold == RowStanding::Fold::kFolded || row.Group() != nullptr)
    lines.append(totalTip(row, column));
  if (row.Group() != nullptr) {
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
  }
  const bool isMissing = !column.isInternal && !IsKnown(row.Get(column.key));
  const auto late = keysSincePause();
  if (std::ranges::find(late, column.key) != late.end())
    lines.append(LocalizedString("main_window_late_tip"));
  if (column.isStale) lines.append(LocalizedString("main_window_stale_tip"));
  if (isMissing) lines.append(MissingTip(KeyText(column.key), row.Get(column.key)));
  constexpr std::int64_t kWorthTelling = 5000;
  const auto age = AgeOfPIDProperty(row.Pid(), KeyText(column.key).data());
  if (age && *age >= kWorthTelling)
    lines.append(LocalizedString("value_age_tip", qint64{*age / 1000}));
  const bool isName = column.key == kMetaName || column.key == kPidCommandName;
  if (row.Pid() == 0 && (isName || column.key == kInternalCPUPercent))
    lines.append(LocalizedString("main_window_idle_task_tip"));
  if (isName && row.IsZombie()) lines.append(LocalizedString("main_window_zombie_tip"));
  if (isName && row.Pid() > 0) lines.append(commandLineOf(row.Pid()));
  lines.removeAll(QString());
  return lines.join(QLatin1Char('\n'));
}

QString vqMainTableController::commandLineOf(std::int32_t pid) {
  constexpr qsizetype kLongest = 500;
  const std::int32_t pids[] = {pid};
  const auto found = TheMachine().processTable.Describe(pids);
  if (found.empty()) return {};
  const auto text = PlainText(found.front().commandLine);
  return text.size() > kLongest ? text.left(kLongest) + QStringLiteral("…") : text;
}

QVariant vqMainTableController::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
    return {};
  const auto& row = *fRows.Shown()[static_cast<std::size_t>(index.row())];
  const auto& column = fColumns[static_cast<std::size_t>(index.column())];
  const bool isPicture = column.key == kInternalIcon || column.key == kInternalIndicator;
  switch (role) {
    case Qt::DisplayRole:
      return isPicture ? QVariant() : objectValueForTableColumn(index.column(), index.row());
    case Qt::DecorationRole:
      return isPicture ? objectValueForTableColumn(index.column(), index.row()) : QVariant();
    case Qt::TextAlignmentRole:
      return QVariant(Qt::AlignVCenter | (column.rightAligned ? kAlignFigures : kAlignTexts));
    case Qt::AccessibleTextRole:
      return spokenText(row, column) + (column.key == treeColumn() ? spokenMarks(row) : QString());
    case Qt::ToolTipRole:
      return tooltipOf(row, column);
    case kIsFaintRole:
      return column.isStale || row.IsZombie() || row.isDeparted || row.Standing().isContext ||
             (fIsPaused && column.key != kMetaName && column.key != kMetaPid) ||
             (!column.isInternal && !IsKnown(row.Shown(column.key)));
    case kHasEndedRole:
      return row.isDeparted;
    case kLevelRole:
      return isTreeColumn(column) ? row.Standing().level : -1;
    case kFoldRole:
      return static_cast<int>(row.Standing().fold);
    case kIsIdleTaskRole:
      return row.Pid() == 0;
    case kCpuShareRole:
      return NumberOf(row.Shown(kInternalCpuUsage));
    case kResidentSizeRole:
      return static_cast<qlonglong>(IntegerOf(
          row.Shown(gMemoryFigure == MemoryFigure::kVirtual ? kPidRsz : MemoryFigureKey())));
    case kVirtualSizeRole:
      return static_cast<qlonglong>(IntegerOf(row.Shown(MemoryFigureKey())));
    case kBarTextRole:
      return barTextOf(row, column);
    case StripedTableView::kCellHasChangedRole:
      return row.HaveCellsChanged(column.looksAt);
    default:
      return {};
  }
}

Qt::ItemFlags vqMainTableController::flags(const QModelIndex& index) const {
  const auto flags = vqTableController::flags(index);
  const bool isContext =
      index.isValid() && fRows.Shown()[static_cast<std::size_t>(index.row())]->Standing().isContext;
  return isContext ? flags & ~Qt::ItemIsSelectable : flags;
}

QVariant vqMainTableController::headerData(int section, Qt::Orientation orientation,
                                           int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const auto& column = fColumns[static_cast<std::size_t>(section)];
  const std::string key(KeyText(column.key));
  // A title has no room above a picture; the tooltip begins with it.
  const bool isPicture = column.key == kInternalIcon || column.key == kInternalIndicator;
  if (role == Qt::AccessibleTextRole) return ColumnTitle(key.c_str());
  // A title stands above its figures.
  if (role == Qt::TextAlignmentRole && column.rightAligned)
    return QVariant(Qt::AlignVCenter | kAlignFigures);
  if (role == Qt::DisplayRole) return isPicture ? QString() : ColumnTitle(key.c_str());
  if (role == Qt::ToolTipRole)
    return QString(ColumnTitle(key.c_str()) + QLatin1Char('\n') + ColumnTip(key.c_str()));
  return {};
}

}  // namespace lurkwell
