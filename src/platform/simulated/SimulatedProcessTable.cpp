#include "platform/simulated/SimulatedProcessTable.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace lurkwell {

void SimulatedProcess::SetName(std::string_view name) {
  const std::size_t length = std::min(name.size(), sizeof entry.commandName - 1);
  std::memset(entry.commandName, 0, sizeof entry.commandName);
  std::memcpy(entry.commandName, name.data(), length);
}

void SimulatedProcess::UseCPU(std::int64_t milliseconds) {
  (*this)["pid_user_time"] += milliseconds * 1000;
}

std::int64_t SimulatedProcess::Tell(Figure figure) const {
  if (figure == FigureCalled("pid_suspend_count")) return entry.state == RunState::kStopped ? 1 : 0;
  return figures[static_cast<std::size_t>(figure)];
}

std::array<std::int64_t, kFigureCount> SimulatedProcess::StartFigures() {
  std::array<std::int64_t, kFigureCount> figures{};
  figures[static_cast<std::size_t>(FigureCalled("pid_policy"))] = 1;
  return figures;
}

SimulatedProcessTable::SimulatedProcessTable(Clock& clock, AccessLog& log)
    : mClock(clock), mLog(log) {
  Birth(0, "kernel_task", 0);
  Birth(1, "launchd", 0);
}

SimulatedProcess& SimulatedProcessTable::Birth(std::int32_t pid, std::string_view name,
                                               std::int32_t parent) {
  auto& process = mProcesses.emplace_front();
  process.entry.pid = pid;
  process.entry.parentPid = parent;
  process.entry.startStamp = mNextStamp++;
  process.entry.startTime = mClock.Now();
  process.entry.priority = 31;
  process.SetName(name);
  mByPid[pid] = mProcesses.begin();
  return process;
}

void SimulatedProcessTable::Death(std::int32_t pid) {
  const auto found = mByPid.find(pid);
  if (found == mByPid.end()) return;
  mProcesses.erase(found->second);
  mByPid.erase(found);
  for (auto& process : mProcesses)
    if (process.entry.parentPid == pid) process.entry.parentPid = 1;
}

SimulatedProcess* SimulatedProcessTable::Find(std::int32_t pid) {
  const auto found = mByPid.find(pid);
  return found == mByPid.end() ? nullptr : &*found->second;
}

void SimulatedProcessTable::Churn(std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const auto oldest = std::find_if(mProcesses.rbegin(), mProcesses.rend(),
                                     [](const auto& process) { return process.entry.pid > 1; });
    if (oldest == mProcesses.rend()) return;
    mByPid.erase(oldest->entry.pid);
    mProcesses.erase(std::next(oldest).base());
    while (mByPid.contains(mNextChurnPid))
      mNextChurnPid = mNextChurnPid >= MaximumPid() ? 100 : mNextChurnPid + 1;
    Birth(mNextChurnPid, "churn");
  }
}

std::optional<ProcessIdentity> SimulatedProcessTable::CurrentIdentity(std::int32_t pid) {
  const auto* process = Find(pid);
  if (process == nullptr) return std::nullopt;
  return ProcessIdentity{pid, process->entry.startStamp};
}

std::vector<ProcessDescription> SimulatedProcessTable::Describe(
    std::span<const std::int32_t> pids) {
  std::vector<ProcessDescription> descriptions;
  for (const auto pid : pids) {
    const auto* process = Find(pid);
    if (process == nullptr) continue;
    descriptions.push_back({{pid, process->entry.startStamp},
                            process->owner,
                            process->owner == "user",
                            process->isKernelThread,
                            process->entry.state == RunState::kStopped,
                            process->entry.nice,
                            process->commandLine,
                            process->executable});
  }
  return descriptions;
}

const ProcessFigures& SimulatedProcessTable::FiguresOf(const ProcessTableEntry& entry) {
  mFigures = {};
  const auto* process = mTellsFigures ? Find(entry.pid) : nullptr;
  if (process == nullptr) return mFigures;
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const auto figure = static_cast<Figure>(i);
    const auto source = kFigures[i].origin.source;
    if (source == kFromIO && process->owner != "user") {
      mFigures.SetMissing(figure, FigureState::kRefused);
    } else if (kFigures[i].kind == FigureKind::kText) {
      mFigures.SetText(figure, process->texts.Get(figure));
    } else if (source != 0) {
      mFigures.Set(figure, process->Tell(figure));
    }
  }
  return mFigures;
}

std::span<const ProcessTableEntry> SimulatedProcessTable::Read(const Wanted& wanted) {
  mLog.Add("ProcessTable.Read");
  mSnapshot.clear();
  if (mFailures > 0) {
    --mFailures;
    return mSnapshot;
  }
  for (const auto& process : mProcesses)
    if (process.entry.pid != 0) mSnapshot.push_back(process.entry);
  mSnapshot.push_back(mByPid.at(0)->entry);
  for (auto& entry : mSnapshot)
    entry.current = entry.read = entry.known = OpenSources() == 0 ? 0 : wanted(entry.pid);
  return mSnapshot;
}

}  // namespace lurkwell
