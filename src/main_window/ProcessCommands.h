#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/ProcessIdentity.h"
#include "process_control/ActionPlan.h"
#include "windows/MonitorWindows.h"
#include "windows/ProcessWindows.h"

class QObject;
class QWidget;

namespace lurkwell {

class ActionQuestion;

/// The list of processes that commands work on. Main thread.
class ProcessSelection {
 public:
  virtual ~ProcessSelection() = default;
  /// Whether a row is selected, if only that of a process that has ended.
  virtual bool isAnyRowSelected() const = 0;
  /// In the order of the rows, without those whose processes have ended.
  virtual std::vector<std::int32_t> selectedPids() const = 0;
  /// Selects these and no others, as far as they have rows that can be shown, and scrolls to the
  /// first; gives how many. None: the selection stays.
  virtual std::size_t selectPids(const std::vector<std::int32_t>& pids) = 0;
  virtual QWidget* parentOfQuestions() const = 0;
  /// While something holds the order, rows stay where they are.
  virtual void holdOrder(const QObject* holder, bool hold) = 0;
  /// These are to be drawn again, and what can be done to them may be something else.
  virtual void processesHaveChanged(const std::vector<std::int32_t>& pids) = 0;
  /// Says in passing what became of a command; nothing for an empty text.
  virtual void report(const QString& text) = 0;
};

/// What commands depend on, asked once for all of them.
struct SelectionFacts {
  bool any = false;
  bool anyPIDs = false;
  bool anyPSNs = false;
  bool anyHalted = false;
  /// One that the kernel knows and that can be halted yet.
  bool anyGoing = false;
  /// Rows stand below others.
  bool isTree = false;
  /// The set of columns that is shown is one of the user's own.
  bool isOwnColumnSet = false;
};

/// What can be done to the selected processes. Questions are asked where they must be, and what
/// became of it is reported. Main thread only.
class ProcessCommands {
 public:
  /// The selection outlives this.
  explicit ProcessCommands(ProcessSelection& selection) : mSelection(selection) {}

  /// Opens the windows that follow processes; null, as at first: commands for these do nothing.
  void SetMonitorWindows(MonitorWindows* windows) { mMonitorWindows = windows; }
  MonitorWindows* GetMonitorWindows() const { return mMonitorWindows; }

  /// Opens the windows with details; null, as at first: commands for these do nothing.
  void SetProcessWindows(ProcessWindows* windows) { mProcessWindows = windows; }
  /// Of both kinds.
  std::vector<MonitorWindows::OpenWindow> OpenWindows() const;

  SelectionFacts Facts() const;

  /// The first of the selected processes; kInvalidPID when there is none.
  std::int32_t FirstSelected() const;

  void processKillMenuItem() { Act(ProcessCommand::kKill); }
  void processHaltMenuItem() { Act(ProcessCommand::kHalt); }
  void processContMenuItem() { Act(ProcessCommand::kContinue); }
  void processHighPriorityMenuItem() { Act(ProcessCommand::kHighPriority); }
  void processNormalPriorityMenuItem() { Act(ProcessCommand::kNormalPriority); }
  void processLowPriorityMenuItem() { Act(ProcessCommand::kLowPriority); }
  /// Also what these have started, and what that has.
  void KillWithChildren();
  void SendAnySignal();
  void ChangeScheduling();
  void processHideMenuItem();
  void processBringToFrontMenuItem();
  void processRevealInFinderMenuItem();
  /// Brings the applications to the front; where there are none, shows details.
  void doubleClickAction();
  void ShowDetails();
  /// Of any process, not only of applications.
  void ShowExecutable();
  /// For the name of the first selected process, by the address that the preferences have for it.
  void SearchWeb();
  void newCPUHistoryWindow();
  void newLoggingWindow();
  /// Selects the processes whose parents are selected instead of these.
  void SelectChildren();

 private:
  static bool anyPIDsInSelection(const std::vector<std::int32_t>& pids);
  static bool anyPSNsInSelection(const std::vector<std::int32_t>& pids);
  /// Of a kind of GetProcessAction.
  static bool anyActionListItemsInSelection(const std::vector<std::int32_t>& pids,
                                            std::int32_t kind);

  /// Carries out a command, once the user has agreed where needed.
  void Act(ProcessCommand command) { Act(command, mSelection.selectedPids()); }
  void Act(ProcessCommand command, const std::vector<std::int32_t>& pids);
  /// Carries it out and gives what became of it.
  QString Do(const ActionPlan& plan);
  /// Whether the user agrees to a question, during which rows keep their places.
  bool Confirm(ActionQuestion& question);
  void ForSelectedPSNs(bool (*action)(ProcessSerialNumber));
  /// Has a window opened for each selected process, as far as the user and the room agree.
  void Follow(void (MonitorWindows::*open)(std::int32_t, std::int32_t), std::int32_t interval);
  bool ConfirmFollowing(std::size_t windows);

  ProcessSelection& mSelection;
  MonitorWindows* mMonitorWindows = nullptr;
  ProcessWindows* mProcessWindows = nullptr;
};

}  // namespace lurkwell
