#include <sys/xattr.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <set>
#include <thread>

#include "process_control/RealControl.h"

namespace lurkwell {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;

class RealChannelTest : public RealControl {
 protected:
  ~RealChannelTest() override { QuitHelperDaemon(); }

  void Open() { OpenInstalled(); }
  static bool IsOpen() { return gFd_a2d >= 0; }

  void RunUntilOpen() {
    machine.RunUntil([] { return IsOpen(); });
  }

  RealMachine machine{folder.Path()};
};

std::string FiguresRequest(pid_t pid) {
  return "Lkw Info Extraction:\npid_internal_basic_info " + std::to_string(pid) + "\n";
}

/// Whether every line is about that process; an empty answer has none.
bool IsAbout(const std::string& answer, pid_t pid) {
  const std::string mark = " " + std::to_string(pid) + " ";
  for (std::size_t at = 0; at < answer.size();) {
    const auto end = std::min(answer.find('\n', at), answer.size());
    if (answer.substr(at, end - at).find(mark) == std::string::npos) return false;
    at = end + 1;
  }
  return true;
}

TEST_F(RealChannelTest, TheRealHelperAnswers) {
  LaunchHelperDaemon();
  RunUntilOpen();
  ASSERT_TRUE(IsOpen());
  EXPECT_TRUE(std::filesystem::is_empty(folder / "pipes")) << "no other program can join";
  EXPECT_EQ(Query("geteuid"), "0");
  Child child;
  const std::string pid = std::to_string(child.Pid());
  const std::string figures = Query(FiguresRequest(child.Pid()).c_str());
  EXPECT_NE(figures.find("pid_rsz " + pid + " "), std::string::npos) << figures;
  EXPECT_TRUE(IsAbout(figures, child.Pid()));
  EXPECT_EQ(Query("nonsense"), "");
  Query(("Lkw Action Request:\nkill_normal " + pid).c_str());
  EXPECT_EQ(child.Wait(), -SIGTERM);
}

/// Sends a signal to the helper from another thread, a moment after its making.
class SignalSoon {
 public:
  SignalSoon(pid_t helper, int signal, microseconds delay)
      : mThread([=] {
          const auto until = std::chrono::steady_clock::now() + delay;
          while (std::chrono::steady_clock::now() < until) {
          }
          if (helper > 1) ::kill(helper, signal);
        }) {}
  ~SignalSoon() { mThread.join(); }
  SignalSoon(const SignalSoon&) = delete;
  SignalSoon& operator=(const SignalSoon&) = delete;

