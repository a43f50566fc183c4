#include "windows/vqTableController.h"

#include <QHeaderView>
#include <QItemSelectionModel>

namespace lurkwell {

void vqTableController::setSortColumn(KeyId key, char ascending) {
  if (key != kNoKey) {
    if (sortSelectorForColumn(KeyText(key)) == nullptr) return;
    fSortAscending = ascending;
  }
  fSortColumn = key;
  showSortIndicator();
}

void vqTableController::showSortIndicator() {
  if (fTable == nullptr) return;
  auto& header = *fTable->horizontalHeader();
  const int column = fSortColumn == kNoKey ? -1 : columnIndexOf(fSortColumn);
  header.setSortIndicatorShown(column >= 0);
  header.setSortIndicator(column, indicatorForSortDirection(fSortAscending));
}

bool vqTableController::hasSelection() const {
  return fTable != nullptr && fTable->selectionModel() != nullptr &&
         fTable->selectionModel()->hasSelection();
}

RowComparison vqTableController::sortSelectorForColumn(std::string_view) const {
  return nullptr;
}

RowComparison vqTableController::keyScrollSelectorForColumn(std::string_view) const {
  return nullptr;
}

Qt::SortOrder vqTableController::indicatorForSortDirection(char ascending) {
  return ascending != 0 ? Qt::AscendingOrder : Qt::DescendingOrder;
}

}  // namespace lurkwell
