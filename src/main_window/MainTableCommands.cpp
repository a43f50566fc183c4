// What can be done to the selected processes, and when.
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "consolidator/PI_Consolidator.h"
#include "consolidator/WholeNames.h"
#include "main_window/ActionQuestion.h"
#include "main_window/ActionTexts.h"
#include "main_window/vqMainTableController.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"
#include "process_control/ProcessActions.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

/// More windows than that are not opened by an oversight.
constexpr std::size_t kManyWindows = 20;

ProcessSerialNumber SerialNumberOf(std::int32_t pid) {
  ProcessSerialNumber psn;
  PID2PSN(pid, &psn);
  return psn;
}

bool IsKernelPid(std::int32_t pid) {
  return pid >= 0;
}

bool IsApplication(std::int32_t pid) {
  return !SerialNumberOf(pid).IsNone();
}

}  // namespace

void vqMainTableController::act(ProcessCommand command) {
  const auto plan = PlanAction(command, selectedPids());
  if (plan.asks && !confirm(plan)) return;
  const auto reports = CarryOut(plan);
  for (const auto& report : reports)
    if (auto* row = fRows.Find(report.pid)) row->SetChanged(true);
  triggerReload();
  Q_EMIT reported(ReportText(command, reports));
}

bool vqMainTableController::confirm(const ActionPlan& plan) {
  ActionQuestion question(plan, window());
  // The rows stay in sight where they were when the question came up.
  holdOrder(&question, true);
  const bool agreed = question.exec() == QDialog::Accepted;
  holdOrder(&question, false);
  return agreed;
}

void vqMainTableController::processKillMenuItem() {
  act(ProcessCommand::kKill);
}

void vqMainTableController::processHighPriorityMenuItem() {
  act(ProcessCommand::kHighPriority);
}

void vqMainTableController::processNormalPriorityMenuItem() {
  act(ProcessCommand::kNormalPriority);
}

void vqMainTableController::processLowPriorityMenuItem() {
  act(ProcessCommand::kLowPriority);
}

void vqMainTableController::processHaltMenuItem() {
  act(ProcessCommand::kHalt);
}

void vqMainTableController::processContMenuItem() {
  act(ProcessCommand::kContinue);
}

template <typename Action>
void vqMainTableController::forSelectedPSNs(Action action) {
  std::vector<ActionReport> failed;
  for (const auto pid : selectedPids()) {
    const auto psn = SerialNumberOf(pid);
    if (!psn.IsNone() && !action(psn))
      failed.push_back({pid, WholeNameOf(pid), {ActionResult::kNobody}});
  }
  if (!failed.empty()) Q_EMIT reported(ReportText(ProcessCommand::kContinue, failed));
}

void vqMainTableController::processHideMenuItem() {
  forSelectedPSNs([](ProcessSerialNumber psn) { return ShowProcessPSN(psn, false); });
}

void vqMainTableController::processBringToFrontMenuItem() {
  forSelectedPSNs(
      [](ProcessSerialNumber psn) { return TheMachine().processManager.SetFrontProcess(psn); });
}

void vqMainTableController::processRevealInFinderMenuItem() {
  std::vector<ProcessSerialNumber> psns;
  for (const auto pid : selectedPids())
    if (const auto psn = SerialNumberOf(pid); !psn.IsNone()) psns.push_back(psn);
  if (RevealProcessesInFinder(psns) < psns.size())
    Q_EMIT reported(LocalizedString("main_window_nothing_to_reveal_with"));
}

