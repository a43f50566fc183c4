#include <gtest/gtest.h>
#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <random>

#include "FakeHost.h"
#include "animated_view/DrawingThread.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

void Sleep(std::chrono::milliseconds time) {
  std::this_thread::sleep_for(time);
}

/// The thread draws a simulated machine's processes; time is the real one.
class Drawing : public ConsolidatorTest {
 protected:
  ~Drawing() override { QuintessentialInformationClient::EndDrawingThread(); }

  void Show(std::int32_t interval, std::function<void()> onFrame = {}) {
    Start();
    machine.preferenceDomain.SetValue("HEARTQUIVA_GL_THREAD_INTERVAL", std::int64_t{interval});
    host.onFrame = [this, onFrame = std::move(onFrame)] {
      thread = gettid();
      starts.push_back(Clock::now());
      if (onFrame) onFrame();
    };
    client = new QuintessentialInformationClient(200);
    gQuintessentialViewIsCurrentlyShown = true;
    client->HookIntoConsolidator();
    client->CreateDrawingThreadIfNecessary();
  }

  /// How often the thread has gone to sleep so far.
  int Sleeps() {
    std::ifstream status("/proc/self/task/" + std::to_string(thread) + "/status");
    const std::string key = "voluntary_ctxt_switches:";
    for (std::string line; std::getline(status, line);)
      if (line.starts_with(key)) return std::stoi(line.substr(key.size()));
    return -1;
  }

  bool WaitForFrames(int count) {
    const auto end = Clock::now() + 10s;
    while (host.frames < count && Clock::now() < end) Sleep(1ms);
    return host.frames >= count;
  }

  FakeHost host;
  QuintessentialInformationClient* client = nullptr;
  std::atomic<pid_t> thread{0};
  /// Inside the mutex.
  std::vector<Clock::time_point> starts;
};

