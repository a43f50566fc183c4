#pragma once

#include <QList>
#include <QMainWindow>
#include <QMenu>
#include <functional>

#include "main_window/MenuCommands.h"
#include "windows/ApplicationCommands.h"

namespace lurkwell {

class vqMainTableController;

/// The main window's menus: every command, its shortcut, and whether it may be chosen, which is
/// looked at again whenever a menu opens and whenever the selection changes. While one of the menus
/// is open the table's rows keep their places. Main thread only.
class MainMenus : public QObject {
  Q_OBJECT

 public:
  MainMenus(QMainWindow& window, vqMainTableController& controller, ApplicationCommands& commands);

  /// The process commands, for a click on a row.
  QMenu& ContextMenu() { return mContextMenu; }
  /// The columns, for a click on a header. Its first item hides `column`.
  QMenu& HeaderMenu(int column);

  /// The toolbar's own, for a click on it; whoever asked deletes it.
  QMenu* MakeToolbarMenu(QWidget* parent);

  void ValidateAll();

 Q_SIGNALS:
  void filterRequested();
  void closeRequested();
  void pidRequested();
  /// Nothing could be started that shows the page.
  void helpIsMissing(const QString& page);

 private:
  struct Item {
    QAction* action;
    MenuCommand command;
  };

  /// Makes an action of the window; `id` names its text.
  QAction* Make(const char* id, MenuCommand command, std::function<void()> handler,
                const QKeySequence& shortcut = {});
  void MakeProcessActions();
  void BuildMenuBar();
  void BuildContextMenu();
  void BuildHeaderMenu();
  /// "name (pid)", or how many they are.
  QString NameOfSelection() const;
  void BuildToolbarItems(QMenu& view);
  /// The windows that follow processes, listed anew whenever the menu opens.
  void BuildOpenWindows(QMenu& menu);
  /// For whoever has no mouse: what can be done to headers.
  void BuildSortMenu(QMenu& view);
  QMenu* AddMenu(const char* id);
  void WatchMenu(QMenu& menu);
  void doLurkwellHelp();

  QMainWindow& mWindow;
  vqMainTableController& mController;
  ApplicationCommands& mCommands;
  QList<Item> mItems;
  /// In the order in which menus show them; null separates.
  QList<QAction*> mProcessActions;
  QList<QAction*> mWindowActions;
  QAction* mShowToolbar = nullptr;
  QAction* mCustomiseToolbar = nullptr;
  QMenu mContextMenu;
  QMenu mHeaderMenu;
  QAction* mHideColumn = nullptr;
  QMenu mSortMenu;
};

}  // namespace lurkwell
