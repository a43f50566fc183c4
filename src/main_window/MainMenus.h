#pragma once

#include <QHash>
#include <QMainWindow>
#include <QMenu>

#include "main_window/ColumnMenus.h"
#include "main_window/CommandTable.h"

namespace lurkwell {

class vqMainTableController;

/// The main window's menus, made from the table of commands. What may be chosen is looked at again
/// whenever a menu opens and whenever the selection changes. While one of the menus is open the
/// table's rows keep their places. Main thread only.
class MainMenus : public QObject {
  Q_OBJECT

 public:
  /// All outlive this.
  MainMenus(QMainWindow& window, vqMainTableController& controller, const CommandScope& scope);

  /// The process commands, for a click on a row.
  QMenu& ContextMenu() { return mContextMenu; }
  /// The columns, for a click on a header. Its first item hides `column`.
  QMenu& HeaderMenu(int column);
  ColumnMenus& columnMenus() { return mColumnMenus; }
  /// What the table can be switched between, one menu for each subject.
  QMenu& ShapeMenu() { return mShapeMenu; }
  QMenu& ScopeMenu() { return mScopeMenu; }
  QMenu& ColumnSetMenu() { return mColumnSetMenu; }

  /// The toolbar's own, for a click on it; the caller deletes it.
  QMenu* MakeToolbarMenu(QWidget* parent);

  void ValidateAll();

 private:
  /// Makes a command's action, which belongs to the window.
  void MakeAction(const Command& command);
  QAction* ActionOf(const char* text) const { return mActions.value(FindCommand(text)); }
  QMenu* AddMenu(const char* id);
  /// Appends the commands of a menu of the bar, with lines between their groups.
  void AppendCommands(QMenu& menu, CommandMenu which);
  void BuildMenuBar();
  void BuildContextMenu();
  void BuildHeaderMenu();
  /// "name (pid)", or how many they are.
  QString NameOfSelection() const;
  void FollowToolbar();
  /// The windows that follow processes, listed anew whenever the menu opens.
  void BuildOpenWindows(QMenu& menu);
  /// For those without a mouse: what can be done to headers.
  void BuildSortMenu(QMenu& view);
  void BuildSwitches(QMenu& view);
  /// The user's own sets of columns, with the keys that are left, as they are now.
  void ShowOwnColumnSets();
  void WatchMenu(QMenu& menu);

  QMainWindow& mWindow;
  vqMainTableController& mController;
  CommandScope mScope;
  QHash<const Command*, QAction*> mActions;
  ColumnMenus mColumnMenus;
  QMenu mContextMenu;
  QMenu mHeaderMenu;
  QAction* mHideColumn = nullptr;
  QMenu mSortMenu;
  QMenu mShapeMenu;
  QMenu mScopeMenu;
  QMenu mColumnSetMenu;
  QList<QAction*> mOwnColumnSets;
};

}  // namespace lurkwell
