#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <future>
#include <map>
#include <memory>
#include <thread>
#include <vector>

#include "platform/Mutex.h"
#include "platform/linux/ReplaceableThread.h"

namespace lurkwell {
namespace {

using namespace std::chrono_literals;

/// What an owner shares with its thread: pids to be read, and those that were; a reading of one
/// that is stuck waits until it is let go.
struct Readings {
  void Serve(ReplaceableThread::Place place) {
    MutexLock lock(thread.mutex);
    for (;;) {
      thread.Wait(lock, place, [this] { return !wanted.empty(); });
      if (thread.IsOver(place)) return;
      const int pid = wanted.front();
      wanted.pop_front();
      std::shared_future<void> gate;
      if (stuck.contains(pid)) gate = stuck[pid].get_future().share();
      const auto read = [&gate] {
        if (gate.valid()) gate.wait();
      };
      if (!thread.Read(lock, place, {pid, 1}, read)) return;
      done.push_back(pid);
    }
  }

  ReplaceableThread thread{{50ms, 1500ms, 2}};
  std::deque<int> wanted;
  std::vector<int> done;
  std::map<int, std::promise<void>> stuck;
};

/// Whether it becomes true inside the lock, within some seconds.
bool Comes(Readings& readings, const auto& condition) {
  for (int i = 0; i < 500; ++i, std::this_thread::sleep_for(10ms)) {
    const MutexLock lock(readings.thread.mutex);
    if (condition()) return true;
  }
  return false;
}

TEST(ReplaceableThread, IsGivenUpWithAReadingThatHangs) {
  auto readings = std::make_shared<Readings>();
  auto& all = *readings;
  const auto ask = [&](int pid) {
    all.wanted.push_back(pid);
    all.thread.Notify();
  };
  const auto resting = [&](int pid) { return all.thread.IsResting({pid, 1}); };
  {
    const MutexLock lock(all.thread.mutex);
    all.stuck[2];
    all.stuck[4];
    ASSERT_TRUE(all.thread.Ensure(readings));
    for (const int pid : {2, 3, 4}) ask(pid);
  }
  // Another one takes the place of the first, and hangs in its turn; a third there is not.
  EXPECT_TRUE(Comes(all, [&] { return !all.thread.Ensure(readings); }));
  {
    const MutexLock lock(all.thread.mutex);
    EXPECT_EQ(all.done, std::vector{3});
    EXPECT_TRUE(resting(2) && resting(4));
    EXPECT_FALSE(resting(3));
    all.stuck[2].set_value();
    ask(5);
  }
  EXPECT_TRUE(Comes(all, [&] { return all.thread.Ensure(readings); }));
  EXPECT_TRUE(Comes(all, [&] { return all.done.size() == 2; }));
  // What hung has its rest behind it some time; what hangs is left alone.
  EXPECT_TRUE(resting(2));
  EXPECT_TRUE(Comes(all, [&] { return !resting(2); }));
  EXPECT_TRUE(resting(4));
  EXPECT_EQ(all.done, (std::vector{3, 5})) << "an answer that comes too late is none";
  // The owner's end waits for none that hangs, and takes nothing away from it.
  {
    const MutexLock lock(all.thread.mutex);
    all.stuck[6];
    ask(6);
  }
  EXPECT_TRUE(Comes(all, [&] { return all.wanted.empty(); }));
  all.thread.End();
  auto gates = std::move(all.stuck);
  std::weak_ptr<Readings> left = readings;
  readings.reset();
  EXPECT_FALSE(left.expired());
  for (const int pid : {4, 6}) gates[pid].set_value();
  for (int i = 0; i < 500 && !left.expired(); ++i) std::this_thread::sleep_for(10ms);
  EXPECT_TRUE(left.expired());
}

}  // namespace
}  // namespace lurkwell
