#pragma once

#include <QDialog>
#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

#include "channel/DaemonCommunication.h"
#include "main_window/FilterBar.h"
#include "main_window/HintBar.h"
#include "main_window/MainMenus.h"
#include "main_window/vqMainTableController.h"
#include "platform/Alerts.h"
#include "platform/ProcessIdentity.h"
#include "windows/StripedTableView.h"

class QToolButton;

namespace lurkwell {

class LinkLabel;
class UpdatedLabel;

/// The window with the process table: menus, the filter's field, the table, and a line that counts
/// rows and tells how the helper is. Remembers its size and place. Main thread only.
class MainWindow : public QMainWindow, private WindowCommands {
  Q_OBJECT

 public:
  /// The commands outlive the window.
  explicit MainWindow(ApplicationCommands& commands);
  ~MainWindow() override;

  vqMainTableController& controller() { return *mController; }
  StripedTableView& table() { return *mTable; }
  MainMenus& menus() { return *mMenus; }
  /// Tells a newcomer what is easily missed, one thing at each start.
  void ShowHint() { mHintBar->begin(); }
  QLineEdit& filterField() { return mFilterBar->field(); }

  /// Writes the window's size and place into the preferences.
  void SaveFrame();
  /// The remembered size, or the first one, which the screen may be too small for.
  QSize WantedSize() const { return mWantedSize; }

  /// Selects a process that was chosen in another window, while the list of processes is there, and
  /// opens its context menu if `wantsMenu`; `place` is one of the whole desktop. Nothing happens to
  /// a process without a row.
  void ChooseProcess(std::int32_t pid, const QPoint& place, bool wantsMenu);

  /// Selects the process that an address is about, see ProcessAddress.h, or says why it cannot; at
  /// the start, once the processes are known. Nothing else is done to it.
  void ShowAddress(const QString& address);

  /// What can be done to a process that another window shows; `report` takes what became of it. The
  /// menu is filled again at each opening.
  void FillProcessMenu(QMenu& menu, ProcessIdentity process,
                       const std::function<void(const QString&)>& report);

  /// For a right click beside the table: what can be done to the toolbar.
  QMenu* createPopupMenu() override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void closeWindow() override { close(); }
  void copySelection() override;
  void copyAsCsv() override;
  void copyAsJson() override;
  void selectAll() override;
  void showFilter() override;
  void findByPid() override;
  void updateNow() override;
  void toggleToolbar() override;
  void customiseToolbar() override;
  void changeSortColumn(int places, int points) override;
  void fitSortColumn() override { mController->fitSortColumn(); }
  void setShape(TableShape shape) override { mController->setShape(shape); }
  TableShape shape() const override { return mController->shape(); }
  void setScope(TableScope scope) override { mController->setScope(scope); }
  TableScope scope() const override { return mController->scope(); }
  void showColumnSet(int place) override { mController->showColumnSet(place); }
  int shownColumnSet() const override { return mController->columnSets().Shown(); }
  void saveColumnSetAs() override;
  void renameColumnSet() override;
  void deleteColumnSet() override;
  void restoreColumnSet() override;
  void foldAll(bool folded) override { mController->foldAll(folded); }
  void setPaused(bool paused) override { mController->setPaused(paused); }
  bool isPaused() const override { return mController->isPaused(); }
  void setFollowsSelection(bool follows) override { mController->setFollowsSelection(follows); }
  bool followsSelection() const override { return mController->followsSelection(); }
  void showRememberedWindows() override;
  void closeFollowingWindows() override;
  void doThePreferences() override { mCommands.doThePrefs(); }
  void showHelp() override;

  void BuildContents();
  void BuildSwitchers();
  /// Empty when the user has given none.
  QString AskForColumnSetTitle(const char* title, const QString& first, int place);
  void ShowArrangement();
  void RestoreFrame();
  /// Whatever hides the process goes; says so when there is none.
  void ShowPid(std::int32_t pid);
  void ShowAwaitedPid();
  /// From the beginning without one.
  void ShowHelpSection(const QString& section);
  /// Shows a text in the status line for a while.
  void Report(const QString& text);
  void LookAtHelper();
  /// The counts come first: beside them the remark about the helper may be its link alone.
  void FitHelperRemark();
  void LookAtRecording();
  void LookWhetherSeen();
  void AskAboutHelper();
  void UpdateStatus();
  QString WhatIsShown() const;
  QString HowItIsHeld() const;
  QString WhyNothingIsShown() const;

  ApplicationCommands& mCommands;
  std::unique_ptr<vqMainTableController> mController;
  StripedTableView* mTable = nullptr;
  HintBar* mHintBar = nullptr;
  FilterBar* mFilterBar = nullptr;
  /// A button of the status line that opens one of the menus, and says what is chosen there.
  struct Switcher {
    QToolButton* button;
    const char* name;
    QMenu* menu;
  };
  std::vector<Switcher> mSwitchers;
  /// Asked for before the processes were known; kInvalidPID for none.
  std::int32_t mAwaitedPid = kInvalidPID;
  UpdatedLabel* mCounts = nullptr;
  LinkLabel* mHelper = nullptr;
  /// What it says where there is room.
  QString mHelperRemark;
  UpdatedLabel* mRecording = nullptr;
  DaemonRights mShownRights = DaemonRights::kStarting;
  /// Why there are no more rights, while that is shown.
  std::unique_ptr<Alert> mAboutHelper;
  /// As the window manager places it and Qt sizes it, while it does not fill the screen.
  QSize mWantedSize;
  QRect mNormalFrame{0, 0, 860, 560};
  std::unique_ptr<MainMenus> mMenus;
  /// Deletes itself when it is closed.
  QPointer<QDialog> mCustomising;
};

}  // namespace lurkwell