TEST(DrawingRest, IsWhatTheFrameLeftOfTheInterval) {
  using Elapsed = std::chrono::duration<double, std::milli>;
  EXPECT_EQ(DrawingThread::Rest(100, Elapsed(30.0)), 70ms);
  EXPECT_EQ(DrawingThread::Rest(100, Elapsed(30.9)), 70ms);
  EXPECT_EQ(DrawingThread::Rest(100, Elapsed(99.9)), 1ms);
  EXPECT_EQ(DrawingThread::Rest(100, Elapsed(250.0)), 1ms);
  EXPECT_EQ(DrawingThread::Rest(60'000, Elapsed(1.0)), 1s);
}

TEST_F(Drawing, FramesBeginAnIntervalApart) {
  Show(40);
  ASSERT_TRUE(WaitForFrames(8));
  QuintessentialInformationClient::EndDrawingThread();
  // The first wake-up may come on top of the first frame.
  auto least = Clock::duration::max();
  for (std::size_t i = 2; i < starts.size(); ++i) {
    EXPECT_GE(starts[i] - starts[i - 1], 39ms);
    least = std::min(least, starts[i] - starts[i - 1]);
  }
  EXPECT_LT(least, 60ms) << "all of them late";
}

TEST_F(Drawing, WithoutAThreadToSpareBeginsWhenThereIsOne) {
  pthread_attr_t usual;
  ASSERT_EQ(::pthread_getattr_default_np(&usual), 0);
  pthread_attr_t boundless = usual;
  ASSERT_EQ(::pthread_attr_setstacksize(&boundless, std::size_t{1} << 47), 0);
  ASSERT_EQ(::pthread_setattr_default_np(&boundless), 0);
  testing::internal::CaptureStderr();
  Show(20);
  EXPECT_TRUE(testing::internal::GetCapturedStderr().starts_with("lurkwell: no thread to draw"));
  ASSERT_EQ(::pthread_setattr_default_np(&usual), 0);
  ::pthread_attr_destroy(&usual);
  EXPECT_EQ(host.frames, 0);
  client->CreateDrawingThreadIfNecessary();
  EXPECT_TRUE(WaitForFrames(2));
}

TEST_F(Drawing, AnOverlongFrameStillLetsOthersIn) {
  Show(20, [] { Sleep(60ms); });
  ASSERT_TRUE(WaitForFrames(2));
  auto least = Clock::duration::max();
  for (int i = 0; i < 5; ++i) {
    const auto before = Clock::now();
    const CriticalRegion::Guard guard(gQuintessentialMutex);
    least = std::min(least, Clock::now() - before);
  }
  EXPECT_LT(least, 120ms) << "two frames";
}

TEST_F(Drawing, NothingIsDrawnThatNobodySees) {
  Show(20);
  ASSERT_TRUE(WaitForFrames(2));
  const auto framesDuring = [this](std::chrono::milliseconds time) {
    Sleep(30ms);
    const int before = host.frames;
    Sleep(time);
    return host.frames - before;
  };
  gQuintessentialWindowIsBeingResized = true;
  EXPECT_EQ(framesDuring(150ms), 0);
  gQuintessentialWindowIsBeingResized = false;
  EXPECT_GE(framesDuring(300ms), 2);

  client->SetPaused(true);
  EXPECT_EQ(framesDuring(150ms), 0);
  int drawn = host.frames;
  client->SetPaused(false);
  EXPECT_TRUE(WaitForFrames(drawn + 2));

  gQuintessentialViewIsCurrentlyShown = false;
  client->UnhookFromConsolidator();
  Sleep(50ms);
  const int sleeps = Sleeps();
  EXPECT_GT(sleeps, 0);
  EXPECT_EQ(framesDuring(1500ms), 0);
  EXPECT_EQ(Sleeps(), sleeps) << "hidden, the thread is not even woken";

  drawn = host.frames;
  gQuintessentialViewIsCurrentlyShown = true;
  client->HookIntoConsolidator();
  const auto shown = Clock::now();
  client->CreateDrawingThreadIfNecessary();
  ASSERT_TRUE(WaitForFrames(drawn + 1));
  EXPECT_LT(Clock::now() - shown, 500ms) << "and begins at once";
}

TEST_F(Drawing, EndsPromptlyWhateverItWaitsFor) {
  Show(60'000);
  ASSERT_TRUE(WaitForFrames(1));
  const auto before = Clock::now();
  QuintessentialInformationClient::EndDrawingThread();
  EXPECT_LT(Clock::now() - before, 500ms);
  EXPECT_LE(host.frames, 2);
}

/// Processes come, go, change and are clicked while the thread draws them; under the thread
/// sanitizer this finds what is not guarded. LURKWELL_CHURN_SECONDS makes it longer.
TEST_F(Drawing, ChurnAndDrawingDoNotMeet) {
  Show(2, [this] {
    for (auto& info : client->qipiList()) {
      if (info.texturesReady) continue;
      ASSERT_NE(info.iconImage, nullptr);
      info.iconTexture = info.labelTexture = 1;
      info.texturesReady = true;
    }
  });
  const char* wish = std::getenv("LURKWELL_CHURN_SECONDS");
  const auto end = Clock::now() + std::chrono::seconds(wish != nullptr ? std::atoi(wish) : 2);
  std::mt19937 random(1);
  std::vector<std::int32_t> living;
  std::int32_t next = 100;
  int rounds = 0;
  for (; Clock::now() < end; ++rounds) {
    for (int i = 0; i < 6; ++i) {
      const auto parent = living.empty() ? 1 : living[random() % living.size()];
      machine.processTable.Birth(next, "process", parent);
      living.push_back(next++);
      if (next > 60'000) next = 100;
    }
    for (std::size_t i = 0; i < living.size(); ++i)
      machine.processTable.Find(living[i])->UseCPU(static_cast<std::int64_t>(random() % 100));
    machine.processTable.Find(living[random() % living.size()])->SetName("renamed");
    while (living.size() > 60) {
      const auto which = static_cast<std::ptrdiff_t>(random() % living.size());
      machine.processTable.Death(living[static_cast<std::size_t>(which)]);
      living.erase(living.begin() + which);
    }
    machine.runLoop.RunFor(200);
    {
      const CriticalRegion::Guard guard(gQuintessentialMutex);
      EXPECT_GE(client->GetClosestPidToPoint({10, 10}), 0);
    }
    if (rounds % 20 == 7) client->SetPaused(true);
    if (rounds % 20 == 9) client->SetPaused(false);
    if (rounds % 20 == 15) client->NotifyPreferencesHaveBeenUpdated();
    if (rounds % 20 == 19) {
      gQuintessentialViewIsCurrentlyShown = false;
      client->UnhookFromConsolidator();
      gQuintessentialViewIsCurrentlyShown = true;
      client->HookIntoConsolidator();
      client->CreateDrawingThreadIfNecessary();
      machine.runLoop.RunFor(200);
    }
    machine.log.Clear();
    Sleep(1ms);
  }
  EXPECT_GT(host.frames, rounds / 10);
  const CriticalRegion::Guard guard(gQuintessentialMutex);
  EXPECT_EQ(client->qipiList().size(), living.size() + 2);
}

}  // namespace
}  // namespace lurkwell