 private:
  std::thread mThread;
};

TEST_F(RealChannelTest, AHelperKilledOrStoppedAtAnyMomentLosesNothingButItsAnswer) {
  std::mt19937 random(22);
  int answered = 0;
  // An answer of one page of the pipe, one that takes two, and one about another process.
  std::string large = "Lkw Info Extraction:\n";
  for (int i = 0; i < 12; ++i)
    large += "pid_internal_thread_time_basic_info_events_info " + std::to_string(::getpid()) + "\n";
  const std::string requests[] = {FiguresRequest(::getpid()), large, FiguresRequest(1)};
  // On a busy machine few are answered in time.
  for (int round = 0; round < 1000 || (answered <= 500 && round < 10'000); ++round) {
    const bool isKilled = round % 2 == 0;
    gDaemonLimits.answering = milliseconds(250);
    Open();
    ASSERT_TRUE(IsOpen()) << round;
    const pid_t helper = HelperPid();
    ASSERT_GT(helper, 1);
    if (!isKilled) gDaemonLimits.answering = milliseconds(3);
    {
      const SignalSoon sender(helper, isKilled ? SIGKILL : SIGSTOP, microseconds(random() % 600));
      std::string answer = "some";
      for (int i = round; !answer.empty(); ++i) {
        answer = Query(requests[i % 3].c_str(), 8191);
        ASSERT_TRUE(IsAbout(answer, i % 3 == 2 ? 1 : ::getpid())) << answer;
        const int lines = answer.empty() ? 0 : i % 3 == 1 ? 12 * 16 : 6;
        ASSERT_EQ(std::count(answer.begin(), answer.end(), '\n'), lines);
        if (!answer.empty()) ++answered;
      }
    }
    ASSERT_FALSE(IsOpen()) << "given up for good";
    if (!isKilled) Signal(helper, SIGCONT);
    EXPECT_EQ(Query("geteuid"), "") << "also when it is there again";
    // So that the next look-up finds the next helper.
    ::waitpid(helper, nullptr, 0);
  }
  EXPECT_GT(answered, 500);
}

/// An application with an open channel, which it uses until it is killed, and with a child that
/// would keep whatever ends it inherited.
[[noreturn]] void RunApplication(const std::string& helper, int ready) {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  OpenChannel(helper);
  const pid_t bystander = ::fork();
  if (bystander == 0) {
    ::execl("/bin/sleep", "lkw_bystander", "60", nullptr);
    ::_exit(127);
  }
  char byte = gFd_a2d >= 0 ? 'y' : 'n';
  if (::write(ready, &byte, 1) != 1) ::_exit(98);
  char answer[256];
  const std::string request = "Lkw Info Extraction:\npid_internal_thread_time 1\n";
  while (QueryDaemon(request.c_str(), answer, sizeof answer - 1) > 0) {
  }
  ::_exit(99);
}

TEST_F(RealChannelTest, TheHelperEndsWithAKilledApplication) {
  std::mt19937 random(23);
  for (int round = 0; round < 100; ++round) {
    int ends[2];
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    const pid_t application = ::fork();
    if (application == 0) RunApplication(LURKWELL_TEST_HELPER, ends[1]);
    ::close(ends[1]);
    char opened = '-';
    EXPECT_EQ(::read(ends[0], &opened, 1), 1);
    ::close(ends[0]);
    ASSERT_EQ(opened, 'y');
    std::this_thread::sleep_for(microseconds(random() % 2000));
    Signal(application, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(application, &status, 0), application);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the helper went first, " << WEXITSTATUS(status);
    // Both orphans are ours now.
    const auto killed = std::chrono::steady_clock::now();
    while (HelperPid() > 0 && std::chrono::steady_clock::now() - killed < std::chrono::seconds(2))
      std::this_thread::sleep_for(milliseconds(1));
    ASSERT_EQ(HelperPid(), -1) << "it ends within milliseconds, " << round;
    pid_t bystander = -1;
    for (int i = 0; bystander < 0 && i < 10'000; ++i) {
      bystander = ChildNamed("sleep");
      std::this_thread::sleep_for(milliseconds(1));
    }
    Signal(bystander, SIGKILL);
    ASSERT_TRUE(AllHelpersEnd());
  }
}

TEST_F(RealChannelTest, HelpersThatMisbehaveAreReplacedByOneThatDoesNot) {
  for (const std::string mode : {"absent", "half", "mute", "brief", "noise", "twice"}) {
    gDaemonLimits.opening = milliseconds(300);
    UseStandIn(mode);
    Open();
    EXPECT_EQ(IsOpen(), mode == "brief" || mode == "noise" || mode == "twice") << mode;
    for (int i = 0; i < 50 && IsOpen(); ++i) {
      const std::string answer = Query("geteuid", 8191);
      if (mode != "twice") continue;
      EXPECT_NE(answer, "two");
      std::this_thread::sleep_for(milliseconds(5));
    }
    EXPECT_TRUE(mode == "noise" || !IsOpen()) << mode;
    QuitHelperDaemon();
    UseRealHelper();
    gDaemonLimits.opening = milliseconds(5000);
    Open();
    EXPECT_EQ(Query("geteuid"), "0") << "after " << mode;
    QuitHelperDaemon();
  }
}

TEST_F(RealChannelTest, ALostHelperIsReplacedByTheRunLoopAlsoWhenNothingIsAsked) {
  gDaemonLimits.pulse = milliseconds(50);
  LaunchHelperDaemon();
  RunUntilOpen();
  for (const bool isAsked : {false, true}) {
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Query("geteuid"), "0");
    const pid_t helper = HelperPid();
    Signal(helper, SIGKILL);
    ::waitpid(helper, nullptr, 0);
    while (isAsked && IsOpen()) Query("geteuid");
    machine.RunUntil([] { return !IsOpen(); }, 2);
    EXPECT_FALSE(IsOpen());
    // A second until the start, and some milliseconds for it, on a machine that has nothing to do.
    machine.RunUntil([] { return IsOpen(); }, 4);
  }
  EXPECT_EQ(Query("geteuid"), "0");
}

TEST_F(RealChannelTest, QuittingInTheMiddleOfAStartLeavesNothing) {
  UseStandIn("absent");
  SetHelperUnprivileged(true);
  LaunchHelperDaemon();
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(std::filesystem::is_empty(folder / "pipes")) << "a start is under way";
  QuitHelperDaemon();
}

TEST_F(RealChannelTest, ABeatWaitsNoLongerThanItsLimitWhateverTheHelperDoes) {
  LaunchHelperDaemon();
  RunUntilOpen();
  const pid_t helper = HelperPid();
  const auto beat = [] {
    const auto begun = std::chrono::steady_clock::now();
    DaemonConversation conversation;
    char answer[8192];
    std::ptrdiff_t last = 1;
    for (int request = 0; request < 5000; ++request)
      last = conversation.Query(FiguresRequest(1).c_str(), answer, sizeof answer - 1);
    EXPECT_LT(std::chrono::steady_clock::now() - begun, milliseconds(150));
    return last;
  };
  Signal(helper, SIGSTOP);
  EXPECT_EQ(beat(), kDaemonNotAsked);
  Signal(helper, SIGCONT);
  std::this_thread::sleep_for(milliseconds(50));
  EXPECT_TRUE(IsAbout(DaemonConversation::TakeLateAnswer(), 1));
  EXPECT_EQ(Query("geteuid"), "0") << "the same channel goes on";
  Signal(helper, SIGSTOP);
  EXPECT_EQ(beat(), kDaemonNotAsked);
  machine.RunUntil([] { return !IsOpen(); }, 1);
  EXPECT_FALSE(IsOpen()) << "overdue";
  EXPECT_EQ(GetDaemonStatus().rights, DaemonRights::kNone);
  Signal(helper, SIGCONT);
  // "slow" takes 25 ms for each answer.
  UseStandIn("slow");
  OpenChannel(Installed());
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(beat(), kDaemonNotAsked);
  std::string late;
  machine.RunUntil([&] { return !(late = DaemonConversation::TakeLateAnswer()).empty(); }, 1);
  EXPECT_EQ(late, "slow");
  EXPECT_TRUE(IsOpen());
}

TEST_F(RealChannelTest, PipesOfAKilledProgramGoWithTheNextOnesAndNothingElse) {
  Child other([] {
    static LinuxNamedPipes pipes;
    for (const char* prefix : {"Lkw_a2d_", "Lkw_d2a_"})
      if (!pipes.MakeFifo(pipes.TemporaryName(prefix), 010666)) ::_exit(1);
  });
  const auto names = [this] {
    std::set<std::string> all;
    for (const auto& entry : std::filesystem::directory_iterator(folder / "pipes"))
      all.insert(entry.path().filename());
    return all;
  };
  const auto others = names();
  ASSERT_EQ(others.size(), 1u);
  const std::string empty = folder.Make("pipes/lurkwell-aaaaaa", 0700);
  const std::string open = folder.Make("pipes/lurkwell-bbbbbb", 0755);
  const std::string files = folder.Make("pipes/lurkwell-cccccc", 0700);
  const std::string left = folder.Make("left", 0700);
  for (const auto& within : {open, files, left})
    ASSERT_EQ(::mkfifo((within + "/pipe").c_str(), 0600), 0);
  WriteFile(files + "/file", "somebody's");
  std::filesystem::create_directory_symlink(left, folder / "pipes/lurkwell-dddddd");
  const auto before = names();
  auto& pipes = machine.namedPipes;
  const auto withOurs = [&] {
    const std::string path = pipes.TemporaryName("Lkw_a2d_");
    auto all = names();
    pipes.Unlink(path);
    EXPECT_EQ(all.erase(std::filesystem::path(path).parent_path().filename()), 1u);
    return all;
  };
  EXPECT_EQ(withOurs(), before) << "a living program keeps its pipes";
  EXPECT_EQ(other.End(), -SIGKILL);
  auto after = before;
  after.erase(*others.begin());
  EXPECT_EQ(withOurs(), after);
  EXPECT_TRUE(std::filesystem::exists(left + "/pipe"));
  for (const auto& name : after) std::filesystem::remove_all(folder / ("pipes/" + name));
}

TEST_F(RealChannelTest, PipesArePrivateAndNeverNarrow) {
  auto& pipes = machine.namedPipes;
  // By default everything in there is for another user, too: user::rwx user:61002:rwx group::---
  // mask::rwx other::---, as the kernel keeps it.
  constexpr std::uint16_t kList[] = {2,      0,      1,  7, 0xffff, 0xffff, 2,  7,
                                     61002,  0,      4,  0, 0xffff, 0xffff, 16, 7,
                                     0xffff, 0xffff, 32, 0, 0xffff, 0xffff};
  ASSERT_EQ(
      ::setxattr((folder / "pipes").c_str(), "system.posix_acl_default", kList, sizeof kList, 0),
      0);
  const std::string path = pipes.TemporaryName("Lkw_a2d_");
  ASSERT_TRUE(pipes.MakeFifo(path, 010666));
  EXPECT_EQ(ModeOf(path), 0600u);
  EXPECT_EQ(ModeOf(std::filesystem::path(path).parent_path()), 0700u);
  EXPECT_FALSE(pipes.MakeFifo(path, 010666)) << "never one that is there";
  const int reader = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  ASSERT_EQ(::fcntl(reader, F_SETPIPE_SZ, 4096), 4096);
  EXPECT_EQ(pipes.OpenForWriting(path, milliseconds(20)), -1);
  ASSERT_EQ(::fcntl(reader, F_SETPIPE_SZ, 8192), 8192);
  const int writer = pipes.OpenForWriting(path, milliseconds(20));
  ASSERT_GE(writer, 0);
  EXPECT_NE(::fcntl(writer, F_GETFD) & FD_CLOEXEC, 0);
  const std::string full(8192, 'x');
  EXPECT_EQ(pipes.Write(writer, full, milliseconds(20)), 8192);
  EXPECT_EQ(pipes.Write(writer, "x", milliseconds(20)), -1) << "waits, but not for ever";
  EXPECT_EQ(errno, ETIMEDOUT);
  ::close(reader);
  EXPECT_EQ(pipes.Write(writer, "x", milliseconds(20)), -1) << "and no signal";
  EXPECT_EQ(errno, EPIPE);
  EXPECT_EQ(pipes.Close(writer), 0);
  EXPECT_EQ(pipes.Close(-1), -1);
  pipes.Unlink(path);
}

TEST_F(RealChannelTest, PipesLieWhereNobodyElseCanExchangeThem) {
  const auto placeWith = [this](const std::string& runtime) {
    ::setenv("XDG_RUNTIME_DIR", runtime.c_str(), 1);
    LinuxNamedPipes pipes;
    const std::string path = pipes.TemporaryName("Lkw_a2d_");
    pipes.Unlink(path);
    ::unsetenv("XDG_RUNTIME_DIR");
    return std::filesystem::path(path).parent_path().parent_path().string();
  };
  WriteFile(folder / "file", "");
  const std::string foreign = folder.Make("foreign", 0755, kStranger);
  const std::string shared = folder.Make("shared", 0777);
  for (const std::string& unsafe : {std::string(), std::string("."), folder / "file",
                                    folder / "none", '/' + std::string(960, '/'), foreign, shared})
    EXPECT_EQ(placeWith(unsafe), folder / "pipes") << unsafe.substr(0, 80);
  const std::string own = folder.Make("own", 0700), sticky = folder.Make("sticky", 01777);
  for (const std::string& safe : {own, sticky}) EXPECT_EQ(placeWith(safe), safe);
  ::setenv("TMPDIR", shared.c_str(), 1);
  EXPECT_EQ(placeWith(foreign), "/tmp");
  ::setenv("TMPDIR", (folder / "pipes").c_str(), 1);

  auto& pipes = machine.namedPipes;
  const std::string path = pipes.TemporaryName("Lkw_a2d_");
  // Somebody tidies up below the folder for temporary files.
  std::filesystem::remove_all(std::filesystem::path(path).parent_path());
  const std::string next = pipes.TemporaryName("Lkw_a2d_");
  ASSERT_TRUE(pipes.MakeFifo(next, 010600));
  // Only a pipe is taken for one, and nobody's other end is waited for beyond the limit.
  std::filesystem::create_symlink(next, folder / "link");
  for (const auto& [name, error] :
       {std::pair(folder / "file", EINVAL), {folder / "link", ELOOP}, {folder / "none", ENOENT}}) {
    EXPECT_EQ(pipes.OpenForReading(name, milliseconds(20)), -1);
    EXPECT_EQ(errno, error) << name;
    EXPECT_EQ(pipes.OpenForWriting(name, milliseconds(20)), -1);
    EXPECT_EQ(errno, error) << name;
  }
  EXPECT_EQ(pipes.OpenForWriting(next, milliseconds(20)), -1);
  EXPECT_EQ(errno, ENXIO);
  const int reader = pipes.OpenForReading(next, milliseconds(20));
  ASSERT_GE(reader, 0);
  std::array<char, 8> text{};
  EXPECT_EQ(pipes.Read(1000, text, milliseconds(20)), -1);
  EXPECT_EQ(errno, EBADF);
  EXPECT_EQ(pipes.Read(reader, text, milliseconds(20)), -1);
  EXPECT_EQ(errno, ETIMEDOUT);
  EXPECT_EQ(pipes.Close(reader), 0);
  pipes.Unlink(next);
}

}  // namespace
}  // namespace lurkwell
