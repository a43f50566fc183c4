#pragma once

#include <QHeaderView>
#include <QMenu>
#include <functional>

namespace lurkwell {

/// A menu with the titles of all columns, for those who sort without a pointer. It is filled each
/// time it opens; the column that is sorted by is marked. A choice calls `sortBy` with the column.
/// Belongs to the parent, which must not outlive the header. Main thread only.
QMenu* AddSortMenu(QMenu& parent, const QHeaderView& header, std::function<void(int)> sortBy);

}  // namespace lurkwell
