// What can be done to the selected processes, and when.
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "consolidator/PI_Consolidator.h"
#include "main_window/vqMainTableController.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/PreferencesRetrieval.h"
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

template <typename Action>
void vqMainTableController::forSelectedPids(Action action) {
  for (const auto pid : selectedPids()) {
    action(pid);
    // Its badge may be another one.
    if (auto* row = fRows.Find(pid)) row->SetChanged(true);
  }
}

template <typename Action>
void vqMainTableController::forSelectedPSNs(Action action) {
  for (const auto pid : selectedPids())
    if (const auto psn = SerialNumberOf(pid); !psn.IsNone()) action(psn);
}

void vqMainTableController::processKillMenuItem() {
  // A guest may have ended, and its number gone, before the table is due again.
  forSelectedPids([](std::int32_t pid) {
    if (IsKernelPid(pid) || IsApplication(pid)) KillProcess(pid);
  });
}

void vqMainTableController::processHighPriorityMenuItem() {
  forSelectedPids(SetHighPriority);
  triggerReload();
}

void vqMainTableController::processNormalPriorityMenuItem() {
  forSelectedPids(SetNormalPriority);
  triggerReload();
}

void vqMainTableController::processLowPriorityMenuItem() {
  forSelectedPids(SetLowPriority);
  triggerReload();
}

void vqMainTableController::processHaltMenuItem() {
  forSelectedPids(HaltProcess);
  triggerReload();
}

void vqMainTableController::processContMenuItem() {
  forSelectedPids(ContinueProcess);
  triggerReload();
}

void vqMainTableController::processHideMenuItem() {
  forSelectedPSNs([](ProcessSerialNumber psn) { ShowProcessPSN(psn, false); });
}

void vqMainTableController::processBringToFrontMenuItem() {
  forSelectedPSNs(
      [](ProcessSerialNumber psn) { TheMachine().processManager.SetFrontProcess(psn); });
}

void vqMainTableController::processRevealInFinderMenuItem() {
  forSelectedPSNs([](ProcessSerialNumber psn) { RevealProcessInFinder(psn); });
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
  const auto interval = GetPrefInt("DEFAULT_CPU_HISTORY_WINDOW_INTERVAL", nullptr, true, 250);
  followSelectedPids(&MonitorWindows::CreateCPUHistoryWindow, interval);
}

void vqMainTableController::newLoggingWindow() {
  const auto interval = GetPrefInt("DEFAULT_LOGGING_WINDOW_INTERVAL", nullptr, true, 1000);
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
  return {hasSelection(), std::ranges::any_of(pids, IsKernelPid),
          std::ranges::any_of(pids, IsApplication), std::ranges::any_of(pids, isHalted)};
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
      return facts.anyPIDs && !facts.anyHalted;
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