void vqMainTableController::followSelectedPids(void (MonitorWindows::*open)(std::int32_t,
                                                                            std::int32_t),
                                               std::int32_t interval) {
  if (fMonitorWindows == nullptr) return;
  const auto asked = selectedPids().size();
  if (asked > kManyWindows && !confirmFollowing(asked)) return;
  auto pids = selectedPids();
  const auto wanted = pids.size();
  pids.resize(std::min(wanted, static_cast<std::size_t>(fMonitorWindows->CountRoom())));
  {
    const PreferenceBatch batch;
    for (const auto pid : pids) (fMonitorWindows->*open)(interval, pid);
  }
  if (pids.size() == wanted) return;
  QMessageBox box(window());
  box.setIcon(QMessageBox::Information);
  box.setTextFormat(Qt::PlainText);
  box.setText(LocalizedString("follow_limit_title").arg(pids.size()).arg(wanted));
  box.setInformativeText(LocalizedString("follow_limit_text"));
  box.exec();
}

bool vqMainTableController::confirmFollowing(std::size_t windows) {
  QMessageBox box(window());
  box.setIcon(QMessageBox::Question);
  box.setTextFormat(Qt::PlainText);
  box.setText(LocalizedString("follow_confirmation_title").arg(windows));
  box.setInformativeText(LocalizedString("follow_confirmation_text"));
  const QAbstractButton* open =
      box.addButton(LocalizedString("follow_confirmation_open"), QMessageBox::AcceptRole);
  box.setDefaultButton(box.addButton(QMessageBox::Cancel));
  // The selection stays what the question was about, but for what ends meanwhile.
  holdOrder(&box, true);
  box.exec();
  holdOrder(&box, false);
  return box.clickedButton() == open;
}

void vqMainTableController::newCPUHistoryWindow() {
  const auto interval = ReadInt("DEFAULT_CPU_HISTORY_WINDOW_INTERVAL");
  followSelectedPids(&MonitorWindows::CreateCPUHistoryWindow, interval);
}

void vqMainTableController::newLoggingWindow() {
  const auto interval = ReadInt("DEFAULT_LOGGING_WINDOW_INTERVAL");
  followSelectedPids(&MonitorWindows::CreateLoggingWindow, interval);
}

bool vqMainTableController::anyPIDsInSelection() const {
  return std::ranges::any_of(selectedPids(), IsKernelPid);
}

bool vqMainTableController::anyPSNsInSelection() const {
  return std::ranges::any_of(selectedPids(), IsApplication);
}

bool vqMainTableController::anyActionListItemsInSelection(std::int32_t kind) const {
  return std::ranges::any_of(
      selectedPids(), [=](std::int32_t pid) { return GetProcessAction(pid, kind, nullptr); });
}

vqMainTableController::SelectionFacts vqMainTableController::selectionFacts() const {
  const auto pids = selectedPids();
  const auto isHalted = [](std::int32_t pid) {
    return GetProcessAction(pid, kProcessActionHalt, nullptr);
  };
  const auto isGoing = [&](std::int32_t pid) { return IsKernelPid(pid) && !isHalted(pid); };
  return {hasSelection(), std::ranges::any_of(pids, IsKernelPid),
          std::ranges::any_of(pids, IsApplication), std::ranges::any_of(pids, isHalted),
          std::ranges::any_of(pids, isGoing)};
}

bool vqMainTableController::validateMenuItem(MenuCommand command,
                                             const SelectionFacts& facts) const {
  switch (command) {
    case MenuCommand::kNewCPUHistoryWindow:
    case MenuCommand::kNewLoggingWindow:
    case MenuCommand::kKill:
      return facts.any;
    case MenuCommand::kHide:
    case MenuCommand::kBringToFront:
    case MenuCommand::kReveal:
      return facts.anyPSNs;
    case MenuCommand::kHighPriority:
    case MenuCommand::kNormalPriority:
    case MenuCommand::kLowPriority:
      return facts.anyPIDs;
    case MenuCommand::kHalt:
      return facts.anyGoing;
    case MenuCommand::kContinue:
      return facts.anyHalted;
    case MenuCommand::kBuiltInColumn:
    case MenuCommand::kPSAvailableColumn:
      return fWindow != nullptr && fWindow->isActiveWindow();
    case MenuCommand::kOther:
      return true;
  }
  return true;
}

}  // namespace lurkwell
