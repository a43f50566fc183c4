#include "windows/SortMenu.h"

#include <QAbstractItemModel>
#include <QAction>
#include <utility>

#include "resources/Resources.h"

namespace lurkwell {

QMenu* AddSortMenu(QMenu& parent, const QHeaderView& header, std::function<void(int)> sortBy) {
  auto* menu = parent.addMenu(LocalizedString("menu_view_sort_by"));
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, &header, sortBy = std::move(sortBy)] {
    menu->clear();
    for (int place = 0; place < header.count(); ++place) {
      const int column = header.logicalIndex(place);
      const auto title =
          header.model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
      auto* item = menu->addAction(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
      item->setCheckable(true);
      item->setChecked(header.isSortIndicatorShown() && header.sortIndicatorSection() == column);
      QObject::connect(item, &QAction::triggered, menu, [sortBy, column] { sortBy(column); });
    }
  });
  return menu;
}

}  // namespace lurkwell
