#include "main_window/MainMenus.h"

#include <QMenuBar>
#include <algorithm>
#include <utility>

#include "main_window/ColumnGroups.h"
#include "main_window/MainToolbar.h"
#include "main_window/vqMainTableController.h"
#include "resources/Resources.h"

namespace lurkwell {

using Controller = vqMainTableController;

namespace {

/// Points; a menu is to stay one.
constexpr int kWidestName = 260;

}  // namespace

MainMenus::MainMenus(QMainWindow& window, vqMainTableController& controller,
                     const CommandScope& scope)
    : mWindow(window), mController(controller), mScope(scope), mColumnMenus(controller) {
  mColumnMenus.Build();
  for (const auto& command : Commands()) MakeAction(command);
  BuildMenuBar();
  BuildContextMenu();
  BuildHeaderMenu();
  FollowToolbar();
  connect(&controller, &Controller::contentsChanged, this, &MainMenus::ValidateAll);
  connect(&controller, &Controller::arrangementChanged, this, &MainMenus::ValidateAll);
  ValidateAll();
}

void MainMenus::MakeAction(const Command& command) {
  auto* action = new QAction(LocalizedString(command.text), &mWindow);
  action->setObjectName(QLatin1String(command.text));
  action->setShortcut(command.Shortcut());
  // A key that is held must not do the same, or something harsher, again and again.
  action->setAutoRepeat(false);
  action->setCheckable(command.isChecked != nullptr);
  connect(action, &QAction::triggered, this, [this, &command] {
    command.run(mScope);
    // A click on what holds already would take its mark away.
    if (command.isChecked != nullptr) ValidateAll();
  });
  mWindow.addAction(action);
  mActions.insert(&command, action);
  if (command.menu != CommandMenu::kProcess) return;
  // Keys of the filter's field are its own.
  action->setShortcutContext(Qt::WidgetShortcut);
  mController.table()->addAction(action);
}

QMenu* MainMenus::AddMenu(const char* id) {
  auto* menu = mWindow.menuBar()->addMenu(LocalizedString(id));
  WatchMenu(*menu);
  return menu;
}

void MainMenus::WatchMenu(QMenu& menu) {
  connect(&menu, &QMenu::aboutToShow, this, [this, &menu] {
    mController.holdOrder(&menu, true);
    ValidateAll();
  });
  connect(&menu, &QMenu::aboutToHide, this, [this, &menu] { mController.holdOrder(&menu, false); });
}

void MainMenus::AppendCommands(QMenu& menu, CommandMenu which) {
  for (const auto& command : Commands()) {
    if (command.menu != which) continue;
    if (command.beginsGroup) menu.addSeparator();
    menu.addAction(mActions.value(&command));
  }
}

void MainMenus::BuildMenuBar() {
  // A menu bar elsewhere on the desktop does not tell when its menus close.
  mWindow.menuBar()->setNativeMenuBar(false);
  AppendCommands(*AddMenu("menu_application"), CommandMenu::kApplication);
  AppendCommands(*AddMenu("menu_file"), CommandMenu::kFile);
  AppendCommands(*AddMenu("menu_edit"), CommandMenu::kEdit);
  auto* view = AddMenu("menu_view");
  AppendCommands(*view, CommandMenu::kView);
  BuildSwitches(*view);
  BuildSortMenu(*view);
  auto* columns = AddMenu("menu_columns");
  columns->addMenu(&mColumnSetMenu);
  columns->addSeparator();
  mColumnMenus.AppendTo(*columns);
  AppendCommands(*AddMenu("menu_process"), CommandMenu::kProcess);
  auto* window = AddMenu("menu_window");
  AppendCommands(*window, CommandMenu::kWindow);
  BuildOpenWindows(*window);
  AppendCommands(*AddMenu("menu_help"), CommandMenu::kHelp);
}

void MainMenus::BuildSwitches(QMenu& view) {
  for (const char* shape :
       {"menu_view_shape_list", "menu_view_shape_tree", "menu_view_shape_applications"})
    mShapeMenu.addAction(ActionOf(shape));
  mScopeMenu.setTitle(LocalizedString("menu_view_scope"));
  AppendCommands(mScopeMenu, CommandMenu::kScope);
  view.insertMenu(ActionOf("menu_view_show_toolbar"), &mScopeMenu);
  mColumnSetMenu.setTitle(LocalizedString("menu_columns_set"));
  AppendCommands(mColumnSetMenu, CommandMenu::kColumnSet);
  ShowOwnColumnSets();
  connect(&mController, &Controller::arrangementChanged, this, &MainMenus::ShowOwnColumnSets);
  for (auto* menu : {&mShapeMenu, &mScopeMenu, &mColumnSetMenu}) WatchMenu(*menu);
}

void MainMenus::ShowOwnColumnSets() {
  const auto& sets = mController.columnSets();
  for (auto* item : std::exchange(mOwnColumnSets, {})) {
    mColumnSetMenu.removeAction(item);
    mWindow.removeAction(item);
    // This may be its doing.
    item->deleteLater();
  }
  // The line before the commands that are about sets.
  const auto items = mColumnSetMenu.actions();
  auto* line = items[items.indexOf(ActionOf("menu_set_save_as")) - 1];
  for (int place = 0; place < sets.Count(); ++place) {
    if (!sets.IsOwn(place)) continue;
    auto* item =
        new QAction(sets.TitleOf(place).replace(QLatin1Char('&'), QLatin1String("&&")), &mWindow);
    item->setCheckable(true);
    item->setChecked(place == sets.Shown());
    constexpr int kKeys = 9;
    if (place < kKeys)
      item->setShortcut(QKeyCombination(Qt::CTRL, static_cast<Qt::Key>(Qt::Key_1 + place)));
    item->setAutoRepeat(false);
    connect(item, &QAction::triggered, this, [this, place] {
      mScope.window.showColumnSet(place);
      ShowOwnColumnSets();
    });
    mColumnSetMenu.insertAction(line, item);
    mWindow.addAction(item);
    mOwnColumnSets.append(item);
  }
}

void MainMenus::BuildOpenWindows(QMenu& menu) {
  auto* list = menu.addSeparator();
  connect(&menu, &QMenu::aboutToShow, this, [this, &menu, list] {
    const auto actions = menu.actions();
    for (auto at = actions.indexOf(list) + 1; at < actions.size(); ++at) delete actions[at];
    auto open = mScope.processes.OpenWindows();
    ActionOf("menu_window_close_all")->setEnabled(!open.empty());
    std::ranges::sort(open, {}, &MonitorWindows::OpenWindow::title);
    for (auto& window : open) {
      auto* item = menu.addAction(window.title.replace(QLatin1Char('&'), QLatin1String("&&")));
      connect(item, &QAction::triggered, this, window.show);
    }
  });
}

void MainMenus::FollowToolbar() {
  auto& toolbar = *mController.toolbar();
  auto* show = ActionOf("menu_view_show_toolbar");
  show->setCheckable(true);
  show->setChecked(!toolbar.isHidden());
  connect(&toolbar, &MainToolbar::shownChanged, show, &QAction::setChecked);
  connect(&toolbar, &MainToolbar::chosen, this,
          [this](const Command& command) { command.run(mScope); });
}

QMenu* MainMenus::MakeToolbarMenu(QWidget* parent) {
  auto* menu = new QMenu(parent);
  auto& toolbar = *mController.toolbar();
  const auto add = [&](MainToolbar::DisplayMode mode, const char* id) {
    auto* item = menu->addAction(LocalizedString(id));
    item->setCheckable(true);
    item->setChecked(std::max(toolbar.displayMode(), MainToolbar::kIconAndLabel) == mode);
    connect(item, &QAction::triggered, &toolbar,
            [&toolbar, mode] { toolbar.SetDisplayMode(mode); });
  };
  add(MainToolbar::kIconAndLabel, "toolbar_mode_both");
  add(MainToolbar::kIconOnly, "toolbar_mode_icon");
  add(MainToolbar::kLabelOnly, "toolbar_mode_text");
  menu->addSeparator();
  menu->addAction(ActionOf("menu_view_show_toolbar"));
  menu->addAction(ActionOf("menu_view_customise_toolbar"));
  return menu;
}

void MainMenus::BuildSortMenu(QMenu& view) {
  mSortMenu.setTitle(LocalizedString("menu_view_sort_by"));
  view.insertMenu(ActionOf("menu_view_column_left"), &mSortMenu);
  connect(&mSortMenu, &QMenu::aboutToShow, this, [this] {
    mSortMenu.clear();
    for (int column = 0; column < mController.columnCount(); ++column) {
      const auto title =
          mController.headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
      auto* item =
          mSortMenu.addAction(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
      item->setCheckable(true);
      item->setChecked(mController.isSortColumn(column));
      connect(item, &QAction::triggered, &mController,
              [this, column] { mController.shouldSelectTableColumn(column); });
    }
  });
}

QString MainMenus::NameOfSelection() const {
  const auto pids = mController.selectedPids();
  if (pids.size() != 1)
    return LocalizedString("context_menu_several", static_cast<qint64>(pids.size()));
  const auto name = vqMainTableController::nameOf(pids.front());
  return LocalizedString("context_menu_one")
      .arg(mContextMenu.fontMetrics().elidedText(name, Qt::ElideMiddle, kWidestName),
           QString::number(pids.front()))
      .replace(QLatin1Char('&'), QLatin1String("&&"));
}

void MainMenus::BuildContextMenu() {
  // It also opens far from the table, over the animated view.
  auto* whom = mContextMenu.addAction(QString());
  auto font = whom->font();
  font.setBold(true);
  whom->setFont(font);
  whom->setEnabled(false);
  mContextMenu.addSeparator();
  connect(&mContextMenu, &QMenu::aboutToShow, this,
          [this, whom] { whom->setText(NameOfSelection()); });
  AppendCommands(mContextMenu, CommandMenu::kProcess);
  mContextMenu.addSeparator();
  for (const auto& command : Commands())
    if (command.isInContextMenu) mContextMenu.addAction(mActions.value(&command));
  WatchMenu(mContextMenu);
}

void MainMenus::BuildHeaderMenu() {
  mHideColumn = mHeaderMenu.addAction(QString());
  mHeaderMenu.addSeparator();
  mHeaderMenu.addMenu(&mColumnSetMenu);
  mHeaderMenu.addSeparator();
  mColumnMenus.AppendTo(mHeaderMenu);
  connect(mHideColumn, &QAction::triggered, this,
          [this] { mController.removeFromKeysWeTrackForUI(mHideColumn->data().toInt()); });
  for (auto* menu : std::initializer_list<QMenu*>{&mHeaderMenu, &mColumnMenus.BuiltInMenu(),
                                                  &mColumnMenus.PSAvailableMenu()})
    WatchMenu(*menu);
}

QMenu& MainMenus::HeaderMenu(int column) {
  const KeyId key = mController.keyOfColumn(column);
  const bool isColumn = key != kNoKey;
  auto title = isColumn ? ColumnTitle(KeyText(key).data()) : QString();
  mHideColumn->setVisible(isColumn);
  mHideColumn->setText(
      LocalizedString("column_hide").arg(title.replace(QLatin1Char('&'), QLatin1String("&&"))));
  mHideColumn->setData(static_cast<int>(key));
  // Pids stay for good.
  mHideColumn->setEnabled(key != kMetaPid);
  return mHeaderMenu;
}

void MainMenus::ValidateAll() {
  const auto facts = mController.selectionFacts();
  for (const auto& command : Commands()) {
    auto* action = mActions.value(&command);
    action->setEnabled(Controller::validateMenuItem(command, facts));
    if (command.isChecked != nullptr) action->setChecked(command.isChecked(mScope));
  }
  mController.toolbar()->Validate(facts);
  mColumnMenus.Validate();
}

}  // namespace lurkwell
