#include "main_window/ProcessCommands.h"

#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <variant>

#include "consolidator/PI_Consolidator.h"
#include "consolidator/WholeNames.h"
#include "main_window/ActionTexts.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"
#include "process_control/ProcessActions.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

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

void ProcessCommands::Act(ProcessCommand command) {
  const auto plan = PlanAction(command, mSelection.selectedPids());
  if (plan.asks && !Confirm(plan)) return;
  const auto reports = CarryOut(plan);
  std::vector<std::int32_t> pids;
  pids.reserve(reports.size());
  for (const auto& report : reports) pids.push_back(report.pid);
  mSelection.processesHaveChanged(pids);
  mSelection.report(ReportText(command, reports));
}

bool ProcessCommands::Confirm(const ActionPlan& plan) {
  ActionQuestion question(plan, mSelection.parentOfQuestions());
  // The rows stay in sight where they were when the question came up.
  mSelection.holdOrder(&question, true);
  const bool agreed = question.exec() == QDialog::Accepted;
  mSelection.holdOrder(&question, false);
  return agreed;
}

template <typename Action>
void ProcessCommands::ForSelectedPSNs(Action action) {
  std::vector<ActionReport> failed;
  for (const auto pid : mSelection.selectedPids()) {
    const auto psn = SerialNumberOf(pid);
    if (!psn.IsNone() && !action(psn))
      failed.push_back({pid, WholeNameOf(pid), {ActionResult::kNobody}});
  }
  if (!failed.empty()) mSelection.report(ReportText(ProcessCommand::kContinue, failed));
}

void ProcessCommands::Hide() {
  ForSelectedPSNs([](ProcessSerialNumber psn) { return ShowProcessPSN(psn, false); });
}

void ProcessCommands::BringToFront() {
  ForSelectedPSNs(
      [](ProcessSerialNumber psn) { return TheMachine().processManager.SetFrontProcess(psn); });
}

void ProcessCommands::Reveal() {
  std::vector<ProcessSerialNumber> psns;
  for (const auto pid : mSelection.selectedPids())
    if (const auto psn = SerialNumberOf(pid); !psn.IsNone()) psns.push_back(psn);
  if (RevealProcessesInFinder(psns) < psns.size())
    mSelection.report(LocalizedString("main_window_nothing_to_reveal_with"));
}

void ProcessCommands::Follow(void (MonitorWindows::*open)(std::int32_t, std::int32_t),
                             std::int32_t interval) {
  if (mMonitorWindows == nullptr) return;
  const auto asked = mSelection.selectedPids().size();
  if (asked > kManyWindows && !ConfirmFollowing(asked)) return;
  auto pids = mSelection.selectedPids();
  const auto wanted = pids.size();
  pids.resize(std::min(wanted, static_cast<std::size_t>(mMonitorWindows->CountRoom())));
  {
    const PreferenceBatch batch;
    for (const auto pid : pids) (mMonitorWindows->*open)(interval, pid);
  }
  if (pids.size() == wanted) return;
  QMessageBox box(mSelection.parentOfQuestions());
  box.setIcon(QMessageBox::Information);
  box.setTextFormat(Qt::PlainText);
  box.setText(LocalizedString("follow_limit_title").arg(pids.size()).arg(wanted));
  box.setInformativeText(LocalizedString("follow_limit_text"));
  box.exec();
}

bool ProcessCommands::ConfirmFollowing(std::size_t windows) {
  QMessageBox box(mSelection.parentOfQuestions());
  box.setIcon(QMessageBox::Question);
  box.setTextFormat(Qt::PlainText);
  box.setText(LocalizedString("follow_confirmation_title").arg(windows));
  box.setInformativeText(LocalizedString("follow_confirmation_text"));
  const QAbstractButton* open =
      box.addButton(LocalizedString("follow_confirmation_open"), QMessageBox::AcceptRole);
  box.setDefaultButton(box.addButton(QMessageBox::Cancel));
  // The selection stays what the question was about, but for what ends meanwhile.
  mSelection.holdOrder(&box, true);
  box.exec();
  mSelection.holdOrder(&box, false);
  return box.clickedButton() == open;
}

void ProcessCommands::NewCPUHistoryWindow() {
  const auto interval = ReadInt("DEFAULT_CPU_HISTORY_WINDOW_INTERVAL");
  Follow(&MonitorWindows::CreateCPUHistoryWindow, interval);
}

void ProcessCommands::NewLoggingWindow() {
  const auto interval = ReadInt("DEFAULT_LOGGING_WINDOW_INTERVAL");
  Follow(&MonitorWindows::CreateLoggingWindow, interval);
}

void ProcessCommands::Open() {
  if (AnyPSNs()) return BringToFront();
  ShowDetails();
}

void ProcessCommands::ShowDetails() {
  if (mProcessWindows == nullptr) return;
  const auto asked = mSelection.selectedPids().size();
  if (asked > kManyWindows && !ConfirmFollowing(asked)) return;
  for (const auto pid : mSelection.selectedPids())
    if (!mProcessWindows->ShowDetails(pid))
      mSelection.report(LocalizedString("main_window_no_details").arg(PlainText(WholeNameOf(pid))));
}

std::vector<MonitorWindows::OpenWindow> ProcessCommands::OpenWindows() const {
  std::vector<MonitorWindows::OpenWindow> open;
  if (mMonitorWindows != nullptr) open = mMonitorWindows->OpenWindows();
  if (mProcessWindows != nullptr)
    std::ranges::move(mProcessWindows->OpenWindows(), std::back_inserter(open));
  return open;
}

void ProcessCommands::SelectChildren() {
  const auto selected = mSelection.selectedPids();
  const std::unordered_set<std::int32_t> parents(selected.begin(), selected.end());
  std::vector<std::int32_t> children;
  for (const auto pid : PidBlob()) {
    const auto value = GetPIDPropertyTypedValue(pid, "pid_parent_pid");
    const auto* parent = std::get_if<std::int64_t>(&value);
    if (parent != nullptr && parents.contains(static_cast<std::int32_t>(*parent)))
      children.push_back(pid);
  }
  if (children.empty()) return mSelection.report(LocalizedString("main_window_no_children"));
  const auto shown = mSelection.selectPids(children);
  if (shown < children.size())
    mSelection.report(LocalizedString("main_window_hidden_children").arg(children.size() - shown));
}

bool ProcessCommands::AnyPIDs() const {
  return std::ranges::any_of(mSelection.selectedPids(), IsKernelPid);
}

bool ProcessCommands::AnyPSNs() const {
  return std::ranges::any_of(mSelection.selectedPids(), IsApplication);
}

bool ProcessCommands::AnyActionListItems(std::int32_t kind) const {
  return std::ranges::any_of(mSelection.selectedPids(), [=](std::int32_t pid) {
    return GetProcessAction(pid, kind, nullptr);
  });
}

SelectionFacts ProcessCommands::Facts() const {
  const auto pids = mSelection.selectedPids();
  const auto isHalted = [](std::int32_t pid) {
    return GetProcessAction(pid, kProcessActionHalt, nullptr);
  };
  const auto isGoing = [&](std::int32_t pid) { return IsKernelPid(pid) && !isHalted(pid); };
  return {mSelection.isAnyRowSelected(), std::ranges::any_of(pids, IsKernelPid),
          std::ranges::any_of(pids, IsApplication), std::ranges::any_of(pids, isHalted),
          std::ranges::any_of(pids, isGoing)};
}

}  // namespace lurkwell
