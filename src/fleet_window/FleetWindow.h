#pragma once

#include <QMenu>
#include <QTimer>
#include <QUrl>
#include <vector>

#include "fleet/FleetSession.h"
#include "fleet_window/FleetHistoryPane.h"
#include "fleet_window/FleetModel.h"
#include "windows/CustomCells.h"
#include "windows/StripedTableView.h"
#include "windows/WindowFrame.h"

class QButtonGroup;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QSplitter;
class QToolButton;

namespace lurkwell {

/// The machines that a metrics server knows, and the programs, units, containers and users on them:
/// a table that the server sorts and filters, and the history of the selected row. Any number, one
/// for each address. Main thread only.
class FleetWindow final : public ControlledWindow {
  Q_OBJECT

 public:
  /// Shows the window for the address, which is opened when there is none yet. The address is kept
  /// among the last ones, and the credentials nowhere.
  static FleetWindow& Open(const QUrl& address, const FleetCredentials& credentials = {});
  /// Deletes those that are open; their places are kept.
  static void CloseAll();

  ~FleetWindow() override;

  FleetSession& Session() { return mSession; }
  StripedTableView& Table() { return *mTable; }
  FleetModel& Model() { return mModel; }
  QLineEdit& Filter() { return *mFilter; }
  /// What the window says of the table, and of what went wrong; empty when nothing did.
  QString StatusText() const;
  QString ErrorText() const;
  QString FilterText() const;

  /// Shows what a row stands for: a machine's programs, or a program's machines.
  void OpenRow(int row);
  void GoBack();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Between two questions; 0 for none but the user's.
  static constexpr int kSecondsToChoose[] = {10, 30, 60, 300, 0};
  /// The number of the button for all machines; those of the kinds follow.
  static constexpr int kMachinesButton = 0;

  explicit FleetWindow(const QUrl& address);

  QWidget* BuildTop();
  QWidget* BuildError();
  void BuildTable();
  void BuildMenu();
  void BuildKeys();

  /// Looks at something else, which can be come back from.
  void GoTo(const FleetView& view);
  void ShowKind(int number);
  /// Asks for the view with the filter that is typed; false, and why is said, when nobody can.
  bool Ask();
  void Look();
  void ShowColumns();
  void ShowWhatIsLookedAt();
  void ShowError();
  void ShowStatus();
  void SortBy(int column);
  void RowIsCurrent();
  void CopySelection() const;
  void OpenShell();
  void SignIn();
  void SetSeconds(int seconds);
  void Remember();

  FleetSession mSession;
  FleetModel mModel;
  FleetView mView;
  std::vector<FleetView> mBefore;
  QTimer mPatience;
  TextCell mTextCell;
  CPUCell mCpuCell;
  QMenu mMenu;
  QAction* mOpenAction = nullptr;
  QAction* mShellAction = nullptr;
  QButtonGroup* mKinds = nullptr;
  QToolButton* mBack = nullptr;
  QLabel* mScope = nullptr;
  QLineEdit* mFilter = nullptr;
  QLabel* mFilterWords = nullptr;
  QComboBox* mSeconds = nullptr;
  QFrame* mErrorFrame = nullptr;
  QLabel* mErrorWords = nullptr;
  QPushButton* mSignIn = nullptr;
  StripedTableView* mTable = nullptr;
  FleetHistoryPane* mHistory = nullptr;
  QLabel* mStatus = nullptr;
};

}  // namespace lurkwell
