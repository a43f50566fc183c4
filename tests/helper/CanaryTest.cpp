// The privileged helper in a pid namespace of its own, among canaries: only who is named is
// touched.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

#include "channel/DaemonCommunication.h"
#include "consolidator/PidReport.h"
#include "helper/HelperProcess.h"
#include "process_control/ProcessActions.h"
#include "process_control/RealMachine.h"
#include "support/OpenChannel.h"
#include "support/PidNamespace.h"

namespace lurkwell::helper::testing {
namespace {

/// Another process under the pid of one that goes.
std::unique_ptr<Canary> NextHolder(std::unique_ptr<Canary> holder) {
  const pid_t pid = holder->Pid();
  holder.reset();
  // Starts are told apart by the clock tick.
  std::this_thread::sleep_for(std::chrono::milliseconds(25));
  WriteFile("/proc/sys/kernel/ns_last_pid", std::to_string(pid - 1));
  auto next = std::make_unique<Canary>(kStranger);
  if (next->Pid() != pid) throw std::runtime_error("another pid");
  return next;
}

TEST(CanaryTest, TheNextHolderOfAPidIsNotTakenForTheOneReported) {
  const auto complaint = RunInPidNamespace("/proc", "", []() -> std::string {
    HelperProcess helper(0);
    for (int round = 0; round < 20; ++round) {
      auto reported = std::make_unique<Canary>(kUser);
      const pid_t pid = reported->Pid();
      const std::string line = "pid_internal_thread_time " + std::to_string(pid) + "\n";
      const std::string kill =
          (round % 2 ? "kill_harsh " : "renice ") + std::to_string(pid) + (round % 2 ? "" : " 7");
      if (helper.Figures(line).empty()) return "at 3";
      const auto stranger = NextHolder(std::move(reported));
      if (helper.Act(kill) != "!Error another process has this pid\n") return "at 5";
      if (!stranger->Becomes("S")) return "at 6";
      if (getpriority(PRIO_PROCESS, static_cast<id_t>(pid)) != 0) return "at 7";
      // Asked anew, the figures are the stranger's, and so is the next
      // action.
      if (!helper.Figures(line).starts_with("pid_user_time ")) return "at 8";
      if (helper.Act(kill) != "ok") return "at 9";
    }
    return {};
  });
  EXPECT_EQ(complaint, "");
}

TEST(CanaryTest, AThreadsNumberThatHasPassedOnIsNoticedByARenice) {
  const auto complaint = RunInPidNamespace("/proc", "", []() -> std::string {
    std::array<int, 2> end{};
    if (pipe(end.data()) != 0) return "at 3";
    Child owner([&] {
      close(end[1]);
      std::thread([from = end[0]] {
        char nothing = 0;
        if (read(from, &nothing, 1) < 0) _exit(98);
      }).detach();
    });
    const std::string threads = "/proc/" + std::to_string(owner.Pid()) + "/task";
    pid_t thread = 0;
    for (const auto& entry : std::filesystem::directory_iterator(threads))
      thread = std::max(thread, std::stoi(entry.path().filename()));
    if (thread == owner.Pid()) return "at 4";
    HelperProcess helper(0);
    if (ptrace(PTRACE_SEIZE, helper.Pid(), nullptr, PTRACE_O_TRACESYSGOOD) != 0 ||
        ptrace(PTRACE_INTERRUPT, helper.Pid(), nullptr, nullptr) != 0 ||
        waitpid(helper.Pid(), nullptr, 0) != helper.Pid())
      return "at 5";
    if (!helper.Send("Lkw Action Request:\nrenice " + std::to_string(owner.Pid()) + " 7"))
      return "at 6";
    // It has read which threads there are, and now one of them is no more.
    if (!RunBehind(helper.Pid(), SYS_getdents64)) return "at 7";
    close(end[1]);
    while (std::filesystem::exists(threads + '/' + std::to_string(thread)))
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    // Its number is free a moment later.
    std::optional<Canary> stranger;
    for (int tries = 0; tries < 500 && (!stranger || stranger->Pid() != thread); ++tries) {
      stranger.reset();
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
      WriteFile("/proc/sys/kernel/ns_last_pid", std::to_string(thread - 1));
      stranger.emplace(kStranger);
    }
    if (stranger->Pid() != thread) return "at 8";
    ptrace(PTRACE_DETACH, helper.Pid(), nullptr, nullptr);
    if (helper.Receive() != "!Error another process has this pid\n") return "at 9";
    if (helper.Act("renice " + std::to_string(owner.Pid()) + " 8") != "ok") return "at 10";
    return getpriority(PRIO_PROCESS, static_cast<id_t>(owner.Pid())) == 8 ? "" : "at 11";
  });
  EXPECT_EQ(complaint, "");
}

/// Pipes on which something else happens in front of the request after so many more.
struct InterruptedPipes : LinuxNamedPipes {
  std::ptrdiff_t Write(int descriptor, std::string_view text, Milliseconds limit) override {
    if (interruption && requests-- == 0) std::exchange(interruption, {})();
    return LinuxNamedPipes::Write(descriptor, text, limit);
  }
  int requests = 0;
  std::function<void()> interruption;
};

/// The pid passes on before the application looks at the process, before the helper does, and
/// between that and the action.
TEST(CanaryTest, TheNextHolderOfAPidIsNotTakenForTheOneShown) {
  const auto complaint = RunInPidNamespace("/proc", "", []() -> std::string {
    RealMachineWith<InterruptedPipes> machine("/");
    OpenChannel(HelperPath());
    if (gFd_a2d < 0) return "at 3";
    const auto show = [&](const Canary& canary) {
      const auto identity = machine.processTable.CurrentIdentity(canary.Pid());
      return NoteStartStamp(canary.Pid(), identity->startStamp);
    };
    for (int round = 0; round < 6; ++round) {
      auto shown = std::make_unique<Canary>(kUser);
      const pid_t pid = shown->Pid();
      if (!show(*shown)) return "at 4";
      std::unique_ptr<Canary> stranger;
      const auto passOn = [&] { stranger = NextHolder(std::move(shown)); };
      machine.namedPipes.requests = round / 2 - 1;
      if (round < 2)
        passOn();
      else
        machine.namedPipes.interruption = passOn;
      const auto became = round % 2 ? KillProcessDeadPID(pid) : ReniceProcessPID(pid, 5);
      if (became != ActionResult::kGone) return "at 5";
      if (stranger == nullptr || !stranger->Becomes("S")) return "at 6";
      if (getpriority(PRIO_PROCESS, static_cast<id_t>(pid)) != 0) return "at 7";
    }
    // What comes behind that on the channel arrives.
    const Canary known(kStranger);
    if (!show(known)) return "at 8";
    if (KillProcessDeadPID(known.Pid()) != ActionResult::kDone) return "at 9";
    return known.Becomes("Z") ? "" : "at 10";
  });
  EXPECT_EQ(complaint, "");
}

TEST(CanaryTest, WhereProcHidesOthersTheUsersOwnProcessesKeepTheirFigures) {
  const auto complaint = RunInPidNamespace("/proc", "", []() -> std::string {
    if (mount("proc", "/proc", "proc", 0, "hidepid=2") != 0) return "at 3";
    Canary own(kUser), foreign(kStranger);
    if (!own.Becomes("S") || !foreign.Becomes("S")) return "at 6";
    HelperProcess helper(kUser);
    const auto ask = [&](const Canary& canary) {
      return helper.Figures("pid_internal_thread_time " + std::to_string(canary.Pid()) + "\n");
    };
    if (!ask(own).starts_with("pid_user_time ")) return "at 4";
    return ask(foreign) == "!Error no such process\n" ? "" : "at 5";
  });
  EXPECT_EQ(complaint, "");
}

}  // namespace
}  // namespace lurkwell::helper::testing
