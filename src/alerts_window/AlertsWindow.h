#pragma once

#include <QLabel>
#include <QPushButton>
#include <QString>
#include <QTableWidget>
#include <cstdint>
#include <functional>

#include "alerts/AlertCentre.h"
#include "windows/WindowFrame.h"

class QCheckBox;

namespace lurkwell {

/// What the window for alerts asks of others.
struct AlertsWindowCommands {
  /// Shows a process; false when it cannot be found in the table.
  std::function<bool(std::int32_t pid)> showProcess;
  /// Why notifications cannot be shown; empty when they can.
  std::function<QString()> notificationProblem;
};

/// The rules of alerts, what each says now, and what has happened. One at most. Main thread only.
class AlertsWindow final : public ControlledWindow, public AlertListener {
  Q_OBJECT

 public:
  /// Opens the window where it was, or brings the open one to the front. The centre outlives it.
  static AlertsWindow& Open(AlertCentre& centre, AlertsWindowCommands commands);
  /// Null while it is closed.
  static AlertsWindow* IfOpen();
  /// Whether it was open when the program ended.
  static bool WasOpen();

  ~AlertsWindow() override;

  /// Asks for a new rule, to begin with this one.
  void AskForRule(const QString& first);
  /// Shows the process of an alert, or says that it has ended.
  void ShowProcessOf(const AlertOccurrence& occurrence);
  /// Writes the place into the preferences, and that the window is open.
  void Remember();

  // Thousands may begin in a turn: they are shown when it is over.
  void AlertHasBegun(const AlertOccurrence&) override { mHasNews = true; }
  void AlertHasEnded(const AlertOccurrence&) override { mHasNews = true; }
  void AlertsHaveTurned() override;
  void AlertRulesHaveChanged() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  AlertsWindow(AlertCentre& centre, AlertsWindowCommands commands);

  void BuildRules();
  void BuildOccurrences();
  QWidget* BuildRulesPart();
  QWidget* BuildOccurrencesPart();

  void ShowRules();
  void ShowRule(int row);
  void ShowNews();
  void ShowOccurrences();
  void ShowOccurrence(int row);
  void ShowNotes();
  void ShowWhatCanBeDone();

  void AddRule() { AskForRule({}); }
  void ChangeRule();
  void RemoveRule();
  void TakeSwitch(QTableWidgetItem* item);
  void ShowChosenProcess();
  void ShowLog();
  void Say(const QString& text);

  AlertCentre& mCentre;
  AlertsWindowCommands mCommands;
  QTableWidget* mRules = nullptr;
  QTableWidget* mOccurrences = nullptr;
  QPushButton* mAdd = nullptr;
  QPushButton* mChange = nullptr;
  QPushButton* mRemove = nullptr;
  QPushButton* mShowProcess = nullptr;
  QPushButton* mShowLog = nullptr;
  QCheckBox* mNotifies = nullptr;
  QLabel* mNone = nullptr;
  QLabel* mNotes = nullptr;
  /// What became of the latest command.
  QString mSaid;
  bool mIsShowing = false;
  /// Alerts have begun or ended that are not shown yet.
  bool mHasNews = false;
};

}  // namespace lurkwell
