// What stands below what, what is folded, and which processes the table is about.
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "main_window/RowTotals.h"
#include "main_window/vqMainTableController.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

const KeyId kOwner = InternKey("pid_owner");
const KeyId kScopeOfApplication = InternKey("pid_app_scope");
const KeyId kProportionalSize = InternKey("pid_pss");

/// Whether "alice" or "alice as root" is the user's own.
bool IsOwnedBy(const RowDictionary& row, const RowDictionary* own, bool wanted) {
  const auto* owner = std::get_if<std::string>(&row.Get(kOwner));
  const auto* me = own != nullptr ? std::get_if<std::string>(&own->Get(kOwner)) : nullptr;
  if (owner == nullptr || me == nullptr) return false;
  const auto realName = [](const std::string& text) {
    return std::string_view(text).substr(0, text.find(' '));
  };
  return (realName(*owner) == realName(*me)) == wanted;
}

bool IsApplications(const RowDictionary& row) {
  const auto* scope = std::get_if<std::string>(&row.Get(kScopeOfApplication));
  return row.origin.isApplication || (scope != nullptr && !scope->empty());
}

}  // namespace

// ---- Shape --------------------------------------------------------------------------------------

void vqMainTableController::setShape(TableShape shape) {
  if (fShape == shape) return;
  keepPlace([&] {
    changeShape(shape);
    readWhatIsNeeded();
    commitChanges();
  });
  saveColumnPrefs();
  updateNow();
  Q_EMIT arrangementChanged();
}

void vqMainTableController::changeShape(TableShape shape) {
  fShape = shape;
  fStandingHasChanged = shape != TableShape::kList;
  fBiggestTotal = 0;
  fNeedsResort = fFilterHasChanged = true;
  for (auto* row : fRows.All()) {
    row->DropTotals();
    row->SetStanding({});
    row->SetChanged(true);
  }
}

KeyId vqMainTableController::treeColumn() const {
  return isTracked(KeyText(kMetaName)) ? kMetaName : kMetaPid;
}

bool vqMainTableController::standingDependsOn(KeyId key) const {
  const auto needs = ApplicationGroups::Needs();
  return fShape == TableShape::kApplications &&
         (key == kMetaName || std::ranges::find(needs, key) != needs.end());
}

void vqMainTableController::measureBars() {
  fBiggestTotal = fTree.BiggestTotal(MemoryFigureKey(), gMostMeasured);
  if (fBiggestTotal <= gBiggestVSZ) return;
  gBiggestVSZ = fBiggestTotal;
  for (auto* row : fRows.Shown()) row->SetChanged(true);
}

void vqMainTableController::readMemoryFigure() {
  const auto figure = static_cast<MemoryFigure>(std::clamp(ReadInt("MEMORY_BAR_FIGURE"), 0, 2));
  if (std::exchange(gMemoryFigure, figure) == figure) return;
  readWhatIsNeeded();
  setNeedsResort();
  updateNow();
}

void vqMainTableController::readWhatIsNeeded() {
  fKeysBesideColumns.clear();
  const auto need = [this](KeyId key) {
    if (std::ranges::find(fKeysBesideColumns, key) == fKeysBesideColumns.end())
      fKeysBesideColumns.push_back(key);
  };
  if (fShape == TableShape::kApplications) {
    for (const KeyId key : ApplicationGroups::Needs()) need(key);
    if (fLayout.Has(KeyText(kInternalMemGraph)) || fLayout.Has(KeyText(kPidRsz)))
      need(kProportionalSize);
  }
  if (gMemoryFigure == MemoryFigure::kProportional && fLayout.Has(KeyText(kInternalMemGraph)))
    need(kProportionalSize);
  if (fScope == TableScope::kMine || fScope == TableScope::kOthers) need(kOwner);
  if (fScope == TableScope::kApplications) need(kScopeOfApplication);
  // What never changes has to be read once.
  gNewColumnWasAddedRecently = true;
}

std::vector<RowDictionary*> vqMainTableController::rowsToShow() {
  if (fShape != TableShape::kList) return rowsOfTree();
  if (fNeedsResort) resortTable();
  // The tree knows rows that may have gone.
  fTree.Build(fRows, fShape);
  std::vector<RowDictionary*> rows;
  rows.reserve(fRows.All().size());
  const bool hides = hidesRows();
  for (auto* row : fRows.All())
    if (!hides || matches(*row)) rows.push_back(row);
  return rows;
}

void vqMainTableController::addUp() {
  const KeyId sortKey = fSortColumn == kInternalCPUPercent ? kInternalCpuUsage
                        : fSortColumn == kInternalMemGraph ? MemoryFigureKey()
                                                           : fSortColumn;
  fTree.AddUp(keysWeTrackForUI(), sortKey);
}

std::vector<RowDictionary*> vqMainTableController::rowsOfTree() {
  const bool isNew = !isTreeCurrent();
  fStandingHasChanged = false;
  if (isNew) fTree.Build(fRows, fShape);
  addUp();
  if (isNew || fNeedsResort) {
    fNeedsResort = false;
    fTree.Order(sortComparison(), sortContext());
  }
  if (isNew) revealKeptRows();
  const auto isShown =
      hidesRows() ? RowTree::IsShown([this](const RowDictionary& row) { return matches(row); })
                  : RowTree::IsShown();
  auto rows = fTree.Visible(isShown, isFiltered());
  measureBars();
  return rows;
}

// ---- Folding ------------------------------------------------------------------------------------

