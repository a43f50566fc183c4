// Whatever the caller passes on, the helper starts in one and the same way.
#include <errno.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <random>
#include <set>
#include <sstream>
#include <thread>

#include "helper/HelperProcess.h"
#include "helper/ReferenceReader.h"

namespace lurkwell::helper::testing {
namespace {

using Words = std::vector<std::string>;

/// How a program ended, and the system calls it made from its first instruction on.
struct Trace {
  int status = 0;
  std::vector<std::uint64_t> calls;
};

std::vector<char*> Pointers(const Words& words) {
  std::vector<char*> pointers;
  for (const std::string& word : words) pointers.push_back(const_cast<char*>(word.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

Trace Start(const Words& arguments, const Words& environment, bool traced = true,
            uid_t user = kUser) {
  const std::vector<char*> vector = Pointers(arguments), variables = Pointers(environment);
  const pid_t child = Fork();
  if (child == 0) {
    BecomeUser(user);
    if (traced) ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    execve(HelperPath().c_str(), vector.data(), variables.data());
    _exit(errno == E2BIG ? 64 : 97);
  }
  Trace trace;
  if (!traced) {
    trace.status = WaitFor(child);
    return trace;
  }
  int status = 0;
  waitpid(child, &status, 0);
  ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD);
  while (WIFSTOPPED(status)) {
    ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    waitpid(child, &status, 0);
    __ptrace_syscall_info info{};
    if (WIFSTOPPED(status) && WSTOPSIG(status) == (SIGTRAP | 0x80) &&
        ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info) > 0 &&
        info.op == PTRACE_SYSCALL_INFO_ENTRY)
      trace.calls.push_back(info.entry.nr);
  }
  trace.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  return trace;
}

/// Where the preset has lines counted, the counters' file is opened in front of the program's own
/// calls, and a variable says where it is.
#ifdef LURKWELL_COUNTS_LINES
constexpr bool kCountsLines = true;
#else
constexpr bool kCountsLines = false;
#endif

TEST(LaunchTest, ArgumentsOfNoKnownFormEndItBeforeItTouchesAnything) {
  const Trace plain = Start({"helper"}, {});
  EXPECT_EQ(plain.status, 64);
  const std::set<std::uint64_t> made(plain.calls.begin(), plain.calls.end());
  for (const long call : {SYS_openat, SYS_write, SYS_prctl, SYS_setresuid, SYS_rt_sigaction})
    EXPECT_EQ(made.contains(static_cast<std::uint64_t>(call)), call == SYS_openat && kCountsLines)
        << call;
  const std::string longest = '/' + std::string(1022, 'x'), tooLong = longest + 'x';
  for (const Words& arguments : std::vector<Words>{{},
                                                   {"h", "--set_permissions_appropriately", "/a"},
                                                   {"h", "/a"},
                                                   {"h", "/a", "b"},
                                                   {"h", "a", "/b"},
                                                   {"h", "", "/b"},
                                                   {"h", "/a", ""},
                                                   {"h", "/a", "/b", "/c"},
                                                   {"h", tooLong, "/b"},
                                                   {"h", "/a", tooLong},
                                                   {"h", "/a", '/' + std::string(131000, 'x')},
                                                   {"h", "--set_permissions_appropriately"}}) {
    const Trace trace = Start(arguments, {});
    EXPECT_EQ(trace.status, 64);
    EXPECT_EQ(trace.calls, plain.calls) << (arguments.size() > 1 ? arguments[1].substr(0, 40) : "");
  }
  EXPECT_EQ(Start({"h", longest, "/b"}, {}).status, 76);
  Words many(100000, "/a");
  EXPECT_EQ(Start(many, {}, false).status, 64);
  std::mt19937 random(1);
  for (int round = 0; round < 1000; ++round) {
    Words arguments(random() % 9);
    for (std::string& argument : arguments) {
      argument.assign(random() % 16 == 0 ? random() % 100000 : random() % 30, 'a');
      for (char& character : argument) character = static_cast<char>(1 + random() % 255);
      if (!argument.empty() && random() % 2 == 0) argument[0] = arguments.size() == 3 ? '.' : '/';
    }
    ASSERT_EQ(Start(arguments, {}, false).status, 64);
  }
}

/// The calls from the helper's own first one on. The C library, which starts before it, looks at
/// one variable and may take memory for its copy.
std::vector<std::uint64_t> OwnCalls(const Trace& trace) {
  const auto first = std::find(trace.calls.begin(), trace.calls.end(), SYS_prctl);
  return {first, trace.calls.end()};
}

TEST(LaunchTest, TheEnvironmentChangesNothing) {
  const Words arguments = {"helper", "/nowhere/a", "/nowhere/b"};
  const Trace plain = Start(arguments, {});
  ASSERT_EQ(plain.status, 76);
  ASSERT_GT(OwnCalls(plain).size(), 100u);
  Words names = Pieces(
      "LD_PRELOAD LD_LIBRARY_PATH LD_AUDIT LD_DEBUG LD_DEBUG_OUTPUT LD_PROFILE LD_BIND_NOW "
      "LD_SHOW_AUXV LD_WARN LD_TRACE_LOADED_OBJECTS GLIBC_TUNABLES MALLOC_CHECK_ MALLOC_TRACE "
      "MALLOC_ARENA_MAX GCONV_PATH GETCONF_DIR HOSTALIASES LOCPATH NLSPATH RES_OPTIONS TMPDIR "
      "TZDIR TZ LANG LC_ALL LANGUAGE PATH HOME SHELL IFS ENV PWD TERM XDG_RUNTIME_DIR DISPLAY "
      "NOTIFY_SOCKET LISTEN_FDS LISTEN_PID SUDO_UID PKEXEC_UID ASAN_OPTIONS LLVM_PROFILE_FILE",
      ' ');
  if (kCountsLines) names.pop_back();
  const Words values = {"", "0", "/tmp/x:.:", std::string(5000, '%') + "n$(touch /tmp/x)"};
  Words all;
  for (const std::string& name : names)
    for (const std::string& value : values) {
      all.push_back(name + '=' + value);
      const Trace trace = Start(arguments, {all.back()});
      EXPECT_EQ(trace.status, plain.status) << all.back().substr(0, 60);
      EXPECT_EQ(OwnCalls(trace), OwnCalls(plain)) << all.back().substr(0, 60);
    }
  EXPECT_EQ(OwnCalls(Start(arguments, all)), OwnCalls(plain));
}

/// The parts of an inherited state; each bit of a combination stands for one.
void Inherit(unsigned combination) {
  const auto has = [combination](unsigned bit) { return (combination >> bit & 1) != 0; };
  if (has(0))
    for (int extra = 0; extra < 40; ++extra) open("/proc", O_RDONLY);
  if (has(1)) {
    sigset_t every;
    sigfillset(&every);
    sigprocmask(SIG_SETMASK, &every, nullptr);
  }
  if (has(2))
    for (int number = 1; number < NSIG; ++number) signal(number, SIG_IGN);
  if (has(3)) {
    const itimerval soon{{0, 0}, {0, 800000}};
    for (const auto timer : {ITIMER_REAL, ITIMER_VIRTUAL, ITIMER_PROF})
      setitimer(timer, &soon, nullptr);
  }
  if (has(4)) {
    for (const auto& [resource, value] :
         std::vector<std::pair<__rlimit_resource_t, rlim_t>>{{RLIMIT_NOFILE, 5},
                                                             {RLIMIT_FSIZE, 0},
                                                             {RLIMIT_CPU, 1},
                                                             {RLIMIT_CORE, RLIM_INFINITY}}) {
      rlimit limit{};
      getrlimit(resource, &limit);
      limit.rlim_cur = std::min(value, limit.rlim_max);
      setrlimit(resource, &limit);
    }
    umask(0);
    if (chdir("/proc/self") != 0) _exit(98);
  }
  for (unsigned descriptor = 0; descriptor < 3; ++descriptor)
    if (has(5 + descriptor)) close(static_cast<int>(descriptor));
}

std::string LinesOf(const std::string& text, const Words& keys) {
  std::istringstream stream(text);
  std::string line, found;
  while (std::getline(stream, line))
    for (const std::string& key : keys)
      if (line.starts_with(key)) found += line + '\n';
  return found;
}

/// All that a process could have inherited, as text.
std::string StateOf(pid_t pid) {
  const std::string folder = "/proc/" + std::to_string(pid) + '/';
  std::string state =
      LinesOf(ReadFile(folder + "status"), {"Umask", "Sig", "Shd", "Groups", "Cap"});
  state = state.substr(0, state.find("SigQ")) + state.substr(state.find("SigPnd"));
  state += LinesOf(ReadFile(folder + "limits"), {"Max open", "Max file", "Max cpu", "Max core"});
  state += std::filesystem::read_symlink(folder + "cwd").string();
  std::multiset<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder + "fd")) {
    const std::string target = std::filesystem::read_symlink(entry.path()).filename().string();
    const int number = std::stoi(entry.path().filename().string());
    files.insert((number < 3 ? std::to_string(number) : std::string("+")) + target);
  }
  for (const std::string& file : files) state += ' ' + file;
  return state;
}

TEST(LaunchTest, NothingInheritedIsLeft) {
  std::string plain;
  for (unsigned combination = 0; combination < 256; ++combination) {
    HelperProcess helper(kUser, HelperPath(), [combination] { Inherit(combination); });
    ASSERT_TRUE(helper.IsOpen()) << combination;
    // Once by itself and once with all the rest, the timer would have struck.
    if (combination == 8 || combination == 255)
      std::this_thread::sleep_for(std::chrono::seconds(1));
    ASSERT_EQ(helper.Ask("geteuid"), "61001") << combination;
    const std::string state = StateOf(helper.Pid());
    if (combination == 0) {
      plain = state;
      EXPECT_TRUE(plain.ends_with("/ +answers (deleted) +requests (deleted) 0null 1null 2null"))
          << plain;
    }
    EXPECT_EQ(state, plain) << combination;
    EXPECT_EQ(helper.Close(), 0) << combination;
  }
  // Hard limits cannot be undone: too few descriptors for the null device, or for all three.
  for (const rlim_t descriptors : {0u, 2u})
    EXPECT_EQ(InChild([descriptors] {
                BecomeUser(kUser);
                const rlimit few{descriptors, descriptors};
                close(1);
                close(2);
                setrlimit(RLIMIT_NOFILE, &few);
                return execl(HelperPath().c_str(), "h", "/a", "/b", nullptr);
              }),
              71)
        << descriptors;
}

}  // namespace
}  // namespace lurkwell::helper::testing
