// The real helper between real pipes.
#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <sched.h>
#include <signal.h>
#include <sys/inotify.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <thread>

#include "helper/HelperProcess.h"
#include "helper/Session.h"

namespace lurkwell::helper::testing {
namespace {

constexpr int kExitSystem = 71;
constexpr int kExitChannel = 76;

std::string Proc(pid_t pid, const char* file) {
  return ReadFile("/proc/" + std::to_string(pid) + '/' + file);
}

/// The value behind "KEY:" in a file of lines.
std::string Value(const std::string& text, const std::string& key) {
  const std::size_t place = ("\n" + text).find("\n" + key + ":");
  if (place == std::string::npos) return {};
  std::istringstream stream(text.substr(place + key.size() + 1));
  std::string value;
  stream >> value;
  return value;
}

/// The line of a request for all figures of a process.
std::string AllOf(pid_t pid) {
  return "pid_internal_thread_time_basic_info_events_info " + std::to_string(pid) + "\n";
}

TEST(ServeTest, WorksAsTheUserWithoutRightsAndUnderItsOwnName) {
  for (const uid_t user : {uid_t{0}, kUser}) {
    HelperProcess helper(user);
    ASSERT_TRUE(helper.IsOpen());
    // All is in place before the greeting is answered.
    const std::string status = Proc(helper.Pid(), "status");
    EXPECT_EQ(helper.Ask("geteuid"), std::to_string(user));
    EXPECT_EQ(Value(status, "Name"), "lkw_helper_daem");
    EXPECT_EQ(Proc(helper.Pid(), "cmdline").substr(0, 16), "lkw_helper_daemo");
    EXPECT_EQ(Value(status, "Seccomp"), "2");
    EXPECT_EQ(Value(status, "NoNewPrivs"), "1");
    // Root keeps the two rights to signal and to renice, a user has none.
    EXPECT_EQ(Value(status, "CapPrm"), user == 0 ? "0000000000800020" : "0000000000000000");
    EXPECT_EQ(Value(status, "CapEff"), Value(status, "CapPrm"));
    EXPECT_EQ(Value(status, "CapInh"), "0000000000000000");
    // Its memory is what it is, whatever is asked.
    for (int pid = 1; pid < 40000; pid += 100) {
      std::string lines;
      for (int next = pid; next < pid + 100; ++next) lines += AllOf(next);
      EXPECT_NE(helper.Figures(lines), "");
    }
    EXPECT_LE(std::stoi(Value(Proc(helper.Pid(), "status"), "VmHWM")), 2048);
    // A stopped helper goes on where it was.
    kill(helper.Pid(), SIGSTOP);
    ASSERT_TRUE(helper.Send("geteuid"));
    kill(helper.Pid(), SIGCONT);
    EXPECT_EQ(helper.Receive(), std::to_string(user));
    EXPECT_EQ(helper.Close(), 0);
  }
}

TEST(ServeTest, StartedByRootForAUserItIsThatUserWithTwoRights) {
  const auto asking = [](const char* variable) {
    return [variable] {
      setenv(variable, "61001", 1);
      constexpr gid_t kGroups[] = {0, 4, 27};
      if (setgroups(3, kGroups) != 0) _exit(98);
    };
  };
  for (const char* variable : {"PKEXEC_UID", "SUDO_UID"}) {
    HelperProcess helper(kUser, HelperPath(), asking(variable), true);
    ASSERT_TRUE(helper.IsOpen());
    EXPECT_EQ(helper.Ask("geteuid"), "0");
    const std::string status = Proc(helper.Pid(), "status");
    EXPECT_NE(status.find("Uid:\t61001\t61001\t61001\t61001\nGid:\t61001\t61001\t61001\t61001\n"),
              std::string::npos);
    EXPECT_EQ(Value(status, "Groups"), "NStgid:") << "keeps root's groups";
    EXPECT_EQ(Value(status, "CapBnd"), "0000000000800020");
    EXPECT_EQ(Value(status, "CapPrm"), "0000000000800020");
    // Nobody but the user who was named is served then, not even root.
    for (const uid_t other : {kStranger, uid_t{0}}) {
      HelperProcess refused(other, HelperPath(), asking(variable), true);
      EXPECT_FALSE(refused.IsOpen()) << other;
      EXPECT_EQ(refused.Close(), kExitChannel) << other;
    }
    // A container may keep a right from root; what is left is of use, but "0" would promise both.
    for (const int missing : {CAP_KILL, CAP_SYS_NICE}) {
      HelperProcess poor(
          kUser, HelperPath(),
          [&] {
            asking(variable)();
            if (prctl(PR_CAPBSET_DROP, missing, 0, 0, 0) != 0) _exit(98);
          },
          true);
      EXPECT_EQ(poor.Ask("geteuid"), std::to_string(kUser));
      EXPECT_EQ(Value(Proc(poor.Pid(), "status"), "CapPrm"),
                missing == CAP_KILL ? "0000000000800000" : "0000000000000020");
    }
    // Without the right to give up rights for good it serves nobody.
    HelperProcess unsafe(
        kUser, HelperPath(),
        [&] {
          asking(variable)();
          if (prctl(PR_CAPBSET_DROP, CAP_SETPCAP, 0, 0, 0) != 0) _exit(98);
        },
        true);
    EXPECT_EQ(unsafe.Close(), kExitSystem);
  }
}

TEST(ServeTest, RenicesEveryThread) {
  EXPECT_EQ(InChild([] {
              HelperProcess helper(0);
              std::promise<id_t> thread;
              std::promise<void> end;
              std::thread other([&] {
                thread.set_value(static_cast<id_t>(syscall(SYS_gettid)));
                end.get_future().wait();
              });
              const bool done = helper.Act("renice " + std::to_string(getpid()) + " 7") == "ok";
              const int nice = getpriority(PRIO_PROCESS, thread.get_future().get());
              end.set_value();
              other.join();
              return done ? nice : -1;
            }),
            7);
}

TEST(ServeTest, ActsOnlyWhereTheUserMayAndNeverHaltsItsApplication) {
  for (const uid_t user : {uid_t{0}, kUser})
    EXPECT_EQ(InChild([user] {
                if (user != 0) BecomeUser(user);
                HelperProcess helper(user);
                const std::string self = std::to_string(getpid());
                if (helper.Act("kill_halt " + self) != "!Error not permitted\n") return 1;
                return helper.Act("kill_cont " + self) == "ok" ? 0 : 2;
              }),
              0);
  Canary own(kUser), foreign(kStranger);
  ASSERT_TRUE(own.Becomes("S") && foreign.Becomes("S"));
  HelperProcess helper(kUser);
  const std::string kDenied = "!Error this takes an administrator's rights\n";
  const std::string mine = std::to_string(own.Pid()), other = std::to_string(foreign.Pid());
  EXPECT_EQ(helper.Act("kill_harsh " + other), kDenied);
  EXPECT_EQ(helper.Act("renice " + other + " 5"), kDenied);
  EXPECT_EQ(helper.Act("renice " + mine + " 5"), "ok");
  EXPECT_EQ(getpriority(PRIO_PROCESS, static_cast<id_t>(own.Pid())), 5);
  EXPECT_EQ(helper.Act("renice " + mine + " -19"), kDenied);
  EXPECT_EQ(helper.Act("kill_halt " + mine), "ok");
  EXPECT_TRUE(own.Becomes("T"));
  EXPECT_NE(helper.Figures("pid_internal_basic_info " + mine + "\n")
                .find("pid_suspend_count " + mine + " 1\n"),
            std::string::npos);
  EXPECT_EQ(helper.Act("kill_cont " + mine), "ok");
  EXPECT_TRUE(own.Becomes("SR"));
  EXPECT_EQ(helper.Act("kill_normal " + mine), "ok");
  EXPECT_TRUE(own.Becomes("Z"));
  EXPECT_EQ(own.Wait(), -SIGTERM);
  EXPECT_EQ(helper.Act("kill_normal " + mine), "!Error no such process\n");
  EXPECT_TRUE(foreign.Becomes("S"));
}

TEST(ServeTest, TellsOfProcessesWhatItReadsWithoutConfinementToo) {
  HelperProcess helper(0);
  const auto free = std::make_unique<Session>();
  free->Begin(kRealSystem, {.ownPid = getpid()});
  Canary sleeper(kUser), stopped(kStranger);
  kill(stopped.Pid(), SIGSTOP);
  ASSERT_TRUE(sleeper.Becomes("S") && stopped.Becomes("T"));
  for (const pid_t pid : {sleeper.Pid(), stopped.Pid()}) {
    const std::string told = helper.Figures(AllOf(pid)), who = ' ' + std::to_string(pid) + ' ';
    std::string expected(free->Answer("Lkw Info Extraction:\n" + AllOf(pid)));
    // The calls stand in a file that confinement closes.
    const auto calls = expected.find("pid_syscalls_unix" + who) + 17 + who.size();
    expected.replace(calls, expected.find('\n', calls) - calls, "0");
    EXPECT_EQ(told, expected);
    EXPECT_EQ(told.find("pid_rsz" + who + "0\n"), std::string::npos) << told;
    EXPECT_EQ(told.find("pid_csw" + who + "0\n"), std::string::npos) << told;
  }
}

/// Two pipes of the user's.
std::array<std::string, 2> MakePipes(const TemporaryFolder& folder) {
  const std::array<std::string, 2> pipes = {folder / "a", folder / "b"};
  for (const std::string& path : pipes) {
    EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(chown(path.c_str(), kUser, kUser), 0);
  }
  return pipes;
}

pid_t StartWith(const std::string& one, const std::string& two) {
  return Fork([&] {
    BecomeUser(kUser);
    execl(HelperPath().c_str(), "helper", one.c_str(), two.c_str(), nullptr);
    return 97;
  });
}

TEST(ServeTest, OpensNothingButAPrivateWidePipeOfTheUser) {
  // Each makes something at $P; the helper gets it in the place of its first or second pipe.
  const std::pair<const char*, const char*> kinds[] = {
      {"nothing", ""},
      {"plain file", "printf geteuid > $P; chown 61001 $P"},
      {"folder", "mkdir -m 777 $P"},
      {"character device", "mknod -m 666 $P c 1 3; chown 61001 $P"},
      {"block device", "mknod -m 666 $P b 7 77; chown 61001 $P"},
      {"link to a pipe", "mkfifo -m 600 $P.real; chown 61001 $P.real; ln -s $P.real $P"},
      {"link to nothing", "ln -s /nowhere $P"},
      {"second name", "mkfifo -m 600 $P; chown 61001 $P; ln $P $P.second"},
      {"root's pipe", "mkfifo -m 600 $P"},
      {"stranger's pipe", "mkfifo -m 600 $P; chown 61002 $P"},
      {"pipe for the group", "mkfifo -m 620 $P; chown 61001 $P"},
      {"pipe for all readers", "mkfifo -m 604 $P; chown 61001 $P"},
      {"pipe for all", "mkfifo -m 666 $P; chown 61001 $P"},
      {"narrow pipe", "mkfifo -m 600 $P; chown 61001 $P"},
      {"socket", ""},
  };
  for (const auto& [name, make] : kinds)
    for (const bool first : {true, false}) {
      const TemporaryFolder folder(0700, kUser);
      const std::string good = folder / "good", bad = folder / "bad";
      Shell("P=" + good + "; mkfifo -m 600 $P; chown 61001 $P; P=" + bad + "; " + make);
      int held = -1;
      if (std::string_view(name) == "narrow pipe") {
        held = open(bad.c_str(), O_RDWR | O_CLOEXEC);
        ASSERT_EQ(fcntl(held, F_SETPIPE_SZ, 4096), 4096);
      } else if (std::string_view(name) == "socket") {
        sockaddr_un address{AF_UNIX, {}};
        bad.copy(address.sun_path, sizeof address.sun_path - 1);
        held = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        ASSERT_EQ(bind(held, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        ASSERT_EQ(chown(bad.c_str(), kUser, kUser), 0);
      }
      // The test holds the good end open, so that only the bad one can stop the helper.
      const int end = open(good.c_str(), O_RDWR | O_CLOEXEC);
      ASSERT_EQ(write(end, "hello\n", 6), 6);
      const auto begun = std::chrono::steady_clock::now();
      EXPECT_EQ(WaitFor(StartWith(first ? bad : good, first ? good : bad)), kExitChannel)
          << name << (first ? " first" : " second");
      EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(5)) << name;
      close(end);
      close(held);
    }
}

TEST(ServeTest, APipeThatJustHoldsAnAnswerIsWideEnough) {
  const TemporaryFolder folder(0700, kUser);
  const auto pipes = MakePipes(folder);
  std::array<int, 2> ends{};
  for (std::size_t i = 0; i < ends.size(); ++i) {
    ends[i] = open(pipes[i].c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(fcntl(ends[i], F_SETPIPE_SZ, 8192), 8192);
  }
  ASSERT_EQ(write(ends[0], "hello\n", 6), 6);
  const pid_t helper = StartWith(pipes[0], pipes[1]);
  pollfd answer{ends[1], POLLIN, 0};
  EXPECT_EQ(poll(&answer, 1, 5000), 1);
  for (const int end : ends) close(end);
  EXPECT_EQ(WaitFor(helper), 0);
}

/// In a process of the user: puts one thing after another at `path`, as fast as it can.
[[noreturn]] void SwapForEver(const std::string& path, const std::string& folder,
                              const std::vector<std::string>& others) {
  BecomeUser(kUser);
  for (std::size_t round = 0;; ++round) {
    const std::string fresh = folder + "/fresh";
    const std::string& other = others[round / 3 % others.size()];
    // A link to something, another name of it, and a pipe of the user's own.
    bool made = false;
    if (round % 3 == 0)
      made = symlink(other.c_str(), fresh.c_str()) == 0;
    else if (round % 3 == 1)
      made = link(other.c_str(), fresh.c_str()) == 0;
    else
      made = mkfifo(fresh.c_str(), 0600) == 0;
    if (made) rename(fresh.c_str(), path.c_str());
    unlink(fresh.c_str());
  }
}

TEST(ServeTest, PipesSwappedBetweenTheLookAndTheOpeningAreNotOpened) {
  const TemporaryFolder folder(0700, kUser), foreign(0755);
  std::vector<std::string> others;
  const int watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  for (const char* make : {"echo > $P", "mkfifo $P", "mkfifo $P; chown 61002 $P"}) {
    others.push_back(foreign / ("other" + std::to_string(others.size())));
    Shell("P=" + others.back() + "; " + make + "; chmod 666 $P");
    ASSERT_GE(inotify_add_watch(watch, others.back().c_str(), IN_OPEN), 0);
  }
  const std::string path = folder / "requests", answers = folder / "answers";
  Shell("mkfifo -m 600 " + answers + "; chown 61001 " + answers);
  const pid_t swapper = Fork();
  if (swapper == 0) SwapForEver(path, folder.Path(), others);
  std::map<int, int> ends;
  for (int round = 0; round < 400; ++round) {
    const pid_t helper = StartWith(path, answers);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
    kill(helper, SIGTERM);
    ++ends[WaitFor(helper)];
  }
  kill(swapper, SIGKILL);
  WaitFor(swapper);
  // It was refused, or waited for whoever writes to a pipe of its user's.
  EXPECT_GT(ends[kExitChannel], 0);
  EXPECT_EQ(ends[kExitChannel] + ends[-SIGTERM], 400);
  char events[4096];
  EXPECT_EQ(read(watch, events, sizeof events), -1) << "something foreign was opened";
  EXPECT_EQ(errno, EAGAIN);
  close(watch);
}

TEST(ServeTest, GivesUpWhenNobodyOpensTheOtherEnds) {
  const TemporaryFolder closed(0700, kUser), halfOpen(0700, kUser);
  const auto neither = MakePipes(closed), first = MakePipes(halfOpen);
  const int held = open(first[0].c_str(), O_RDWR | O_CLOEXEC);
  HelperProcess inUse(kUser);
  const pid_t helpers[] = {StartWith(neither[0], neither[1]), StartWith(first[0], first[1])};
  for (const pid_t helper : helpers) EXPECT_EQ(WaitFor(helper, 20), -SIGALRM);
  EXPECT_EQ(inUse.Ask("geteuid"), std::to_string(kUser)) << "for which no alarm is set any more";
  close(held);
}

TEST(ServeTest, LongAnswersComeInOneReadAndLongRequestsAreRefusedWhole) {
  Canary canary(kUser);
  HelperProcess helper(0);
  std::string lines;
  const std::string line = AllOf(canary.Pid());
  const std::size_t room = 8191 - 21;
  while (lines.size() + line.size() <= room) lines += line;
  for (int round = 0; round < 200; ++round) {
    const std::string answer = helper.Figures(lines);
    ASSERT_GT(answer.size(), 7700u);
    ASSERT_TRUE(answer.starts_with("pid_user_time ") && answer.ends_with("\n"));
  }
  // A request that ends in the text of another one is refused as a whole, and once.
  const std::string harsh = "Lkw Action Request:\nkill_harsh " + std::to_string(canary.Pid());
  for (const std::size_t size : {8192u, 8193u, 12288u, 16384u, 65536u, 200000u})
    for (const char filling : {'x', '\n'}) {
      std::string request(size - harsh.size(), filling);
      request += harsh;
      ASSERT_TRUE(helper.Send(request));
      EXPECT_EQ(helper.Receive(), "!Error request too long\n") << size;
      EXPECT_EQ(helper.Ask("geteuid"), "0") << size;
    }
  EXPECT_EQ(helper.Ask(harsh + harsh), "!Error malformed request\n");
  EXPECT_TRUE(canary.Becomes("S"));
}

TEST(ServeTest, AStartThatCannotBeConfinedIsRefused) {
  for (const bool isSpoilt : {false, true}) {
    const TemporaryFolder folder(0700, kUser);
    const auto [one, two] = MakePipes(folder);
    const int requests = open(one.c_str(), O_RDWR | O_CLOEXEC);
    const int answers = open(two.c_str(), O_RDWR | O_CLOEXEC);
    const pid_t helper = StartWith(one, two);
    // It waits for its greeting, with both ends open; the user takes the descriptors from it that
    // its confinement needs.
    const auto holdsBoth = [&, one = one, two = two] {
      std::error_code gone;
      std::set<std::string> held;
      for (const auto& entry :
           std::filesystem::directory_iterator("/proc/" + std::to_string(helper) + "/fd", gone))
        held.insert(std::filesystem::read_symlink(entry.path(), gone).string());
      return held.contains(one) && held.contains(two);
    };
    for (int tries = 0; tries < 5000 && !holdsBoth(); ++tries)
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    const rlimit none{3, 3};
    const auto spoil = [&] {
      BecomeUser(kUser);
      return prlimit(helper, RLIMIT_NOFILE, &none, nullptr);
    };
    if (isSpoilt) {
      EXPECT_EQ(InChild(spoil), 0);
    }
    ASSERT_EQ(write(requests, "hello\n", 6), 6);
    if (isSpoilt) {
      EXPECT_EQ(WaitFor(helper), kExitSystem);
    } else {
      char greeting[100];
      EXPECT_GT(read(answers, greeting, sizeof greeting), 0);
      kill(helper, SIGKILL);
      EXPECT_EQ(WaitFor(helper), -SIGKILL);
    }
    close(requests);
    close(answers);
  }
}

/// From here on the kernel refuses a call, or only that with such a first argument.
void Lose(long call, std::optional<std::uint32_t> first, int error) {
  const auto compare = static_cast<std::uint16_t>(BPF_JMP | BPF_K | (first ? BPF_JEQ : BPF_JGE));
  const sock_filter code[] = {
      {BPF_LD | BPF_W | BPF_ABS, 0, 0, offsetof(seccomp_data, nr)},
      {BPF_JMP | BPF_JEQ | BPF_K, 0, 3, static_cast<std::uint32_t>(call)},
      {BPF_LD | BPF_W | BPF_ABS, 0, 0, offsetof(seccomp_data, args)},
      {compare, 0, 1, first.value_or(0)},
      {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ERRNO | static_cast<std::uint32_t>(error)},
      {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ALLOW}};
  const sock_fprog program{std::size(code), const_cast<sock_filter*>(code)};
  if (syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, 0, &program) != 0) _exit(98);
}

TEST(ServeTest, NoStepIntoTheConfinementIsPassedOver) {
  const std::pair<long, std::optional<std::uint32_t>> steps[] = {{SYS_prctl, PR_CAPBSET_DROP},
                                                                 {SYS_prctl, PR_SET_SECUREBITS},
                                                                 {SYS_setgroups, {}},
                                                                 {SYS_setresgid, {}},
                                                                 {SYS_setresuid, {}},
                                                                 {SYS_prctl, PR_CAP_AMBIENT},
                                                                 {SYS_capset, {}},
                                                                 {SYS_prctl, PR_SET_DUMPABLE},
                                                                 {SYS_chdir, {}},
                                                                 {SYS_prctl, PR_SET_NO_NEW_PRIVS},
                                                                 {SYS_landlock_add_rule, {}},
                                                                 {SYS_landlock_restrict_self, {}},
                                                                 {SYS_seccomp, {}}};
  for (const auto& [call, first] : steps) {
    HelperProcess helper(0, HelperPath(),
                         [call = call, first = first] { Lose(call, first, EPERM); });
    EXPECT_EQ(helper.Ask("geteuid"), "");
    EXPECT_EQ(helper.Close(), kExitSystem) << call << ' ' << first.value_or(0);
  }
}

TEST(ServeTest, OnlyAKernelWithoutLandlockIsServedWithoutIt) {
  for (const int error : {ENOSYS, EOPNOTSUPP, ENOMEM}) {
    HelperProcess helper(0, HelperPath(),
                         [error] { Lose(SYS_landlock_create_ruleset, {}, error); });
    EXPECT_EQ(helper.Ask("geteuid"), error == ENOMEM ? "" : "0") << error;
    EXPECT_EQ(helper.Close(), error == ENOMEM ? kExitSystem : 0) << error;
  }
}

TEST(ServeTest, TheUserCannotLookIntoIt) {
  HelperProcess helper(kUser);
  ASSERT_TRUE(helper.IsOpen());
  const std::string folder = "/proc/" + std::to_string(helper.Pid()) + '/';
  EXPECT_EQ(InChild([&] {
              BecomeUser(kUser);
              int seen = 0;
              if (ptrace(PTRACE_ATTACH, helper.Pid(), nullptr, nullptr) == 0) ++seen;
              for (const char* file : {"mem", "environ", "fd", "maps"})
                if (open((folder + file).c_str(), O_RDONLY) >= 0) ++seen;
              return seen;
            }),
            0);
  std::istringstream limits(Proc(helper.Pid(), "limits"));
  std::string line;
  while (std::getline(limits, line) && !line.starts_with("Max core file size")) {
  }
  EXPECT_EQ(line.substr(26, 23), "0                    0 ");
  kill(helper.Pid(), SIGSEGV);
  int status = 0;
  ASSERT_EQ(waitpid(helper.Pid(), &status, 0), helper.Pid());
  EXPECT_TRUE(WIFSIGNALED(status) && !WCOREDUMP(status));
}

}  // namespace
}  // namespace lurkwell::helper::testing
