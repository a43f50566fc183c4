// What keeps rows where they are, or what they show.
#include <QScrollBar>

#include "main_window/vqMainTableController.h"
#include "preferences/Settings.h"

namespace lurkwell {

// ---- The order ----------------------------------------------------------------------------------

void vqMainTableController::holdOrder(const QObject* holder, bool hold) {
  if (hold) {
    fHolders.insert(holder);
  } else if (fHolders.erase(holder) > 0 && fHolders.empty()) {
    // After the command that closed the menu.
    setNeedsReload();
  }
}

bool vqMainTableController::isOrderHeld() const {
  return !fHolders.empty() || (fTable != nullptr && stripedTable()->IsPressed());
}

bool vqMainTableController::isArranged() const {
  if (fNeedsResort || fFilterHasChanged) return false;
  if (fIsPaused) return !fStandingHasChanged;
  // A filter's rows may be others after any change of a text.
  return !fRows.HaveComeOrGone() && !fStandingHasChanged && !hidesRows();
}

// ---- Pausing ------------------------------------------------------------------------------------

void vqMainTableController::setPaused(bool paused) {
  if (fIsPaused == paused) return;
  if (paused) commitChanges();
  fIsPaused = paused;
  fKeysOfPause.clear();
  if (paused) fKeysOfPause = keysToRead();
  fRows.SetHeld(paused);
  for (auto* row : fRows.All()) row->SetChanged(true);
  for (auto* row : fRows.Shown()) row->SetChanged(true);
  if (!paused) {
    fNeedsResort = true;
    noteStandingHasChanged();
  }
  commitChanges();
  if (!paused) updateNow();
  Q_EMIT arrangementChanged();
}

std::vector<KeyId> vqMainTableController::keysToRead() const {
  auto keys = fLayout.Keys();
  keys.insert(keys.end(), fKeysBesideColumns.begin(), fKeysBesideColumns.end());
  return keys;
}

std::vector<KeyId> vqMainTableController::keysSincePause() const {
  if (!fIsPaused) return {};
  auto keys = keysToRead();
  std::erase_if(keys, [this](KeyId key) {
    return IsInternalKey(KeyText(key)) ||
           std::ranges::find(fKeysOfPause, key) != fKeysOfPause.end();
  });
  return keys;
}

void vqMainTableController::noteHeldRowsWereRead(KeyId key) {
  fNeedsResort = fNeedsResort || key == fSortColumn || fSortColumn == kInternalMemGraph;
  fStandingHasChanged = fStandingHasChanged || standingDependsOn(key);
  fFilterHasChanged = true;
}

// ---- Following ----------------------------------------------------------------------------------

void vqMainTableController::setFollowsSelection(bool follows) {
  if (fFollowsSelection == follows) return;
  StoreInt("MAIN_WINDOW_FOLLOWS_SELECTION", follows ? 1 : 0);
  fFollowsSelection = follows;
  keepFollowed(followedRow(), {});
  Q_EMIT arrangementChanged();
}

QPersistentModelIndex vqMainTableController::followedRow() const {
  if (!fFollowsSelection || fTable == nullptr || !fTable->selectionModel()->hasSelection())
    return {};
  const auto focused = fTable->currentIndex();
  if (focused.isValid() && fTable->selectionModel()->isRowSelected(focused.row())) return focused;
  const auto rows = selectedRows();
  if (rows.empty()) return {};
  return index(rows.front()->shownIndex, 0);
}

std::optional<int> vqMainTableController::placeInSight(const QPersistentModelIndex& row) const {
  if (!row.isValid() || !fTable->viewport()->rect().intersects(fTable->visualRect(row))) return {};
  return fTable->rowViewportPosition(row.row());
}

void vqMainTableController::keepFollowed(const QPersistentModelIndex& row,
                                         std::optional<int> place) {
  if (!row.isValid()) return;
  if (place) {
    // So that there is room to scroll to.
    fTable->doItemsLayout();
    auto& bar = *fTable->verticalScrollBar();
    bar.setValue(bar.value() + fTable->rowViewportPosition(row.row()) - *place);
  }
  stripedTable()->ScrollToRow(row);
}

}  // namespace lurkwell
