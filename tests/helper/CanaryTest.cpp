// The privileged helper in a pid namespace of its own, among canaries: only who is named is
// touched.
#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <memory>
#include <random>
#include <set>
#include <thread>
#include <utility>

#include "channel/DaemonCommunication.h"
#include "consolidator/PidReport.h"
#include "helper/HelperProcess.h"
#include "helper/ReferenceReader.h"
#include "process_control/ProcessActions.h"
#include "process_control/RealMachine.h"
#include "support/OpenChannel.h"

namespace lurkwell::helper::testing {
namespace {

/// Runs `body` as the first process of a pid namespace with a /proc of its own.
int InPidNamespace(const std::function<int()>& body) {
  const auto inNamespace = [&] {
    if (unshare(CLONE_NEWPID | CLONE_NEWNS) != 0) return 90;
    const auto asFirst = [&] {
      prctl(PR_SET_PDEATHSIG, SIGKILL);
      if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return 91;
      if (mount("proc", "/proc", "proc", 0, nullptr) != 0) return 92;
      return body();
    };
    return InChild(asFirst, 90);
  };
  return InChild(inNamespace, 90);
}

std::string HostileRequest(std::mt19937& random, const std::string& canary) {
  static const auto kVerbs =
      Pieces("kill_normal |kill_harsh |kill_halt |kill_cont |renice |kill |KILL_HARSH |", '|');
  static const auto kPids = Pieces("1|0|-1|-2|4294967298|+2| 2|02|2 ", '|');
  static const auto kTails = Pieces(" 5| -20| 21|\n| 2|\nkill_harsh 2|x", '|');
  const unsigned kind = random() % 8;
  std::string request = kind == 0 ? "Lkw Info Extraction:\n" : "Lkw Action Request:\n";
  const std::string& verb = kVerbs[random() % (kind >= 5 ? 8 : 5)];
  request += verb + (kind == 7 ? kPids[random() % 9] : canary);
  if (verb == "renice ") request += ' ' + std::to_string(static_cast<int>(random() % 44) - 22);
  if (kind == 5) request += kTails[random() % 7];
  if (kind == 6) request[random() % request.size()] = static_cast<char>(random());
  return request;
}

TEST(CanaryTest, FiveThousandHostileRequestsTouchOnlyWhomTheyName) {
  EXPECT_EQ(InPidNamespace([] {
              std::vector<std::unique_ptr<Canary>> canaries;
              std::set<long> spared;
              for (unsigned count = 0; count < 60; ++count) {
                canaries.push_back(std::make_unique<Canary>(count % 4 < 2 ? kUser : kStranger));
                if (count % 2 == 0) spared.insert(canaries.back()->Pid());
                if (!canaries.back()->Becomes("S")) return 3;
              }
              HelperProcess helper(0);
              std::mt19937 random(61001);
              int done = 0;
              for (int round = 0; round < 5000; ++round) {
                const std::string request =
                    HostileRequest(random, std::to_string(canaries[random() % 60]->Pid()));
                const auto [kind, effect] = ReadRequest(request, helper.Pid(), getpid());
                const bool acts = kind == Expectation::kEffect;
                // Half of them are named only in what is refused.
                if (acts && spared.contains(std::stol(effect.substr(effect.find(' '))))) continue;
                const std::string answer = helper.Ask(request);
                if (acts && answer == "ok")
                  ++done;
                else if (!answer.starts_with("!Error "))
                  return 4;
              }
              helper.Close();
              for (const auto& canary : canaries)
                if (spared.contains(canary->Pid()) &&
                    (canary->State() != 'S' ||
                     getpriority(PRIO_PROCESS, static_cast<id_t>(canary->Pid())) != 0))
                  return 5;
              return done > 500 ? 0 : 6;
            }),
            0);
}

/// Another process under the pid of one that goes.
std::unique_ptr<Canary> NextHolder(std::unique_ptr<Canary> holder) {
  const pid_t pid = holder->Pid();
  holder.reset();
  // Starts are told apart by the clock tick.
  std::this_thread::sleep_for(std::chrono::milliseconds(25));
  WriteAll("/proc/sys/kernel/ns_last_pid", std::to_string(pid - 1));
  auto next = std::make_unique<Canary>(kStranger);
  if (next->Pid() != pid) throw std::runtime_error("another pid");
  return next;
}

TEST(CanaryTest, TheNextHolderOfAPidIsNotTakenForTheOneReported) {
  EXPECT_EQ(InPidNamespace([] {
              HelperProcess helper(0);
              for (int round = 0; round < 20; ++round) {
                auto reported = std::make_unique<Canary>(kUser);
                const pid_t pid = reported->Pid();
                const std::string line = "pid_internal_thread_time " + std::to_string(pid) + "\n";
                const std::string kill = (round % 2 ? "kill_harsh " : "renice ") +
                                         std::to_string(pid) + (round % 2 ? "" : " 7");
                if (helper.Figures(line).empty()) return 3;
                const auto stranger = NextHolder(std::move(reported));
                if (helper.Act(kill) != "!Error another process has this pid\n") return 5;
                if (stranger->EndedBy() != 0) return 6;
                if (getpriority(PRIO_PROCESS, static_cast<id_t>(pid)) != 0) return 7;
                // Asked anew, the figures are the stranger's, and so is the next action.
                if (!helper.Figures(line).starts_with("pid_user_time ")) return 8;
                if (helper.Act(kill) != "ok") return 9;
              }
              return 0;
            }),
            0);
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
  EXPECT_EQ(InPidNamespace([] {
              RealMachineWith<InterruptedPipes> machine("/");
              OpenChannel(HelperPath());
              if (gFd_a2d < 0) return 3;
              const auto show = [&](const Canary& canary) {
                const auto identity = machine.processTable.CurrentIdentity(canary.Pid());
                return NoteStartStamp(canary.Pid(), identity->startStamp);
              };
              for (int round = 0; round < 6; ++round) {
                auto shown = std::make_unique<Canary>(kUser);
                const pid_t pid = shown->Pid();
                if (!show(*shown)) return 4;
                std::unique_ptr<Canary> stranger;
                const auto passOn = [&] { stranger = NextHolder(std::move(shown)); };
                machine.namedPipes.requests = round / 2 - 1;
                if (round < 2)
                  passOn();
                else
                  machine.namedPipes.interruption = passOn;
                const auto became = round % 2 ? KillProcessDeadPID(pid) : ReniceProcessPID(pid, 5);
                if (became != ActionResult::kGone) return 5;
                if (stranger == nullptr || stranger->EndedBy() != 0) return 6;
                if (getpriority(PRIO_PROCESS, static_cast<id_t>(pid)) != 0) return 7;
              }
              // What comes behind that on the channel arrives.
              const Canary known(kStranger);
              if (!show(known)) return 8;
              if (KillProcessDeadPID(known.Pid()) != ActionResult::kDone) return 9;
              return known.Becomes("Z") ? 0 : 10;
            }),
            0);
}

TEST(CanaryTest, WhereProcHidesOthersTheUsersOwnProcessesKeepTheirFigures) {
  EXPECT_EQ(
      InPidNamespace([] {
        if (mount("proc", "/proc", "proc", 0, "hidepid=2") != 0) return 3;
        Canary own(kUser), foreign(kStranger);
        if (!own.Becomes("S") || !foreign.Becomes("S")) return 6;
        HelperProcess helper(kUser);
        const auto ask = [&](const Canary& canary) {
          return helper.Figures("pid_internal_thread_time " + std::to_string(canary.Pid()) + "\n");
        };
        if (!ask(own).starts_with("pid_user_time ")) return 4;
        return ask(foreign) == "!Error no such process\n" ? 0 : 5;
      }),
      0);
}

}  // namespace
}  // namespace lurkwell::helper::testing
