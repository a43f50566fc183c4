#include "main_window/ProcessCommands.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QUrl>
#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <variant>

#include "consolidator/FamilyTree.h"
#include "consolidator/PI_Consolidator.h"
#include "consolidator/WholeNames.h"
#include "main_window/ActionTexts.h"
#include "main_window/SchedulingQuestion.h"
#include "main_window/SignalQuestion.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"
#include "platform/ProcessTable.h"
#include "platform/Screen.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"
#include "process_control/ProcessActions.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

/// More windows than that are not opened by an oversight.
constexpr std::size_t kManyWindows = 20;
constexpr std::size_t kManyFolders = 5;

/// %1 is the name of a program.
constexpr char kSearchAddress[] = "https://duckduckgo.com/?q=%1+linux+process";
constexpr std::size_t kLongestAddress = 1024;

ProcessSerialNumber SerialNumberOf(std::int32_t pid) {
  ProcessSerialNumber psn;
  PID2PSN(pid, &psn);
  return psn;
}

bool BringPSNToFront(ProcessSerialNumber psn) {
  return TheMachine().processManager.SetFrontProcess(psn);
}

struct PSNOutcomes {
  bool anyIsDone = false;
  std::vector<ActionReport> failed;
};

/// Does something to those of the processes that are applications.
PSNOutcomes ForPSNs(const std::vector<std::int32_t>& pids, bool (*action)(ProcessSerialNumber)) {
  const auto why = TheMachine().screen.Abilities().reachesOthers ? ActionResult::kNobody
                                                                 : ActionResult::kOutOfReach;
  PSNOutcomes outcomes;
  for (const auto pid : pids) {
    const auto psn = SerialNumberOf(pid);
    if (psn.IsNone()) continue;
    if (action(psn))
      outcomes.anyIsDone = true;
    else
      outcomes.failed.push_back({pid, WholeNameOf(pid), {why}});
  }
  return outcomes;
}

/// Who has started whom among all processes.
class Families {
 public:
  Families() {
    for (const auto pid : mPids) mPlaces.emplace(pid, static_cast<int>(mPlaces.size()));
    std::vector<int> parents;
    for (const auto pid : mPids) {
      const auto value = GetPIDPropertyTypedValue(pid, "pid_parent_pid");
      const auto* parent = std::get_if<std::int64_t>(&value);
      parents.push_back(parent != nullptr && *parent != pid
                            ? PlaceOf(static_cast<std::int32_t>(*parent))
                            : FamilyTree::kNobody);
    }
    mFamily = FamilyTree(std::move(parents));
  }

  std::vector<std::int32_t> ChildrenOf(std::int32_t pid) const {
    std::vector<std::int32_t> children;
    if (const int place = PlaceOf(pid); place != FamilyTree::kNobody)
      for (const int child : mFamily.ChildrenOf(place)) children.push_back(mPids.begin()[child]);
    return children;
  }

 private:
  int PlaceOf(std::int32_t pid) const {
    const auto found = mPlaces.find(pid);
    return found != mPlaces.end() ? found->second : FamilyTree::kNobody;
  }

  PidBlob mPids;
  std::unordered_map<std::int32_t, int> mPlaces;
  FamilyTree mFamily;
};

/// Parents first: one that starts its children anew is not there to do so.
std::vector<std::int32_t> WithDescendants(std::vector<std::int32_t> pids) {
  const Families families;
  std::unordered_set<std::int32_t> known(pids.begin(), pids.end());
  for (std::size_t at = 0; at < pids.size(); ++at)
    for (const auto child : families.ChildrenOf(pids[at]))
      if (known.insert(child).second) pids.push_back(child);
  return pids;
}

/// Says so where the processes are recorded ones.
bool IsRefused(ProcessSelection& selection) {
  if (!TheMachine().processTable.IsRecorded()) return false;
  selection.report(LocalizedString("replay_no_actions"));
  return true;
}

bool IsKernelPid(std::int32_t pid) {
  return pid >= 0;
}

}  // namespace

