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
