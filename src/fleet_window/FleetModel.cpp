#include "fleet_window/FleetModel.h"

#include <QHash>
#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

#include "fleet/FleetError.h"
#include "resources/Resources.h"
#include "windows/CustomCells.h"
#include "windows/PropertyText.h"
#include "windows/StripedTableView.h"

namespace lurkwell {
namespace {

constexpr int kLongestName = 200;

}  // namespace

std::optional<FleetFigure> FleetModel::FigureOf(int column) const {
  const auto columns = ColumnsOf(Level());
  if (column < 1 || column > static_cast<int>(columns.size())) return std::nullopt;
  return columns[static_cast<std::size_t>(column - 1)];
}

int FleetModel::ColumnOf(FleetFigure figure) const {
  const auto columns = ColumnsOf(Level());
  const auto found = std::ranges::find(columns, figure);
  return found == columns.end() ? -1 : static_cast<int>(found - columns.begin()) + 1;
}

QString FleetModel::TitleOf(int column) const {
  if (const auto figure = FigureOf(column)) return LocalizedString(RowOf(*figure).title);
  return LocalizedString(RowsAreMachines(Level()) ? "fleet_machine" : "fleet_group");
}

void FleetModel::Clear(FleetLevel level) {
  beginResetModel();
  mTable = FleetTable();
  mTable.view.level = level;
  endResetModel();
}

void FleetModel::SetTable(const FleetTable& table) {
  auto rows = table.rows;
  if (table.view.level != Level()) {
    beginResetModel();
    mTable = table;
    SortRows(mTable.rows);
    endResetModel();
    return;
  }
  SortRows(rows);
  const auto wanted = rows.size();
  const auto before = mTable.rows.size();
  auto kept = std::exchange(mTable.rows, {});
  mTable = table;
  mTable.rows = std::move(kept);
  if (wanted > before) {
    // Their figures come with the places.
    beginInsertRows({}, static_cast<int>(before), static_cast<int>(wanted) - 1);
    mTable.rows.resize(wanted);
    endInsertRows();
  }
  Arrange(std::move(rows));
  if (wanted < before) {
    beginRemoveRows({}, static_cast<int>(wanted), static_cast<int>(before) - 1);
    mTable.rows.resize(wanted);
    endRemoveRows();
  }
  if (wanted > 0)
    Q_EMIT dataChanged(index(0, 0), index(static_cast<int>(wanted) - 1, columnCount() - 1));
}

void FleetModel::Arrange(std::vector<FleetRow> rows) {
  Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
  QHash<QString, int> places;
  for (const auto& row : rows) places.insert(row.name, static_cast<int>(places.size()));
  const auto before = persistentIndexList();
  QModelIndexList after;
  for (const auto& place : before) {
    const auto stays = places.constFind(RowAt(place.row()).name);
    after.append(stays == places.cend() ? QModelIndex() : index(*stays, place.column()));
  }
  rows.resize(std::max(rows.size(), mTable.rows.size()));
  mTable.rows = std::move(rows);
  changePersistentIndexList(before, after);
  Q_EMIT layoutChanged({}, VerticalSortHint);
}

void FleetModel::SortRows(std::vector<FleetRow>& rows) const {
  const bool isUp = mSortOrder == Qt::AscendingOrder;
  const auto figure = FigureOf(mSortColumn);
  // Moments are shown as how long ago they were.
  const bool isSpan = figure && RowOf(*figure).unit == FleetUnit::kMoment;
  const auto byName = [](const FleetRow& a, const FleetRow& b) {
    const int order = QString::compare(a.name, b.name, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a.name < b.name;
  };
  std::ranges::sort(rows, [&](const FleetRow& a, const FleetRow& b) {
    if (!figure) return isUp ? byName(a, b) : byName(b, a);
    const double left = a.Of(*figure), right = b.Of(*figure);
    const bool isLeft = std::isfinite(left), isRight = std::isfinite(right);
    if (isLeft != isRight) return isLeft;
    if (!isLeft || left == right) return byName(a, b);
    return (isUp != isSpan) == (left < right);
  });
}

void FleetModel::Sort(int column, Qt::SortOrder order) {
  mSortColumn = column;
  mSortOrder = order;
  auto rows = mTable.rows;
  SortRows(rows);
  Arrange(std::move(rows));
}

void FleetModel::SetOld(bool isOld) {
  if (std::exchange(mIsOld, isOld) == isOld || mTable.rows.empty()) return;
  Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

QString FleetModel::TextOf(const FleetRow& row, int column) const {
  const auto figure = FigureOf(column);
  if (!figure) return OneLine(row.name, kLongestName);
  const double value = row.Of(*figure);
  auto text = FleetFigureText(*figure, value, mTable.time);
  if (*figure != FleetFigure::kSeen || !row.IsDown()) return text;
  return std::isfinite(value) ? LocalizedString("fleet_down_for").arg(text)
                              : LocalizedString("fleet_down");
}

int FleetModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mTable.rows.size());
}

int FleetModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(ColumnsOf(Level()).size()) + 1;
}

QVariant FleetModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const auto& row = RowAt(index.row());
  const auto figure = FigureOf(index.column());
  switch (role) {
    case Qt::DisplayRole:
      return TextOf(row, index.column());
    case Qt::AccessibleTextRole:
      return TitleOf(index.column()) + QLatin1Char(' ') + TextOf(row, index.column());
    case Qt::ToolTipRole:
      return figure ? QVariant() : OneLine(row.name, kLongestName).toHtmlEscaped();
    case Qt::TextAlignmentRole:
      return QVariant::fromValue((figure ? kAlignFigures : kAlignTexts) | Qt::AlignVCenter);
    case kCpuShareRole:
      return std::clamp(std::isfinite(row.Of(FleetFigure::kCpu)) ? row.Of(FleetFigure::kCpu) : 0.0,
                        0.0, 1.0);
    case kBarTextRole:
      return TextOf(row, index.column());
    case kIsFaintRole:
      return mIsOld || row.IsDown() || (figure && !std::isfinite(row.Of(*figure)));
    case StripedTableView::kCellHasChangedRole:
      return true;
    default:
      return {};
  }
}

QVariant FleetModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return TitleOf(section);
  const auto figure = FigureOf(section);
  if (role == Qt::TextAlignmentRole)
    return QVariant::fromValue((figure ? kAlignFigures : kAlignTexts) | Qt::AlignVCenter);
  if (role == Qt::ToolTipRole && figure)
    return LocalizedString((RowOf(*figure).title + std::string("_tip")).c_str());
  return {};
}

}  // namespace lurkwell
