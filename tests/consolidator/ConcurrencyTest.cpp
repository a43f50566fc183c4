// Another thread reads values and lists while the heart beats.
#include <atomic>
#include <thread>

#include "consolidator/PSHeaders.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

using ConcurrencyTest = ConsolidatorTest;

TEST_F(ConcurrencyTest, AReaderOnAnotherThreadSeesWholeProcessesOnly) {
  for (int pid = 100; pid < 200; ++pid) machine.processTable.Birth(pid, "churn");
  Start();
  Add("client", 20).Needs({"pid_p_comm", "meta_name"});
  std::atomic<bool> stop{false};
  std::atomic<int> complete{0};
  int counted = 0;
  std::thread reader([&] {
    while (!stop) {
      for (const auto pid : PidBlob()) {
        char name[64];
        char number[64];
        bool found = false;
        if (!GetPIDPropertyValue(pid, "meta_name", name, sizeof name, &found)) continue;
        const std::string expected = pid == 0 ? "kernel_task" : pid == 1 ? "launchd" : "churn";
        if (name[0] != '\0') {
          EXPECT_EQ(name, expected);
        }
        if (GetPIDPropertyValue(pid, "meta_pid", number, sizeof number, &found)) {
          EXPECT_EQ(number, std::to_string(pid));
        }
        // None of these may be the one that looks a record up beside the heart.
        IncrementPidsKillCount(pid);
        if (pid == 1) ++counted;
        if (GetPidsStartStamp(pid) != 0) {
          EXPECT_GE(GetPidsKillCount(pid), 0);
        }
        EXPECT_EQ(FindPSHeader("TIME"), -1);
        ++complete;
      }
    }
  });
  int beat = 0;
  for (; beat < 500 || (complete < 1000 && beat < 100'000); ++beat) {
    machine.processTable.Churn(30);
    machine.runLoop.RunFor(20);
    IncrementPidsKillCount(1);
    told.Clear();
    machine.log.Clear();
    std::this_thread::yield();
  }
  stop = true;
  reader.join();
  EXPECT_GT(counted, 0) << "the reader never came in";
  EXPECT_EQ(GetPidsKillCount(1), counted + beat) << "each counted, on whatever thread";
}

}  // namespace
}  // namespace lurkwell
