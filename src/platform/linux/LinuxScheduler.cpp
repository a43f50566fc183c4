#include "platform/linux/LinuxScheduler.h"

#include <sched.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <filesystem>
#include <unordered_set>

namespace lurkwell {
namespace {

/// New threads inherit what their makers have, but for those that are made meanwhile.
constexpr int kRounds = 3;

/// 0, or the number of an error.
int ErrorOf(long result) {
  return result == 0 ? 0 : errno;
}

int Apply(std::int32_t thread, const SchedulingPolicy& change) {
  sched_param parameters{};
  parameters.sched_priority = change.priority;
  return ErrorOf(::sched_setscheduler(thread, change.policy, &parameters));
}

int Apply(std::int32_t thread, const IOPriority& change) {
  constexpr int kOneThread = 1;
  return ErrorOf(::syscall(SYS_ioprio_set, kOneThread, thread, change.Packed()));
}

int Apply(std::int32_t thread, const ProcessorSet& change) {
  return ErrorOf(
      ::syscall(SYS_sched_setaffinity, thread, change.size() * sizeof change[0], change.data()));
}

SchedulingAnswer AnswerOf(int error) {
  switch (error) {
    case 0:
    case ESRCH:  // a thread that has ended meanwhile
      return SchedulingAnswer::kDone;
    case EINVAL:
      return SchedulingAnswer::kImpossible;
    default:
      return SchedulingAnswer::kRefused;
  }
}

/// Applies the change to the threads that had none of it yet, which `done` knows.
SchedulingAnswer ChangeThreads(const std::filesystem::path& threads, const SchedulingChange& change,
                               std::unordered_set<std::int32_t>& done) {
  std::error_code error;
  for (std::filesystem::directory_iterator at(threads, error), end; !error && at != end;
       at.increment(error)) {
    const std::string name = at->path().filename();
    std::int32_t thread = 0;
    std::from_chars(name.data(), name.data() + name.size(), thread);
    if (thread <= 0 || !done.insert(thread).second) continue;
    const int failure =
        std::visit([thread](const auto& what) { return Apply(thread, what); }, change);
    const auto answer = AnswerOf(failure);
    if (answer != SchedulingAnswer::kDone) return answer;
  }
  return SchedulingAnswer::kDone;
}

}  // namespace

bool LinuxScheduler::IsThere(ProcessIdentity process) {
  const auto stamp = CurrentStartStamp(mFiles, process.pid);
  return stamp != 0 && (process.startStamp == 0 || stamp == process.startStamp);
}

std::optional<SchedulingState> LinuxScheduler::StateOf(ProcessIdentity process) {
  const auto assignment = ReadAssignment(process.pid);
  const int policy = process.pid > 0 ? ::sched_getscheduler(process.pid) : -1;
  sched_param parameters{};
  if (!assignment || policy < 0 || ::sched_getparam(process.pid, &parameters) != 0 ||
      !IsThere(process))
    return std::nullopt;
  // A thread whose descendants begin anew has a bit more.
  return SchedulingState{{policy & ~SCHED_RESET_ON_FORK, parameters.sched_priority},
                         IOPriority::OfPacked(assignment->ioPriority),
                         assignment->processors};
}

SchedulingAnswer LinuxScheduler::Change(ProcessIdentity process, const SchedulingChange& change) {
  if (process.pid < 2) return SchedulingAnswer::kRefused;
  const auto threads = std::filesystem::path(mRoot) / std::to_string(process.pid) / "task";
  std::unordered_set<std::int32_t> done;
  for (int round = 0; round < kRounds; ++round) {
    if (!IsThere(process)) return SchedulingAnswer::kGone;
    const auto before = done.size();
    const auto answer = ChangeThreads(threads, change, done);
    if (answer != SchedulingAnswer::kDone) return answer;
    if (done.size() == before) break;
  }
  return done.empty() ? SchedulingAnswer::kGone : SchedulingAnswer::kDone;
}

ProcessorSet LinuxScheduler::Processors() const {
  const auto own = ReadAssignment(::getpid());
  return own ? own->processors : ProcessorSet{1};
}

}  // namespace lurkwell
