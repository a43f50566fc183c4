#include "main_window/MainMenus.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QMenuBar>
#include <QUrl>
#include <algorithm>

#include "main_window/ColumnGroups.h"
#include "main_window/MainToolbar.h"
#include "main_window/vqMainTableController.h"
#include "platform/Bundle.h"
#include "platform/Machine.h"
#include "preferences/PreferenceBatch.h"
#include "resources/Resources.h"
#include "windows/OverlayKey.h"

namespace lurkwell {

using Controller = vqMainTableController;

namespace {

/// Points; a menu is to stay one.
constexpr int kWidestName = 260;

}  // namespace

MainMenus::MainMenus(QMainWindow& window, vqMainTableController& controller,
                     ApplicationCommands& commands)
    : mWindow(window), mController(controller), mCommands(commands) {
  MakeProcessActions();
  BuildMenuBar();
  BuildContextMenu();
  BuildHeaderMenu();
  connect(&controller, &Controller::contentsChanged, this, &MainMenus::ValidateAll);
  ValidateAll();
}

QAction* MainMenus::Make(const char* id, MenuCommand command, std::function<void()> handler,
                         const QKeySequence& shortcut) {
  auto* action = new QAction(LocalizedString(id), &mWindow);
  action->setObjectName(QLatin1String(id));
  action->setShortcut(shortcut);
  // A key that is held must not do the same, or something harsher, again and again.
  action->setAutoRepeat(false);
  connect(action, &QAction::triggered, this, std::move(handler));
  mWindow.addAction(action);
  mItems.append({action, command});
  return action;
}

void MainMenus::MakeProcessActions() {
  using Command = std::function<void(Controller&)>;
  const auto make = [this](const char* id, MenuCommand command, const Command& handler,
                           const QKeySequence& shortcut = {}) {
    return Make(
        id, command, [this, handler] { handler(mController); }, shortcut);
  };
  auto* separator = static_cast<QAction*>(nullptr);
  mProcessActions = {
      make("menu_process_quit_or_kill", MenuCommand::kKill, &Controller::processKillMenuItem,
           Qt::Key_Delete),
      separator,
      make("menu_process_halt", MenuCommand::kHalt, &Controller::processHaltMenuItem,
           Qt::CTRL | Qt::Key_H),
      make("menu_process_continue", MenuCommand::kContinue, &Controller::processContMenuItem,
           Qt::CTRL | Qt::SHIFT | Qt::Key_H),
      separator,
      make("menu_process_high_priority", MenuCommand::kHighPriority,
           &Controller::processHighPriorityMenuItem, Qt::CTRL | Qt::Key_Plus),
      make("menu_process_normal_priority", MenuCommand::kNormalPriority,
           &Controller::processNormalPriorityMenuItem, Qt::CTRL | Qt::Key_0),
      make("menu_process_low_priority", MenuCommand::kLowPriority,
           &Controller::processLowPriorityMenuItem, Qt::CTRL | Qt::Key_Minus),
      separator,
      make("menu_process_bring_to_front", MenuCommand::kBringToFront,
           &Controller::processBringToFrontMenuItem, Qt::CTRL | Qt::Key_B),
      make("menu_process_hide", MenuCommand::kHide, &Controller::processHideMenuItem,
           Qt::CTRL | Qt::Key_J),
      make("menu_process_reveal", MenuCommand::kReveal, &Controller::processRevealInFinderMenuItem,
           Qt::CTRL | Qt::Key_R),
  };
  mWindowActions = {
      make("menu_file_new_cpu_history", MenuCommand::kNewCPUHistoryWindow,
           &Controller::newCPUHistoryWindow, Qt::CTRL | Qt::Key_N),
      make("menu_file_new_logging", MenuCommand::kNewLoggingWindow, &Controller::newLoggingWindow,
           Qt::CTRL | Qt::Key_L),
  };
  // Keys of the filter's field are its own.
  for (auto* action : mProcessActions) {
    if (action == nullptr) continue;
    action->setShortcutContext(Qt::WidgetShortcut);
    mController.table()->addAction(action);
  }
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

void MainMenus::BuildMenuBar() {
  const auto other = MenuCommand::kOther;
  // A menu bar elsewhere on the desktop does not tell when its menus close.
  mWindow.menuBar()->setNativeMenuBar(false);
  auto* application = AddMenu("menu_application");
  application->addAction(
      Make("menu_application_about", other, [this] { mCommands.doAboutPanel(); }));
  application->addAction(Make(
      "menu_application_preferences", other, [this] { mCommands.doThePrefs(); },
      Qt::CTRL | Qt::Key_Comma));
  application->addSeparator();
  application->addAction(Make(
      "menu_application_quit", other, [this] { mCommands.doQuit(); },
      QKeySequence(QKeySequence::Quit).isEmpty() ? QKeySequence(Qt::CTRL | Qt::Key_Q)
                                                 : QKeySequence(QKeySequence::Quit)));
  auto* file = AddMenu("menu_file");
  file->addActions(mWindowActions);
  file->addSeparator();
  file->addAction(Make(
      "menu_file_close_window", other, [this] { Q_EMIT closeRequested(); }, Qt::CTRL | Qt::Key_W));
  auto* edit = AddMenu("menu_edit");
  edit->addAction(Make(
      "menu_edit_copy", MenuCommand::kKill,
      [this] { QApplication::clipboard()->setText(mController.selectionAsText()); },
      QKeySequence::Copy));
  edit->addAction(Make(
      "menu_edit_select_all", other, [this] { mController.table()->selectAll(); },
      QKeySequence::SelectAll));
  edit->addAction(Make(
      "menu_edit_filter", other, [this] { Q_EMIT filterRequested(); }, QKeySequence::Find));
  edit->addAction(Make(
      "menu_process_by_id", other, [this] { Q_EMIT pidRequested(); }, Qt::CTRL | Qt::Key_G));
  auto* view = AddMenu("menu_view");
  view->addAction(Make(
      "menu_view_update_now", other, [this] { mController.updateNow(); }, Qt::Key_F5));
  view->addAction(Make(
      "menu_view_overlay", other, [this] { mCommands.doToggleQuintessentialViewFullScreen(); },
      OverlayKey()));
  BuildToolbarItems(*view);
  BuildSortMenu(*view);
  auto* columns = AddMenu("menu_columns");
  mController.columnMenus().AppendTo(*columns);
  auto* process = AddMenu("menu_process");
  for (auto* action : mProcessActions)
    action != nullptr ? process->addAction(action) : void(process->addSeparator());
  auto* window = AddMenu("menu_window");
  window->addAction(Make("menu_window_show_main", other, [this] { mCommands.doShowMainWindow(); }));
  window->addAction(Make("menu_window_show_animated_view", other,
                         [this] { mCommands.doShowQuintessentialView(); }));
  BuildOpenWindows(*window);
  auto* help = AddMenu("menu_help");
  help->addAction(Make(
      "menu_help_help", other, [this] { doLurkwellHelp(); }, Qt::Key_F1));
}

void MainMenus::BuildOpenWindows(QMenu& menu) {
  menu.addSeparator();
  menu.addAction(Make("menu_window_remembered", MenuCommand::kOther, [this] {
    if (auto* windows = mController.monitorWindows()) windows->ShowRememberedWindows(&mWindow);
  }));
  auto* closeAll = Make("menu_window_close_all", MenuCommand::kOther, [this] {
    const PreferenceBatch batch;
    if (auto* windows = mController.monitorWindows())
      for (const auto& window : windows->OpenWindows()) window.close();
  });
  menu.addAction(closeAll);
  auto* list = menu.addSeparator();
  connect(&menu, &QMenu::aboutToShow, this, [this, &menu, closeAll, list] {
    const auto actions = menu.actions();
    for (auto at = actions.indexOf(list) + 1; at < actions.size(); ++at) delete actions[at];
    const auto* windows = mController.monitorWindows();
    auto open =
        windows != nullptr ? windows->OpenWindows() : std::vector<MonitorWindows::OpenWindow>{};
    closeAll->setEnabled(!open.empty());
    std::ranges::sort(open, {}, &MonitorWindows::OpenWindow::title);
    for (auto& window : open) {
      auto* item = menu.addAction(window.title.replace(QLatin1Char('&'), QLatin1String("&&")));
      connect(item, &QAction::triggered, this, window.show);
    }
  });
}

void MainMenus::BuildToolbarItems(QMenu& view) {
  auto& toolbar = *mController.toolbar();
  mShowToolbar = Make("menu_view_show_toolbar", MenuCommand::kOther,
                      [&toolbar] { toolbar.SetShown(toolbar.isHidden()); });
  mShowToolbar->setCheckable(true);
  mShowToolbar->setChecked(!toolbar.isHidden());
  connect(&toolbar, &MainToolbar::shownChanged, mShowToolbar, &QAction::setChecked);
  mCustomiseToolbar = Make("menu_view_customise_toolbar", MenuCommand::kOther,
                           [this] { Q_EMIT mController.customisingRequested(); });
  view.addSeparator();
  view.addAction(mShowToolbar);
  view.addAction(mCustomiseToolbar);
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
  menu->addAction(mShowToolbar);
  menu->addAction(mCustomiseToolbar);
  return menu;
}

void MainMenus::BuildSortMenu(QMenu& view) {
  view.addSeparator();
  mSortMenu.setTitle(LocalizedString("menu_view_sort_by"));
  view.addMenu(&mSortMenu);
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
  const auto add = [&](const char* id, int places, int points, Qt::Key key) {
    view.addAction(Make(
        id, MenuCommand::kOther, [=, this] { mController.changeSortColumn(places, points); },
        Qt::ALT | Qt::SHIFT | key));
  };
  add("menu_view_column_left", -1, 0, Qt::Key_Left);
  add("menu_view_column_right", 1, 0, Qt::Key_Right);
  add("menu_view_column_wider", 0, 20, Qt::Key_Up);
  add("menu_view_column_narrower", 0, -20, Qt::Key_Down);
}

QString MainMenus::NameOfSelection() const {
  const auto pids = mController.selectedPids();
  if (pids.size() != 1) return LocalizedString("context_menu_several").arg(pids.size());
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
  for (auto* action : mProcessActions)
    action != nullptr ? mContextMenu.addAction(action) : void(mContextMenu.addSeparator());
  mContextMenu.addSeparator();
  mContextMenu.addActions(mWindowActions);
  WatchMenu(mContextMenu);
}

void MainMenus::BuildHeaderMenu() {
  auto& columns = mController.columnMenus();
  mHideColumn = mHeaderMenu.addAction(QString());
  mHeaderMenu.addSeparator();
  columns.AppendTo(mHeaderMenu);
  connect(mHideColumn, &QAction::triggered, this,
          [this] { mController.columnMenus().Hide(mHideColumn->data().toInt()); });
  for (auto* menu : std::initializer_list<QMenu*>{&mHeaderMenu, &columns.BuiltInMenu(),
                                                  &columns.PSAvailableMenu()})
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
  for (const auto& item : mItems)
    item.action->setEnabled(mController.validateMenuItem(item.command, facts));
  mController.validateToolbarItems(facts);
  mController.columnMenus().Validate();
}

void MainMenus::doLurkwellHelp() {
  const auto page =
      TheMachine().bundle.Path() + "/Contents/Resources/Documentation/Documentation.html";
  const auto shown = QString::fromStdString(page);
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(shown))) Q_EMIT helpIsMissing(shown);
}

}  // namespace lurkwell