void ProcessCommands::Act(ProcessCommand command, const std::vector<std::int32_t>& pids) {
  if (IsRefused(mSelection)) return;
  const auto plan = PlanAction(command, pids);
  if (plan.asks) {
    ActionQuestion question(plan, mSelection.parentOfQuestions());
    if (!Confirm(question)) return;
  }
  mSelection.report(Do(plan));
}

QString ProcessCommands::Do(const ActionPlan& plan) {
  const auto reports = CarryOut(plan);
  std::vector<std::int32_t> pids;
  pids.reserve(reports.size());
  for (const auto& report : reports) pids.push_back(report.pid);
  mSelection.processesHaveChanged(pids);
  return ReportText(plan, reports);
}

bool ProcessCommands::Confirm(ActionQuestion& question) {
  // The rows stay in sight where they were when the question came up.
  mSelection.holdOrder(&question, true);
  const bool agreed = question.exec() == QDialog::Accepted;
  mSelection.holdOrder(&question, false);
  return agreed;
}

void ProcessCommands::KillWithChildren() {
  Act(ProcessCommand::kKill, WithDescendants(mSelection.selectedPids()));
}

void ProcessCommands::SendAnySignal() {
  if (IsRefused(mSelection)) return;
  auto plan = PlanAction(ProcessCommand::kSignal, mSelection.selectedPids());
  if (plan.targets.empty()) return mSelection.report(Do(plan));
  SignalQuestion question(plan, mSelection.parentOfQuestions());
  if (!Confirm(question)) return;
  plan.argument.number = question.Signal();
  mSelection.report(Do(plan));
}

void ProcessCommands::ChangeScheduling() {
  if (IsRefused(mSelection)) return;
  auto plan = PlanAction(ProcessCommand::kScheduling, mSelection.selectedPids());
  if (plan.targets.empty()) return mSelection.report(Do(plan));
  SchedulingQuestion question(plan, mSelection.parentOfQuestions());
  if (!Confirm(question)) return;
  QStringList reports;
  for (const auto& [command, argument] : question.Changes()) {
    plan.command = command;
    plan.argument = argument;
    reports.append(Do(plan));
    // Said once.
    plan.impossible.clear();
  }
  mSelection.report(reports.join(QLatin1Char(' ')));
}

void ProcessCommands::ForSelectedPSNs(bool (*action)(ProcessSerialNumber)) {
  const auto [anyIsDone, failed] = ForPSNs(mSelection.selectedPids(), action);
  if (!failed.empty()) mSelection.report(ReportText({ProcessCommand::kContinue}, failed));
}

void ProcessCommands::processHideMenuItem() {
  ForSelectedPSNs([](ProcessSerialNumber psn) { return ShowProcessPSN(psn, false); });
}

void ProcessCommands::processBringToFrontMenuItem() {
  ForSelectedPSNs(&BringPSNToFront);
}

void ProcessCommands::processRevealInFinderMenuItem() {
  bool isRevealed = true;
  for (const auto pid : mSelection.selectedPids())
    if (const auto psn = SerialNumberOf(pid); !psn.IsNone())
      isRevealed = RevealProcessInFinder(psn) && isRevealed;
  if (!isRevealed) mSelection.report(LocalizedString("main_window_nothing_to_reveal_with"));
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
  box.setText(LocalizedString("follow_limit_title", static_cast<qint64>(pids.size())).arg(wanted));
  box.setInformativeText(LocalizedString("follow_limit_text"));
  box.exec();
}

