// The eleven comparisons, by clicks on headers.
#include "main_window/MainWindowTest.h"

namespace lurkwell {
namespace {

class SortingTest : public MainWindowTest {
 protected:
  void Show(const char* key) { controller().addToKeysWeTrackForUI(InternKey(key)); }
};

TEST_F(SortingTest, EqualOnesAreOrderedByPidInTheDirectionOfTheSort) {
  auto& table = machine.processTable;
  for (const int pid : {40, 30, 20}) table.Birth(pid, "same");
  table.Birth(25, "Same");
  table.Birth(50, "finder");
  Open();
  ClickHeader("meta_name");
  EXPECT_EQ(Pids(), "50 0 1 20 25 30 40");
  ClickHeader("meta_name");
  EXPECT_EQ(Pids(), "40 30 25 20 1 0 50");
  ClickHeader("meta_pid");
  EXPECT_EQ(Pids(), "0 1 20 25 30 40 50") << "each column has a direction of its own";
  ClickHeader("meta_name");
  EXPECT_EQ(Pids(), "40 30 25 20 1 0 50");
  ClickHeader("meta_name");
  EXPECT_EQ(Pids(), "50 0 1 20 25 30 40");
}

TEST_F(SortingTest, TheIdleTaskCountsAsNothingUnlessTheUserWantsIt) {
  auto& table = machine.processTable;
  table.Birth(30, "busy");
  table.Birth(31, "busier");
  for (const int pid : {0, 30, 31}) table.Find(pid)->UseCPU(1);
  (*table.Find(0))["pid_vsz"] = 0x7000000000;
  (*table.Find(30))["pid_vsz"] = 0x20000000 + 5000;
  Open();
  const auto work = [&] {
    table.Find(0)->UseCPU(1900);
    table.Find(30)->UseCPU(200);
    table.Find(31)->UseCPU(400);
    Turn();
  };
  ClickHeader("internal_CPUPercent");
  work();
  EXPECT_EQ(Pids(), "31 30 1 0") << "descending is the first direction";
  EXPECT_EQ(Cell(3, 5), "95.0 %") << "it is shown as it is";
  EXPECT_EQ(gBiggestVSZ, 5000);
  ClickHeader("internal_MemGraph");
  EXPECT_EQ(Pids(), "30 31 1 0");
  SetPrefInt("MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE", 0);
  work();
  EXPECT_EQ(Pids(), "30 31 1 0");
  ClickHeader("internal_MemGraph");
  EXPECT_EQ(Pids(), "1 31 30 0");
  ClickHeader("internal_CPUPercent");
  EXPECT_EQ(Pids(), "0 31 30 1");
}

TEST_F(SortingTest, NumbersTimesAndSizesSortAsWhatTheyAre) {
  auto& table = machine.processTable;
  table.Birth(30, "a").UseCPU(100'000);
  table.Birth(31, "b").UseCPU(9'000);
  table.Birth(32, "c").UseCPU(20'500);
  (*table.Find(30))["pid_rsz"] = 900;
  (*table.Find(31))["pid_rsz"] = 2LL << 20;
  (*table.Find(32))["pid_rsz"] = 5LL << 32;
  table.Find(30)->entry.nice = 9;
  table.Find(31)->entry.nice = 10;
  table.Find(32)->entry.nice = -5;
  Open();
  for (const char* key : {"pid_rsz", "pid_p_nice"}) Show(key);
  Turn();
  ClickHeader("meta_active_time");
  EXPECT_EQ(Pids(), "30 32 31 1 0") << "of times and sizes the largest come first";
  ClickHeader("pid_rsz");
  EXPECT_EQ(Pids(), "32 31 30 1 0");
  ClickHeader("pid_rsz");
  EXPECT_EQ(Pids(), "0 1 30 31 32");
  ClickHeader("pid_p_nice");
  EXPECT_EQ(Pids(), "32 0 1 30 31");
}

TEST_F(SortingTest, ApplicationsAndMarkedProcessesComeFirst) {
  auto& table = machine.processTable;
  for (const auto& [pid, name] :
       {std::pair(30, "zeta"), std::pair(31, "beta"), std::pair(32, "alpha")})
    table.Birth(pid, name);
  machine.processManager.Launch({1, 30}, 30, "Zeta");
  machine.processManager.Launch({1, 31}, 31, "beta");
  Open();
  ClickHeader("meta_pid");
  ClickHeader("internal_Icon");
  EXPECT_EQ(Pids(), "31 30 32 0 1");
  ClickHeader("internal_Icon");
  EXPECT_EQ(Pids(), "1 0 32 30 31");
  Select({32});
  Choose("menu_process_high_priority");
  ClickHeader("internal_Indicator");
  EXPECT_EQ(Pids(), "32 31 30 0 1");
}

TEST_F(SortingTest, MissingValuesComeLastAndHexadecimalColumnsDoNotSort) {
  auto& table = machine.processTable;
  for (const int pid : {30, 31, 32, 33}) table.Birth(pid, "p" + std::to_string(pid));
  machine.tools.SetOutput("/bin/ps -Lww", "RSZ SESS WCHAN\n");
  machine.tools.SetOutput("/bin/ps 0 -o WCHAN", "WCHAN\n");
  machine.tools.SetOutput("/bin/ps -axww -o pid,WCHAN",
                          "PID WCHAN\n30 pipe_r\n31 12\n32 -\n33 0000000000000004\n");
  machine.tools.SetOutput("/bin/ps 0 -o RSZ", "RSZ\n");
  machine.tools.SetOutput("/bin/ps 0 -o SESS", "SESS\n");
  machine.tools.SetOutput("/bin/ps -axww -o pid,RSZ", "  PID RSZ\n30 50\n32 7\n33 900\n");
  Open();
  for (const char* key : {"RSZ", "SESS", "WCHAN"}) Show(key);
  // In the first ps is started.
  Turn();
  Turn();
  ClickHeader("RSZ");
  const std::string order = "33 30 32 31 1 0";
  EXPECT_EQ(Pids(), order);
  EXPECT_EQ(Cell(3, ColumnOf("RSZ")), "…") << "not 0";
  EXPECT_EQ(Cell(5, ColumnOf("RSZ")), "") << "ps knows no idle task";
  ClickHeader("RSZ");
  EXPECT_EQ(Pids(), "32 30 33 0 1 31") << "last in this direction, too";
  ClickHeader("RSZ");
  ClickHeader("SESS");
  EXPECT_EQ(Pids(), order);
  ClickHeader("WCHAN");
  EXPECT_EQ(Pids(), "31 32 33 30 0 1") << "texts behind numbers";
  EXPECT_EQ(Cell(3, ColumnOf("WCHAN")) + Cell(2, ColumnOf("WCHAN")), "pipe_r0000000000000004");
  ClickHeader("SESS");
  EXPECT_EQ(controller().sortColumn(), InternKey("SESS"));
}

TEST_F(SortingTest, BarsWithoutAValueComeLastInBothDirections) {
  auto& table = machine.processTable;
  for (const int pid : {30, 31, 32}) table.Birth(pid, "p");
  Open();
  Turn();
  const auto forget = [&] {
    auto& row = *controller().rows().Find(31);
    row.Set(kPidVsz, Missing::kNotAllowed);
    row.Set(kInternalCpuUsage, Missing::kNotYetKnown);
    controller().setNeedsResort();
    controller().commitChanges();
  };
  for (const char* bar : {"internal_MemGraph", "internal_CPUPercent"}) {
    for (const char* direction : {"the first", "the other"}) {
      ClickHeader(bar);
      forget();
      EXPECT_TRUE(Pids().ends_with(" 31")) << bar << ' ' << direction << ": " << Pids();
    }
  }
}

TEST_F(SortingTest, TheRememberedSortColumnIsMadeToFit) {
  SetPrefInt("MAIN_WINDOW_SORT_COLUMN_INDEX", 99);
  Open();
  EXPECT_EQ(controller().sortColumn(), kMetaPid) << "the first one";
}

}  // namespace
}  // namespace lurkwell
