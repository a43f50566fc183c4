#pragma once

#include <QString>
#include <QStringList>
#include <compare>
#include <cstddef>
#include <span>
#include <string_view>

namespace lurkwell {

/// Which columns there are to choose from, sorted for people: by what they are about. Main thread.

/// A group of columns. `id` names its title.
struct ColumnGroup {
  const char* id;
};

/// In the order in which they are offered: what is of no use on this system stands last.
std::span<const ColumnGroup> ColumnGroups();

/// Where a column is offered.
struct ColumnPlace {
  /// Index in ColumnGroups.
  std::size_t group;
  /// Among those of the group, the most useful first.
  std::size_t rank;

  auto operator<=>(const ColumnPlace&) const = default;
};

/// The place of a built-in property or ps column. One that has none goes, behind all others, into
/// the group of its source or its type.
ColumnPlace PlaceOfColumn(std::string_view key);

/// What the column is called; a column of ps that is not known here, by its header.
QString ColumnTitle(const char* key);

/// What its figure is; of a column of ps also by which keywords ps prints it.
QString ColumnTip(const char* key);

/// The keywords by which ps prints the column, in ps's order; none for a built-in property or a
/// column that ps has not told of.
QStringList KeywordsOfColumn(const char* key);

}  // namespace lurkwell