void vqMainTableController::foldRow(int place, bool folded, bool all) {
  if (fShape == TableShape::kList || !fHolders.empty()) return;
  if (place < 0 || place >= rowCount()) return;
  auto* row = fRows.Shown()[static_cast<std::size_t>(place)];
  if (!isTreeCurrent()) commitChanges();
  if (row->isDeparted || row->shownIndex < 0) return;
  if (folded) {
    // What is not seen is not acted upon, and the focus stays near.
    int last = row->shownIndex;
    const auto& shown = fRows.Shown();
    while (last + 1 < rowCount() && fTree.IsBelow(*shown[static_cast<std::size_t>(last) + 1], *row))
      ++last;
    const int focused = fTable->currentIndex().row();
    if (focused > row->shownIndex && focused <= last) moveFocusTo(row);
    if (last > row->shownIndex)
      fTable->selectionModel()->select(
          QItemSelection(index(row->shownIndex + 1, 0), index(last, columnCount() - 1)),
          QItemSelectionModel::Deselect);
  }
  fTree.SetFolded(*row, folded, all, isFiltered());
  fFilterHasChanged = true;
  commitChanges();
}

void vqMainTableController::foldAll(bool folded) {
  if (fShape == TableShape::kList || !fHolders.empty()) return;
  if (!isTreeCurrent()) commitChanges();
  keepPlace([&] {
    fTree.SetAllFolded(folded, isFiltered());
    fFilterHasChanged = true;
    commitChanges();
  });
}

void vqMainTableController::revealKeptRows() {
  if (fTable == nullptr) return;
  auto rows = selectedRows();
  if (const auto focused = fTable->currentIndex(); focused.isValid())
    rows.push_back(fRows.Shown()[static_cast<std::size_t>(focused.row())]);
  std::erase_if(rows, [](const auto* row) { return row->isDeparted; });
  RowTree::Reveal(rows);
}

void vqMainTableController::revealPids(const std::vector<std::int32_t>& pids) {
  if (fShape == TableShape::kList || !fHolders.empty()) return;
  if (!isTreeCurrent()) commitChanges();
  std::vector<RowDictionary*> rows;
  for (const auto pid : pids)
    if (auto* row = fRows.Find(pid)) rows.push_back(row);
  RowTree::Reveal(rows);
  fFilterHasChanged = true;
  commitChanges();
}

void vqMainTableController::keepPlace(const std::function<void()>& change) {
  if (fTable == nullptr || fRows.Shown().empty()) return change();
  const auto focused = fTable->currentIndex();
  const int kept = placeInSight(focused) ? focused.row() : std::max(fTable->rowAt(0), 0);
  const auto* row = fRows.Shown()[static_cast<std::size_t>(kept)];
  const int before = fTable->rowViewportPosition(kept);
  change();
  // It may have gone.
  const auto after = std::ranges::find(fRows.Shown(), row);
  if (after == fRows.Shown().end()) return;
  // So that there is room to scroll to.
  fTable->doItemsLayout();
  auto& bar = *fTable->verticalScrollBar();
  bar.setValue(bar.value() +
               fTable->rowViewportPosition(static_cast<int>(after - fRows.Shown().begin())) -
               before);
}

// ---- Scope --------------------------------------------------------------------------------------

void vqMainTableController::setScope(TableScope scope) {
  if (fScope == scope) return;
  StoreInt("MAIN_WINDOW_SCOPE", static_cast<std::int32_t>(scope));
  fScope = scope;
  fFilterHasChanged = true;
  readWhatIsNeeded();
  commitChanges();
  updateNow();
  Q_EMIT arrangementChanged();
}

bool vqMainTableController::isInScope(const RowDictionary& row) const {
  switch (fScope) {
    case TableScope::kAll:
      return true;
    case TableScope::kMine:
    case TableScope::kOthers:
      return IsOwnedBy(row, fRows.Find(TheMachine().processTable.OwnPid()),
                       fScope == TableScope::kMine);
    case TableScope::kApplications:
      return IsApplications(row);
    case TableScope::kWithoutKernel:
      return !row.origin.isKernelThread;
    case TableScope::kBusy:
      return row.Pid() != 0 && NumberOf(row.Get(kInternalCpuUsage)) > 0.0;
  }
  return true;
}

std::size_t vqMainTableController::countOfMatches() const {
  if (fShape == TableShape::kList) return fRows.Shown().size();
  return fTree.CountOfMatches();
}

// ---- What is said -------------------------------------------------------------------------------

QString vqMainTableController::spokenStanding(const RowDictionary& row) const {
  const auto& standing = row.Standing();
  auto text = LocalizedString("row_level").arg(standing.level + 1);
  if (standing.fold != RowStanding::Fold::kNone)
    text +=
        LocalizedString(standing.fold == RowStanding::Fold::kFolded ? "row_folded" : "row_unfolded")
            .arg(standing.below);
  return text;
}

QString vqMainTableController::totalTip(const RowDictionary& row, const Column& column) const {
  const KeyId columns[] = {column.key};
  if (KeysToAddUp(columns).empty()) return {};
  const int count = row.Standing().below + (row.Group() == nullptr ? 1 : 0);
  auto text = LocalizedString("total_tip", qint64{count});
  if (column.key == kPidRsz || column.key == kInternalMemGraph)
    text += QLatin1Char('\n') + LocalizedString("total_memory_tip");
  return text;
}

}  // namespace lurkwell
