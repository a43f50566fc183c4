#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>

#include "main_window/FilterMenu.h"
#include "windows/Keys.h"

namespace lurkwell {

class vqMainTableController;

/// The menu items that say which columns are shown: five of their own, and one for every built-in
/// property and every ps column in two submenus, by groups. Items are ticked while their column is
/// shown.
/// Main thread only.
class ColumnMenus : public QObject {
  Q_OBJECT

 public:
  /// The controller outlives this.
  explicit ColumnMenus(vqMainTableController& controller);

  /// Makes the items, when the properties are known. Once.
  void Build();

  /// The five items and the two submenus, to be put wherever columns can be chosen.
  void AppendTo(QMenu& menu) const;

  /// Ticks the items whose columns are shown.
  void ShowTicks();

  void processIconMenuItem();
  void processIndicatorMenuItem();
  void processNameMenuItem();
  void processCPUPercentMenuItem();
  void processMemGraphMenuItem();
  void processBuiltInMenuItem(QAction* item);
  void processPSAvailableMenuItem(QAction* item);

  /// Shows the column, or takes it off the table.
  void processGeneralMenuItem(KeyId key, KeyId afterKey = kNoKey);

  /// Enables the items of the submenus or not, and adds those that there were not before.
  void Validate();

  FilterMenu& BuiltInMenu() { return mBuiltInMenu; }
  FilterMenu& PSAvailableMenu() { return mPSAvailableMenu; }
  QAction& TopLevelItem(KeyId key);

 private:
  QAction* AddItem(FilterMenu& menu, const char* key);
  /// For the properties that have become known: a slow ps may tell its columns later.
  void AddItems();

  vqMainTableController& mController;
  int mHeadersSeen = 0;
  FilterMenu mBuiltInMenu;
  FilterMenu mPSAvailableMenu;
  QAction fTopLevelIconMenuItem;
  QAction fTopLevelIndicatorMenuItem;
  QAction fTopLevelNameMenuItem;
  QAction fTopLevelCPUPercentMenuItem;
  QAction fTopLevelMemGraphMenuItem;
};

}  // namespace lurkwell
