#include "platform/simulated/SimulatedDesktop.h"

#include <algorithm>
#include <iterator>

namespace lurkwell {

SimulatedApplication& SimulatedProcessManager::Launch(ProcessSerialNumber psn,
                                                      std::optional<std::int32_t> pid,
                                                      std::string name, FourCharCode signature) {
  auto& application = mApplications.emplace_back();
  application.psn = psn;
  application.pid = pid;
  application.information = {std::move(name), {'A', 'P', 'P', 'L'}, signature, 0x40};
  return application;
}

void SimulatedProcessManager::Remove(ProcessSerialNumber psn) {
  mApplications.remove_if([&](const auto& application) { return application.psn == psn; });
}

SimulatedApplication* SimulatedProcessManager::Find(ProcessSerialNumber psn) {
  const auto found = std::ranges::find(mApplications, psn, &SimulatedApplication::psn);
  return found == mApplications.end() ? nullptr : &*found;
}

std::optional<ProcessSerialNumber> SimulatedProcessManager::GetNextProcess(
    ProcessSerialNumber previous) {
  auto at = mApplications.begin();
  if (!previous.IsNone()) {
    at = std::ranges::find(mApplications, previous, &SimulatedApplication::psn);
    if (at != mApplications.end()) ++at;
  }
  if (at == mApplications.end()) return std::nullopt;
  return at->psn;
}

std::optional<ApplicationInformation> SimulatedProcessManager::GetProcessInformation(
    ProcessSerialNumber psn) {
  const auto* application = Find(psn);
  if (application == nullptr || application->cannotBeDescribed) return std::nullopt;
  return application->information;
}

std::optional<std::int32_t> SimulatedProcessManager::GetProcessPID(ProcessSerialNumber psn) {
  const auto* application = Find(psn);
  return application == nullptr ? std::nullopt : application->pid;
}

std::optional<ProcessSerialNumber> SimulatedProcessManager::GetProcessForPID(std::int32_t pid) {
  const auto found =
      std::ranges::find(mApplications, std::optional(pid), &SimulatedApplication::pid);
  if (found == mApplications.end()) return std::nullopt;
  return found->psn;
}

bool SimulatedProcessManager::Act(const std::string& action, ProcessSerialNumber psn) {
  mLog.Add("ProcessManager." + action + " " + std::to_string(psn.high) + " " +
           std::to_string(psn.low));
  return Find(psn) != nullptr;
}

}  // namespace lurkwell