bool ProcessCommands::ConfirmFollowing(std::size_t windows) {
  QMessageBox box(mSelection.parentOfQuestions());
  box.setIcon(QMessageBox::Question);
  box.setTextFormat(Qt::PlainText);
  box.setText(LocalizedString("follow_confirmation_title", static_cast<qint64>(windows)));
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

void ProcessCommands::newCPUHistoryWindow() {
  const auto interval = ReadInt("DEFAULT_CPU_HISTORY_WINDOW_INTERVAL");
  Follow(&MonitorWindows::CreateCPUHistoryWindow, interval);
}

void ProcessCommands::newLoggingWindow() {
  const auto interval = ReadInt("DEFAULT_LOGGING_WINDOW_INTERVAL");
  Follow(&MonitorWindows::CreateLoggingWindow, interval);
}

void ProcessCommands::doubleClickAction() {
  const auto [anyIsInFront, failed] = ForPSNs(mSelection.selectedPids(), &BringPSNToFront);
  // What cannot be brought to the front can be looked into.
  if (!anyIsInFront) return ShowDetails();
  if (!failed.empty()) mSelection.report(ReportText({ProcessCommand::kContinue}, failed));
}

std::int32_t ProcessCommands::FirstSelected() const {
  const auto pids = mSelection.selectedPids();
  return pids.empty() ? kInvalidPID : pids.front();
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

void ProcessCommands::ShowExecutable() {
  std::set<std::string> files;
  for (const auto& process : TheMachine().processTable.Describe(mSelection.selectedPids()))
    if (!process.executable.empty()) files.insert(process.executable);
  if (files.empty()) return mSelection.report(LocalizedString("main_window_no_executable"));
  if (files.size() > kManyFolders)
    return mSelection.report(LocalizedString("main_window_many_executables").arg(kManyFolders));
  for (const auto& file : files) {
    // It may be told after the end of the window.
    const QPointer<QWidget> window = mSelection.parentOfQuestions();
    TheMachine().processManager.ShowFile(file, [this, window] {
      if (window) mSelection.report(LocalizedString("main_window_nothing_to_reveal_with"));
    });
  }
}

void ProcessCommands::SearchWeb() {
  const auto pids = mSelection.selectedPids();
  if (pids.empty()) return;
  char address[kLongestAddress] = "";
  ReadText("WEB_SEARCH_ADDRESS", address, sizeof address);
  auto text = *address != '\0' ? QString::fromUtf8(address) : QString::fromLatin1(kSearchAddress);
  const auto name = QString::fromStdString(WholeNameOf(pids.front()));
  text.replace(QLatin1String("%1"), QString::fromLatin1(QUrl::toPercentEncoding(name)));
  const QUrl url(text, QUrl::StrictMode);
  const auto refuse = [this, text, window = QPointer(mSelection.parentOfQuestions())] {
    if (window) mSelection.report(LocalizedString("main_window_no_search").arg(text));
  };
  const bool isOfTheWeb =
      url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
  if (!isOfTheWeb) return refuse();
  TheMachine().processManager.ShowAddress(url.toEncoded().toStdString(), refuse);
}

void ProcessCommands::SelectChildren() {
  const Families families;
  std::vector<std::int32_t> children;
  for (const auto pid : mSelection.selectedPids())
    std::ranges::copy(families.ChildrenOf(pid), std::back_inserter(children));
  if (children.empty()) return mSelection.report(LocalizedString("main_window_no_children"));
  const auto shown = mSelection.selectPids(children);
  if (shown < children.size())
    mSelection.report(LocalizedString("main_window_hidden_children",
                                      static_cast<qint64>(children.size() - shown)));
}

bool ProcessCommands::anyPIDsInSelection(const std::vector<std::int32_t>& pids) {
  return std::ranges::any_of(pids, IsKernelPid);
}

bool ProcessCommands::anyPSNsInSelection(const std::vector<std::int32_t>& pids) {
  return std::ranges::any_of(pids, [](std::int32_t pid) { return !SerialNumberOf(pid).IsNone(); });
}

bool ProcessCommands::anyActionListItemsInSelection(const std::vector<std::int32_t>& pids,
                                                    std::int32_t kind) {
  return std::ranges::any_of(
      pids, [=](std::int32_t pid) { return GetProcessAction(pid, kind, nullptr); });
}

SelectionFacts ProcessCommands::Facts() const {
  const auto pids = mSelection.selectedPids();
  const auto isGoing = [](std::int32_t pid) {
    return IsKernelPid(pid) && !GetProcessAction(pid, kProcessActionHalt, nullptr);
  };
  return {mSelection.isAnyRowSelected(), anyPIDsInSelection(pids), anyPSNsInSelection(pids),
          anyActionListItemsInSelection(pids, kProcessActionHalt),
          std::ranges::any_of(pids, isGoing)};
}

}  // namespace lurkwell
