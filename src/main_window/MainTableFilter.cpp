// Which rows a filter takes, and what it could not look into.
#include <QTimer>
#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "consolidator/PI_Consolidator.h"
#include "main_window/vqMainTableController.h"
#include "platform/PrintableText.h"
#include "query/TextPattern.h"

namespace lurkwell {

/// A row as a filter looks at it: plain words look at what is shown, the rest at what is known.
class vqMainTableController::FilteredRow final : public QuerySubject {
 public:
  FilteredRow(const vqMainTableController& table, const RowDictionary& row)
      : mTable(table), mRow(row) {}

  TypedValue ValueOf(const std::string& property) const override {
    // Short names would match nothing that was typed in full.
    if (property == KeyText(kMetaName) && !mRow.isDeparted)
      return mTable.nameOf(mRow.Pid()).toStdString();
    if (const auto& shown = mRow.Get(InternKey(property)); mTable.isPaused() && IsKnown(shown))
      return shown;
    // Its pid may be another's by now.
    if (mRow.isDeparted) return Missing::kNone;
    return GetPIDPropertyTypedValue(mRow.Pid(), property.c_str());
  }
  bool ShowsTextLike(const TextPattern& pattern) const override {
    if (pattern.Matches(std::to_string(mRow.Pid()))) return true;
    // Where names are shown, the columns below have them.
    if (!mTable.isTracked(KeyText(kMetaName)) && !mRow.isDeparted &&
        pattern.Matches(mTable.nameOf(mRow.Pid()).toStdString()))
      return true;
    return std::ranges::any_of(mTable.fColumns, [&](const Column& column) {
      const auto* text = std::get_if<std::string>(&mRow.Get(column.key));
      return text != nullptr && pattern.Matches(PrintableText(*text));
    });
  }

 private:
  const vqMainTableController& mTable;
  const RowDictionary& mRow;
};

void vqMainTableController::setFilter(Query query) {
  const bool looksAtMore = !query.Properties().empty();
  const bool waits = std::ranges::any_of(query.Properties(), IsReadInBackground);
  fFilter = std::move(query);
  fFilterHasChanged = true;
  for (auto* row : fRows.All()) row->isFoldedInFilter = false;
  fTree.ForgetFoldsOfGroupsInFilter();
  commitChanges();
  if (looksAtMore) updateNow();
  // What comes from the background is there long before the next turn.
  if (waits)
    for (const int milliseconds : {150, 600})
      QTimer::singleShot(milliseconds, this, &vqMainTableController::updateNow);
}

vqMainTableController::FilterGaps vqMainTableController::filterGaps() const {
  FilterGaps gaps;
  std::vector<std::string> properties;
  std::ranges::copy_if(fFilter.Properties(), std::back_inserter(properties), IsReadInBackground);
  if (properties.empty()) return gaps;
  for (const auto* row : fRows.All()) {
    if (row->isDeparted || !isInScope(*row)) continue;
    for (const auto& property : properties) {
      const auto value = GetPIDPropertyTypedValue(row->Pid(), property.c_str());
      const auto* why = std::get_if<Missing>(&value);
      if (why == nullptr) continue;
      if (*why == Missing::kNotAllowed) ++gaps.notAllowed;
      if (*why == Missing::kNotYetKnown) ++gaps.notYetKnown;
      if (*why != Missing::kNone) break;
    }
  }
  return gaps;
}

bool vqMainTableController::needsProperty(const char* key) const {
  const auto needed = fFilter.Properties();
  return fLayout.Has(key) || std::ranges::find(needed, std::string_view(key)) != needed.end() ||
         std::ranges::any_of(fKeysBesideColumns,
                             [key](KeyId beside) { return KeyText(beside) == key; });
}

bool vqMainTableController::matches(const RowDictionary& row) const {
  return isInScope(row) && (fFilter.IsEmpty() || fFilter.IsFulfilledBy(FilteredRow(*this, row)));
}

}  // namespace lurkwell
