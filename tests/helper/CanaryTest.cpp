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
#include <cstdio>
#include <memory>
#include <random>
#include <thread>

#include "helper/HelperProcess.h"
#include "helper/ReferenceReader.h"

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

/// What a canary looks like from outside: its run state, nice value and how it ended.
struct Look {
  bool stopped = false;
  int nice = 0;
  int endedBy = 0;
  /// A SIGTERM waits until the process goes on.
  bool doomed = false;
  bool operator==(const Look&) const = default;
};

class Flock {
 public:
  Flock() {
    for (int count = 0; count < 60; ++count) {
      mCanaries.push_back(std::make_unique<Canary>(count % 2 == 0 ? kUser : kStranger));
      mExpected.emplace_back();
      mCanaries.back()->Becomes("S");
    }
  }

  long PidOf(std::size_t index) const { return mCanaries[index % mCanaries.size()]->Pid(); }

  void Expect(const std::string& effect) {
    std::istringstream stream(effect);
    std::string kind;
    long pid = 0;
    int value = 0;
    stream >> kind >> pid >> value;
    for (std::size_t i = 0; i < mCanaries.size(); ++i) {
      if (mCanaries[i]->Pid() != pid || mExpected[i].endedBy != 0) continue;
      Look& look = mExpected[i];
      if (kind == "nice") {
        look.nice = value == 20 ? 19 : value;
        continue;
      }
      if (value == SIGTERM && look.stopped) look.doomed = true;
      if (value == SIGSTOP || value == SIGCONT) look.stopped = value == SIGSTOP;
      if (value == SIGKILL || (!look.stopped && (value == SIGTERM || look.doomed)))
        look = {.endedBy = value == SIGKILL ? SIGKILL : SIGTERM};
      // Signals that wait at the same time are taken in the order of their numbers, so each is
      // given the time to arrive by itself.
      Settle(i);
    }
  }

  /// The number of canaries that are not as they should be. Those that ended are replaced.
  int CountWrong() {
    int wrong = 0;
    for (std::size_t i = 0; i < mCanaries.size(); ++i) {
      const Look look = Settle(i);
      if (look != mExpected[i]) {
        ++wrong;
        std::fprintf(stderr, "canary %zu: stopped %d nice %d ended by %d, expected %d %d %d\n", i,
                     look.stopped, look.nice, look.endedBy, mExpected[i].stopped, mExpected[i].nice,
                     mExpected[i].endedBy);
      }
      if (mExpected[i].endedBy == 0) continue;
      mCanaries[i] = std::make_unique<Canary>(i % 2 == 0 ? kUser : kStranger);
      mExpected[i] = {};
      mCanaries[i]->Becomes("S");
    }
    return wrong;
  }

 private:
  /// How the canary looks once it is as it should be, or after a second.
  Look Settle(std::size_t index) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    for (;;) {
      Look look = LookAt(*mCanaries[index]);
      look.doomed = mExpected[index].doomed;
      if (look == mExpected[index] || std::chrono::steady_clock::now() > end) return look;
      std::this_thread::yield();
    }
  }

  static Look LookAt(Canary& canary) {
    const int ended = canary.EndedBy();
    if (ended != 0) return {.endedBy = ended};
    return {.stopped = canary.State() == 'T',
            .nice = getpriority(PRIO_PROCESS, static_cast<id_t>(canary.Pid()))};
  }

  std::vector<std::unique_ptr<Canary>> mCanaries;
  std::vector<Look> mExpected;
};

std::string HostileRequest(std::mt19937& random, const Flock& flock) {
  static const char* const kVerbs[] = {"kill_normal ", "kill_harsh ", "kill_halt ",  "kill_cont ",
                                       "renice ",      "kill ",       "KILL_HARSH ", ""};
  static const char* const kPids[] = {"1", "0", "-1", "-2", "4294967298", "+2", " 2", "02", "2 "};
  static const char* const kTails[] = {" 5", " -20", " 21", "\n", " 2", "\nkill_harsh 2", "x"};
  const unsigned kind = random() % 8;
  std::string request = kind == 0 ? "Lkw Info Extraction:\n" : "Lkw Action Request:\n";
  // Most of what is well formed leaves the canary alive, because each dead one is replaced.
  const unsigned verbs = kind >= 5 ? 8 : random() % 4 == 0 ? 5 : 3;
  const std::string verb = kVerbs[verbs == 3 ? 2 + random() % 3 : random() % verbs];
  request += verb;
  request += kind == 7 ? std::string(kPids[random() % 9]) : std::to_string(flock.PidOf(random()));
  if (verb == "renice ") request += ' ' + std::to_string(static_cast<int>(random() % 44) - 22);
  if (kind == 5) request += kTails[random() % 7];
  if (kind == 6) request[random() % request.size()] = static_cast<char>(random());
  return request;
}

TEST(CanaryTest, FiveThousandHostileRequestsTouchOnlyWhomTheyName) {
  EXPECT_EQ(InPidNamespace([] {
              Flock flock;
              HelperProcess helper(0);
              if (helper.Ask("geteuid") != "0") return 3;
              std::mt19937 random(61001);
              int done = 0, wrong = 0;
              for (int round = 0; round < 5000; ++round) {
                const std::string request = HostileRequest(random, flock);
                const Expectation expected = ReadRequest(request, helper.Pid(), getpid());
                const std::string answer = helper.Ask(request);
                if (expected.kind == Expectation::kEffect && answer == "ok") {
                  ++done;
                  flock.Expect(expected.effect);
                } else if (answer.substr(0, 7) != "!Error ") {
                  return 4;
                }
                if (round % 100 == 99) wrong += flock.CountWrong();
              }
              return wrong != 0 ? 5 : done > 500 ? 0 : 6;
            }),
            0);
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
                reported.reset();
                // Starts are told apart by the clock tick.
                std::this_thread::sleep_for(std::chrono::milliseconds(25));
                WriteAll("/proc/sys/kernel/ns_last_pid", std::to_string(pid - 1));
                Canary stranger(kStranger);
                if (stranger.Pid() != pid) return 4;
                if (helper.Act(kill) != "!Error another process has this pid\n") return 5;
                if (stranger.EndedBy() != 0) return 6;
                if (getpriority(PRIO_PROCESS, static_cast<id_t>(pid)) != 0) return 7;
                // Asked anew, the figures are the stranger's, and so is the next action.
                if (!helper.Figures(line).starts_with("pid_user_time ")) return 8;
                if (helper.Act(kill) != "ok") return 9;
              }
              return 0;
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
