// Sorting by a click, and the selection, which follows processes rather than places.
#include <QHeaderView>
#include <QItemSelectionModel>
#include <algorithm>
#include <string>
#include <unordered_set>
#include <utility>

#include "consolidator/PropertyCatalogue.h"
#include "consolidator/PropertyValues.h"
#include "consolidator/WholeNames.h"
#include "main_window/RowTotals.h"
#include "main_window/vqMainTableController.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "windows/PropertyText.h"
#include "windows/RowSorting.h"

namespace lurkwell {
namespace {

constexpr char kPrintedShare[] = "pid_cpu_share";

}  // namespace

RowComparison vqMainTableController::sortSelectorForColumn(std::string_view key) const {
  return ComparisonForColumn(key);
}

char vqMainTableController::toggleSortDirection(KeyId key) {
  return fLayout.ToggleDirection(key);
}

bool vqMainTableController::isSortColumn(int column) const {
  return fSortColumn != kNoKey && columnIndexOf(fSortColumn) == column;
}

void vqMainTableController::changeSortColumn(int places, int points) {
  const int column = fSortColumn == kNoKey ? -1 : columnIndexOf(fSortColumn);
  if (column < 0) return;
  auto& header = *fTable->horizontalHeader();
  const int from = header.visualIndex(column);
  header.moveSection(from, std::clamp(from + places, 0, header.count() - 1));
  header.resizeSection(column,
                       std::max(header.sectionSize(column) + points, header.minimumSectionSize()));
}

void vqMainTableController::fitSortColumn() {
  const int column = fSortColumn == kNoKey ? -1 : columnIndexOf(fSortColumn);
  if (column >= 0) fTable->resizeColumnToContents(column);
}

bool vqMainTableController::shouldSelectTableColumn(int column) {
  if (column < 0 || column >= columnCount()) return false;
  const KeyId key = fColumns[static_cast<std::size_t>(column)].key;
  fLayout.ForgetSortColumn();
  if (key == fSortColumn) toggleSortDirection(key);
  setSortColumn(key, fLayout.DirectionOf(key));
  fNeedsResort = true;
  commitChanges();
  return false;
}

std::vector<RowDictionary*> vqMainTableController::selectedRows() const {
  std::vector<int> places;
  if (fTable == nullptr || fTable->selectionModel() == nullptr) return {};
  for (const auto& range : fTable->selectionModel()->selection())
    for (int place = range.top(); place <= range.bottom(); ++place) places.push_back(place);
  std::ranges::sort(places);
  places.erase(std::unique(places.begin(), places.end()), places.end());
  std::vector<RowDictionary*> rows;
  rows.reserve(places.size());
  for (const int place : places) {
    // A row whose process has ended may still be there; its pid may be another's by now. And a
    // range may run over rows that cannot be selected.
    auto* row = fRows.Shown()[static_cast<std::size_t>(place)];
    if (!row->isDeparted && !row->Standing().isContext) rows.push_back(row);
  }
  return rows;
}

std::vector<std::int32_t> vqMainTableController::selectedPids() const {
  std::vector<std::int32_t> pids;
  std::unordered_set<std::int32_t> taken;
  const auto take = [&](std::int32_t pid) {
    if (taken.insert(pid).second) pids.push_back(pid);
  };
  for (const auto* row : selectedRows()) {
    if (row->Group() == nullptr) {
      take(row->Pid());
      continue;
    }
    for (const auto& member : row->Group()->shown) {
      const auto* its = fRows.Find(member.pid);
      if (its != nullptr && its->origin.startStamp == member.startStamp) take(member.pid);
    }
  }
  return pids;
}

vqMainTableController::SelectionTotals vqMainTableController::selectionTotals() const {
  SelectionTotals totals{Missing::kNone, Missing::kNone};
  for (const auto pid : selectedPids()) {
    const auto& row = *fRows.Find(pid);
    // What the idle task has, nobody used.
    if (pid != 0) AddTo(totals.share, row.Get(kInternalCpuUsage));
    AddTo(totals.memory, Addend(row, kPidRsz));
  }
  return totals;
}

void vqMainTableController::rememberSelection() {
  if (gNSMainWindow == nullptr) return;
  for (const auto* row : selectedRows()) {
    if (row->Group() == nullptr)
      fRememberedSelectionPIDs.push_back(row->Pid());
    else
      fRememberedGroups.push_back(row->Group()->key);
  }
}

void vqMainTableController::restoreSelection() {
  if (gNSMainWindow == nullptr || fTable == nullptr) return;
  std::vector<int> places;
  const auto add = [&](const RowDictionary* row) {
    if (row != nullptr && row->shownIndex >= 0 && !row->Standing().isContext)
      places.push_back(row->shownIndex);
  };
  for (const auto pid : fRememberedSelectionPIDs) add(fRows.Find(pid));
  for (const auto& key : fRememberedGroups) add(fTree.FindGroup(key));
  fRememberedSelectionPIDs.clear();
  fRememberedGroups.clear();
  std::ranges::sort(places);
  places.erase(std::unique(places.begin(), places.end()), places.end());
  // The view has usually kept the selection on its processes by itself.
  std::vector<int> present;
  for (const auto* row : selectedRows()) present.push_back(row->shownIndex);
  if (places == present) return;
  QItemSelection selection;
  for (std::size_t i = 0; i < places.size();) {
    std::size_t end = i + 1;
    while (end < places.size() && places[end] == places[end - 1] + 1) ++end;
    selection.select(index(places[i], 0), index(places[end - 1], columnCount() - 1));
    i = end;
  }
  fTable->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

QString vqMainTableController::nameOf(std::int32_t pid) {
  return PlainText(WholeNameOf(pid));
}

bool vqMainTableController::selectPid(std::int32_t pid) {
  revealPids({pid});
  const auto* row = fRows.Find(pid);
  if (fTable == nullptr || row == nullptr || row->shownIndex < 0) return false;
  stripedTable()->SelectFound(row->shownIndex);
  return true;
}

std::size_t vqMainTableController::selectPids(const std::vector<std::int32_t>& pids) {
  revealPids(pids);
  const auto first = std::ranges::min(pids, {}, [this](std::int32_t pid) {
    const auto* row = fRows.Find(pid);
    return row != nullptr && row->shownIndex >= 0 ? row->shownIndex : rowCount();
  });
  const auto* row = fRows.Find(first);
  if (row == nullptr || row->shownIndex < 0) return 0;
  fRememberedSelectionPIDs = pids;
  restoreSelection();
  moveFocusTo(row);
  fTable->scrollTo(index(row->shownIndex, std::max(fTable->currentIndex().column(), 0)));
  return selectedPids().size();
}

void vqMainTableController::moveFocusTo(const RowDictionary* row) {
  if (row == nullptr || row->shownIndex < 0) return;
  const int column = std::max(fTable->currentIndex().column(), 0);
  fTable->setAutoScroll(false);
  fTable->selectionModel()->setCurrentIndex(index(row->shownIndex, column),
                                            QItemSelectionModel::NoUpdate);
  fTable->setAutoScroll(true);
}

void vqMainTableController::keepFocus(const std::vector<RowDictionary*>& wanted) {
  const int focused = fTable != nullptr ? fTable->currentIndex().row() : -1;
  if (focused < 0) return;
  const auto& shown = fRows.Shown();
  const auto count = static_cast<int>(shown.size());
  std::vector<bool> stay(shown.size(), false);
  for (const auto* row : wanted)
    if (row->shownIndex >= 0) stay[static_cast<std::size_t>(row->shownIndex)] = true;
  const auto stays = [&](int place) {
    return place >= 0 && place < count && stay[static_cast<std::size_t>(place)];
  };
  for (int distance = 0; distance < count; ++distance) {
    for (const int place : {focused + distance, focused - distance}) {
      if (!stays(place)) continue;
      if (distance > 0) moveFocusTo(shown[static_cast<std::size_t>(place)]);
      return;
    }
  }
}

QString vqMainTableController::selectionAsText() const {
  QString text;
  const auto& header = *fTable->horizontalHeader();
  for (const auto* selected : selectedRows()) {
    const auto& row = *selected;
    QStringList cells;
    for (int place = 0; place < header.count(); ++place) {
      const auto& column = fColumns[static_cast<std::size_t>(header.logicalIndex(place))];
      if (column.key != kInternalIcon) cells.append(spokenText(row, column));
    }
    text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
  }
  return text;
}

std::vector<std::string> vqMainTableController::printedKeys() const {
  std::vector<std::string> keys;
  const auto add = [&keys](std::string_view key) {
    if (std::ranges::find(keys, key) == keys.end()) keys.emplace_back(key);
  };
  const auto& header = *fTable->horizontalHeader();
  for (int place = 0; place < header.count(); ++place) {
    const auto& column = fColumns[static_cast<std::size_t>(header.logicalIndex(place))];
    if (column.key == kInternalCPUPercent) {
      add(kPrintedShare);
    } else if (column.key == kInternalMemGraph) {
      add(KeyText(kPidRsz));
      add(KeyText(kPidVsz));
    } else if (!column.isInternal && column.key != kMetaPid) {
      add(KeyText(column.key));
    }
  }
  return keys;
}

QString vqMainTableController::selectionAs(ListingForm form) const {
  const auto keys = printedKeys();
  const auto pids = selectedPids();
  if (pids.empty()) return {};
  std::vector<ListingColumn> columns;
  columns.reserve(keys.size());
  for (const auto& key : keys) columns.push_back({key, GetProcPropertyType(key.c_str(), nullptr)});
  Listing listing{.time = TheMachine().clock.Now(), .processes = {}};
  for (const auto pid : pids) {
    auto& process =
        listing.processes.emplace_back(PrintedProcess{.pid = pid, .depth = 0, .values = {}});
    for (const auto& key : keys)
      // The table finds it itself.
      process.values.push_back(key == kPrintedShare
                                   ? fRows.Find(pid)->Get(kInternalCpuUsage)
                                   : GetPIDPropertyValueForOutput(pid, key.c_str()));
  }
  return QString::fromStdString(ListingText(form, std::move(columns), listing));
}

}  // namespace lurkwell
