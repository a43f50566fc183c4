#include <atomic>
#include <random>

#include "process_control/RealControl.h"

namespace lurkwell {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;

class RealChannelTest : public RealControl {
 protected:
  ~RealChannelTest() override { QuitHelperDaemon(); }

  static void Open() { LaunchDaemonWithoutAuthorization(); }
  static bool IsOpen() { return gFd_a2d >= 0; }

  /// Runs the loop until the channel is open again, for ten seconds at most.
  void RunUntilOpen() {
    constexpr double kStep = 0.01;
    int steps = 0;
    const auto timer = machine.runLoop.AddTimer(0, kStep, [&] {
      if (IsOpen() || ++steps == 1000) machine.runLoop.Stop();
    });
    machine.runLoop.Run();
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
  ASSERT_TRUE(IsOpen());
  EXPECT_TRUE(std::filesystem::is_empty(folder / "pipes")) << "nobody else can join";
  EXPECT_EQ(Query("geteuid"), "0");
  const pid_t child = ::fork();
  if (child == 0) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (;;) ::pause();
  }
  const std::string figures = Query(FiguresRequest(child).c_str());
  EXPECT_NE(figures.find("pid_rsz " + std::to_string(child) + " "), std::string::npos) << figures;
  EXPECT_TRUE(IsAbout(figures, child));
  EXPECT_EQ(Query("nonsense"), "");
  Query(("Lkw Action Request:\nkill_normal " + std::to_string(child)).c_str());
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(WTERMSIG(status), SIGTERM);
}

TEST_F(RealChannelTest, AHelperKilledAtAnyMomentLosesNothingButItsAnswer) {
  std::mt19937 random(22);
  int answered = 0;
  int lost = 0;
  const std::string request = FiguresRequest(::getpid());
  for (int round = 0; round < 1000; ++round) {
    Open();
    ASSERT_TRUE(IsOpen()) << round;
    const pid_t helper = HelperPid();
    std::atomic<bool> begin{false};
    const auto delay = microseconds(random() % 400);
    std::thread killer([&] {
      while (!begin) {
      }
      const auto until = std::chrono::steady_clock::now() + delay;
      while (std::chrono::steady_clock::now() < until) {
      }
      Signal(helper, SIGKILL);
    });
    begin = true;
    for (int i = 0; IsOpen() && i < 100'000; ++i) {
      const std::string answer = Query(request.c_str(), 8191);
      EXPECT_TRUE(IsAbout(answer, ::getpid())) << answer;
      ++(answer.empty() ? lost : answered);
    }
    killer.join();
    ASSERT_FALSE(IsOpen()) << "the loss was not noticed";
  }
  EXPECT_EQ(lost, 1000);
  EXPECT_GT(answered, 1000);
}

TEST_F(RealChannelTest, ALateAnswerIsNobodysAnswer) {
  std::mt19937 random(21);
  int late = 0;
  for (int round = 0; round < 1000; ++round) {
    gDaemonLimits.answering = milliseconds(250);
    Open();
    ASSERT_TRUE(IsOpen());
    const pid_t helper = HelperPid();
    const pid_t asked = round % 2 == 0 ? ::getpid() : 1;
    for (int quick = static_cast<int>(random() % 3); quick > 0; --quick)
      ASSERT_TRUE(IsAbout(Query(FiguresRequest(asked).c_str()), asked));
    gDaemonLimits.answering = milliseconds(5);
    Signal(helper, SIGSTOP);
    const std::string stalled = Query(FiguresRequest(asked).c_str());
    Signal(helper, SIGCONT);
    ASSERT_TRUE(IsAbout(stalled, asked));
    if (stalled.empty()) {
      ++late;
      ASSERT_FALSE(IsOpen()) << "given up for good";
      EXPECT_EQ(Query("geteuid"), "");
    }
    QuitHelperDaemon();
  }
  EXPECT_GT(late, 900);
}

TEST_F(RealChannelTest, HelpersThatMisbehaveAreReplacedByOneThatDoesNot) {
  testing::internal::CaptureStdout();
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
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "read error: 110\n") << "of the mute one";
}

TEST_F(RealChannelTest, ALostHelperIsReplacedByTheRunLoop) {
  LaunchHelperDaemon();
  for (int round = 0; round < 2; ++round) {
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Query("geteuid"), "0");
    Signal(HelperPid(), SIGKILL);
    while (IsOpen()) Query("geteuid");
    RunUntilOpen();
  }
  EXPECT_EQ(Query("geteuid"), "0");
}

TEST_F(RealChannelTest, QuittingInTheMiddleOfARelaunchLeavesNothing) {
  UseStandIn("absent");
  gDaemonLimits.opening = milliseconds(100);
  SetHelperUnprivileged(true);
  LaunchHelperDaemon();
  EXPECT_FALSE(IsOpen());
  gDaemonLimits.opening = milliseconds(60'000);
  const auto stop = machine.runLoop.AddTimer(machine.clock.AbsoluteTime() + 1.2, 0,
                                             [&] { machine.runLoop.Stop(); });
  machine.runLoop.Run();
  EXPECT_FALSE(std::filesystem::is_empty(folder / "pipes")) << "a start is under way";
  QuitHelperDaemon();
}

TEST_F(RealChannelTest, PipesArePrivateAndNeverNarrow) {
  auto& pipes = machine.namedPipes;
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

}  // namespace
}  // namespace lurkwell
