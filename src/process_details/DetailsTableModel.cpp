#include "process_details/DetailsTableModel.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

// Bytes; what is copied is whole.
constexpr std::size_t kLongestCell = 600;
constexpr std::size_t kLongestTip = 4000;
/// All of a calendar text.
constexpr int kDateWidth = 25;

QString CutText(std::string_view text, std::size_t longest) {
  if (text.size() <= longest) return PlainText(text);
  auto end = longest;
  // Not within a character.
  while (end > 0 && (text[end] & '\xC0') == '\x80') --end;
  return PlainText(text.substr(0, end)) + QStringLiteral("…");
}

QString TextOf(const DetailsColumn& column, const TypedValue& value, std::size_t longest) {
  const auto* text = std::get_if<std::string>(&value);
  return text != nullptr ? CutText(*text, longest) : DisplayText(column.type, value, kDateWidth, 0);
}

/// -1, 0 or 1.
int Compare(const TypedValue& left, const TypedValue& right) {
  const auto order = [](const auto& a, const auto& b) { return a < b ? -1 : b < a ? 1 : 0; };
  const auto* leftText = std::get_if<std::string>(&left);
  const auto* rightText = std::get_if<std::string>(&right);
  if (leftText != nullptr && rightText != nullptr) return order(*leftText, *rightText);
  const auto* leftNumber = std::get_if<std::int64_t>(&left);
  const auto* rightNumber = std::get_if<std::int64_t>(&right);
  if (leftNumber != nullptr && rightNumber != nullptr) return order(*leftNumber, *rightNumber);
  // "unlimited" is more than any number.
  if (leftText != nullptr || rightText != nullptr) return leftText != nullptr ? 1 : -1;
  return order(NumberOf(left), NumberOf(right));
}

}  // namespace

// ---- The model ----------------------------------------------------------------------------------

DetailsTableModel::DetailsTableModel(std::span<const DetailsColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), mColumns(columns) {}

void DetailsTableModel::SetRows(std::vector<DetailsRow> rows) {
  std::unordered_set<std::uint64_t> keys;
  std::erase_if(rows, [&](const DetailsRow& row) { return !keys.insert(row.key).second; });
  AppendNewOnes(rows);
  Arrange(std::move(rows));
  const auto left = static_cast<int>(keys.size());
  if (const int all = rowCount(); all > left) {
    beginRemoveRows({}, left, all - 1);
    mRows.resize(keys.size());
    endRemoveRows();
  }
  if (left > 0) Q_EMIT dataChanged(index(0, 0), index(left - 1, columnCount() - 1));
}

void DetailsTableModel::AppendNewOnes(const std::vector<DetailsRow>& rows) {
  std::unordered_set<std::uint64_t> known;
  for (const auto& row : mRows) known.insert(row.key);
  std::vector<DetailsRow> added;
  std::ranges::copy_if(rows, std::back_inserter(added),
                       [&](const DetailsRow& row) { return !known.contains(row.key); });
  if (added.empty()) return;
  const int first = rowCount();
  beginInsertRows({}, first, first + static_cast<int>(added.size()) - 1);
  std::ranges::move(added, std::back_inserter(mRows));
  endInsertRows();
}

/// All of `rows` are there, perhaps in other places; the others go behind them.
void DetailsTableModel::Arrange(std::vector<DetailsRow> rows) {
  const bool isInOrder = std::ranges::equal(rows, std::span(mRows).first(rows.size()), {},
                                            &DetailsRow::key, &DetailsRow::key);
  if (isInOrder) {
    std::ranges::move(rows, mRows.begin());
    return;
  }
  Q_EMIT layoutAboutToBeChanged();
  std::unordered_map<std::uint64_t, int> places;
  for (const auto& row : rows) places.emplace(row.key, static_cast<int>(places.size()));
  auto former = std::exchange(mRows, std::move(rows));
  std::vector<int> placeOf;
  for (auto& row : former) {
    const auto stays = places.find(row.key);
    placeOf.push_back(stays != places.end() ? stays->second : rowCount());
    if (stays == places.end()) mRows.push_back(std::move(row));
  }
  const auto before = persistentIndexList();
  QModelIndexList after;
  for (const auto& place : before)
    after.append(index(placeOf[static_cast<std::size_t>(place.row())], place.column()));
  changePersistentIndexList(before, after);
  Q_EMIT layoutChanged();
}

QString DetailsTableModel::WholeText(int row, int column) const {
  const auto& value = mRows[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(column)];
  if (!IsKnown(value)) return MissingText(value);
  return TextOf(mColumns[static_cast<std::size_t>(column)], value, std::string::npos);
}

int DetailsTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mRows.size());
}

int DetailsTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mColumns.size());
}

QVariant DetailsTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto& column = mColumns[static_cast<std::size_t>(index.column())];
  const auto& value =
      mRows[static_cast<std::size_t>(index.row())].cells[static_cast<std::size_t>(index.column())];
  switch (role) {
    case Qt::DisplayRole:
      return TextOf(column, value, kLongestCell);
    case Qt::ToolTipRole:
      return Qt::convertFromPlainText(IsKnown(value) ? TextOf(column, value, kLongestTip)
                                                     : MissingText(value));
    case Qt::AccessibleTextRole:
      return IsKnown(value) ? QVariant() : MissingText(value);
    case Qt::TextAlignmentRole:
      return QVariant::fromValue((column.IsNumber() ? kAlignFigures : kAlignTexts) |
                                 Qt::AlignVCenter);
    default:
      return {};
  }
}

QVariant DetailsTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const auto& column = mColumns[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return LocalizedString(column.title);
  if (role == Qt::TextAlignmentRole)
    return QVariant::fromValue((column.IsNumber() ? kAlignFigures : kAlignTexts) |
                               Qt::AlignVCenter);
  return {};
}

// ---- Sorting ------------------------------------------------------------------------------------

DetailsSorting::DetailsSorting(DetailsTableModel& model, QObject* parent)
    : QSortFilterProxyModel(parent), mModel(model) {
  setSourceModel(&model);
}

void DetailsSorting::SetFilter(const QString& words) {
  mWords = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  invalidateFilter();
}

bool DetailsSorting::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const auto& a = mModel.Rows()[static_cast<std::size_t>(left.row())];
  const auto& b = mModel.Rows()[static_cast<std::size_t>(right.row())];
  const auto column = static_cast<std::size_t>(left.column());
  if (mModel.Columns()[column].sortsByKey) return a.key < b.key;
  const bool isAscending = sortOrder() == Qt::AscendingOrder;
  const bool isAKnown = IsKnown(a.cells[column]);
  const bool isBKnown = IsKnown(b.cells[column]);
  if (isAKnown != isBKnown) return isAKnown == isAscending;
  const int order = isAKnown ? Compare(a.cells[column], b.cells[column]) : 0;
  if (order != 0) return order < 0;
  return isAscending ? a.key < b.key : a.key > b.key;
}

bool DetailsSorting::filterAcceptsRow(int row, const QModelIndex&) const {
  return std::ranges::all_of(mWords, [&](const QString& word) {
    for (int column = 0; column < mModel.columnCount(); ++column)
      if (mModel.WholeText(row, column).contains(word, Qt::CaseInsensitive)) return true;
    return false;
  });
}

}  // namespace lurkwell
