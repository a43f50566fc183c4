#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "exporter/Collector.h"
#include "exporter/MetricText.h"
#include "platform/simulated/SimulatedMachine.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kSecond = 1'000'000;

class CollectorTest : public ::testing::Test {
 protected:
  CollectorTest() {
    machine.processTable.TellFigures(true);
    Find(1)["pid_vsz"] = 1 << 20;
    // As on a machine that swaps.
    machine.hostStatistics.machine.memory = MachineMemory{1 << 30, 1 << 29, 1 << 20, 1 << 20};
    machine.hostStatistics.machine.modes = ProcessorModes{10 * kSecond, 0, 5 * kSecond};
  }

  SimulatedProcess& Find(std::int32_t pid) { return *machine.processTable.Find(pid); }

  SimulatedProcess& Birth(std::int32_t pid, std::string_view name, std::string_view unit = {},
                          std::string_view owner = "user", std::int32_t parent = 1) {
    auto& process = machine.processTable.Birth(pid, name, parent);
    process["pid_vsz"] = 1 << 20;
    process["pid_threads"] = 1;
    process["pid_rsz"] = 4096;
    process.owner = owner;
    process.texts.Set(FigureCalled("pid_owner"), owner);
    if (unit.empty()) return process;
    process.texts.Set(FigureCalled("pid_unit"), unit);
    process.texts.Set(FigureCalled("pid_cgroup"), "/system.slice/" + std::string(unit));
    return process;
  }

  void Use(std::int32_t pid, std::int64_t user, std::int64_t read) {
    Find(pid)["pid_user_time"] += user;
    Find(pid)["pid_disk_read"] += read;
  }

  Collector& TheCollector() {
    if (!mCollector)
      mCollector.emplace(Collector::Sources{machine.processTable, machine.hostStatistics,
                                            machine.costlyFigures, machine.clock},
                         rules);
    return *mCollector;
  }

  /// Reads, and keeps what was read.
  void Scrape() { snapshot = *TheCollector().Read(); }

  const GroupFigures* Group(GroupKind kind, std::string_view name) const {
    const auto& groups = snapshot.kinds[static_cast<std::size_t>(kind)].groups;
    const auto found = std::ranges::find(groups, name, &GroupFigures::name);
    return found != groups.end() ? &*found : nullptr;
  }
  const GroupFigures& Program(std::string_view name) const {
    static const GroupFigures kNone;
    const auto* group = Group(GroupKind::kProgram, name);
    EXPECT_NE(group, nullptr) << name;
    return group != nullptr ? *group : kNone;
  }

  SimulatedMachine machine;
  GroupRules rules;
  Snapshot snapshot;

 private:
  std::optional<Collector> mCollector;
};

TEST_F(CollectorTest, CountersStayWhenProcessesEndAndPidsComeRound) {
  Birth(10, "worker");
  Birth(11, "worker");
  Use(10, 3 * kSecond, 1000);
  Use(11, 4 * kSecond, 500);
  Scrape();
  EXPECT_EQ(Program("worker").userTime, 7 * kSecond);
  EXPECT_EQ(Program("worker").processes, 2);

  machine.processTable.Death(11);
  Use(10, kSecond, 0);
  Scrape();
  EXPECT_EQ(Program("worker").userTime, 8 * kSecond);
  EXPECT_EQ(Program("worker").diskRead, 1500);

  // The same pid, another process, which has used less.
  Birth(11, "worker");
  Use(11, kSecond, 10);
  Scrape();
  EXPECT_EQ(Program("worker").userTime, 9 * kSecond);
  EXPECT_EQ(Program("worker").diskRead, 1510);

  // It becomes another program: what it had used stays.
  Find(11).SetName("other-one");
  Use(11, 2 * kSecond, 0);
  Scrape();
  EXPECT_EQ(Program("worker").userTime, 9 * kSecond);
  EXPECT_EQ(Program("other-one").userTime, 2 * kSecond);

  machine.processTable.Death(10);
  Scrape();
  EXPECT_EQ(Program("worker").userTime, 9 * kSecond);
  EXPECT_EQ(Program("worker").processes, 0);
  EXPECT_EQ(Program("worker").resident, 0);
  EXPECT_FALSE(Program("worker").oldestStart.has_value());
}

TEST_F(CollectorTest, WhatAParentTakesOverFromAChildIsCountedOnce) {
  Birth(10, "parent");
  Birth(11, "child", {}, "user", 10);
  Scrape();
  Use(11, 0, 5000);
  Scrape();
  machine.processTable.Death(11);
  Use(10, 0, 5000 + 70);
  Scrape();
  EXPECT_EQ(Program("child").diskRead, 5000);
  EXPECT_EQ(Program("parent").diskRead, 70);
  Use(10, 0, 1);
  Scrape();
  EXPECT_EQ(Program("parent").diskRead, 71);
}

TEST_F(CollectorTest, WhatMayNotBeReadIsAbsent) {
  Birth(10, "mixed");
  Birth(11, "mixed", {}, "root");
  Birth(12, "mine");
  Use(10, 0, 100);
  Use(12, 0, 200);
  Find(12)["pid_pss"] = 300;
  Scrape();
  Scrape();
  EXPECT_FALSE(Program("mixed").diskRead.has_value());
  EXPECT_FALSE(Program("mixed").proportional.has_value());
  EXPECT_EQ(Program("mixed").resident, 8192);
  EXPECT_EQ(Program("mine").diskRead, 200);
  EXPECT_EQ(Program("mine").proportional, 300);
  const auto text = MetricText(snapshot, MetricFormat::kPrometheus, "1");
  EXPECT_EQ(text.find("disk_read_bytes_total{kind=\"program\",group=\"mixed\"}"),
            std::string::npos);
  EXPECT_NE(text.find("disk_read_bytes_total{kind=\"program\",group=\"mine\"} 200\n"),
            std::string::npos);
}

TEST_F(CollectorTest, FiguresOfUnitsComeFromTheirControlGroups) {
  Birth(10, "a", "cron.service");
  Birth(11, "b", "cron.service");
  const auto tell = [this](std::int32_t pid, std::int64_t read, std::int64_t received) {
    Find(pid)["pid_unit_disk_read"] = read;
    Find(pid)["pid_unit_net_received"] = received;
  };
  tell(10, 1000, 70);
  tell(11, 1000, 70);
  Scrape();
  EXPECT_EQ(Group(GroupKind::kUnit, "cron.service")->diskRead, 1000);
  tell(10, 1500, 90);
  tell(11, 1500, 90);
  Scrape();
  // Connections are told as of the scrape before.
  Scrape();
  EXPECT_EQ(Group(GroupKind::kUnit, "cron.service")->diskRead, 1500);
  EXPECT_EQ(Group(GroupKind::kUnit, "cron.service")->received, 90);
  // Whoever is asked for the group's figures ends.
  machine.processTable.Death(10);
  machine.processTable.Death(11);
  Birth(12, "a", "cron.service");
  tell(12, 1600, 15);
  Scrape();
  EXPECT_EQ(Group(GroupKind::kUnit, "cron.service")->diskRead, 1600);
  // Started anew, with a control group of the same name that begins at 0.
  machine.processTable.Death(12);
  Scrape();
  Birth(13, "a", "cron.service");
  tell(13, 25, 40);
  Scrape();
  Scrape();
  EXPECT_EQ(Group(GroupKind::kUnit, "cron.service")->diskRead, 1625);
  EXPECT_GE(*Group(GroupKind::kUnit, "cron.service")->received, 90);
  EXPECT_EQ(Group(GroupKind::kUnit, "cron.service")->processes, 1);
}

TEST_F(CollectorTest, GroupsBeyondTheBoundAreSummedUp) {
  rules.limit = 2;
  rules.kinds[static_cast<std::size_t>(GroupKind::kUser)].patterns = {"us*"};
  Birth(10, "big", {}, "root");
  Birth(11, "bigger");
  Birth(12, "small");
  Birth(13, "smaller");
  Use(10, 50 * kSecond, 0);
  Use(11, 60 * kSecond, 0);
  Use(12, 2 * kSecond, 0);
  Use(13, kSecond, 0);
  Scrape();
  const auto& programs = snapshot.kinds[static_cast<std::size_t>(GroupKind::kProgram)];
  EXPECT_EQ(programs.groups.size(), 3u);
  EXPECT_EQ(programs.leftOut, 3);
  EXPECT_EQ(Program("big").userTime, 50 * kSecond);
  EXPECT_EQ(Program("other").userTime, 3 * kSecond);
  EXPECT_EQ(Group(GroupKind::kUser, "root"), nullptr);
  EXPECT_EQ(Group(GroupKind::kUser, "other")->userTime, 50 * kSecond);

  // Its place is another's when it has been empty for long; what it counted is kept.
  machine.processTable.Death(10);
  machine.processTable.Death(13);
  Scrape();
  EXPECT_EQ(Group(GroupKind::kProgram, "small"), nullptr);
  machine.clock.Advance(GroupBook::kKeptWithoutProcesses);
  Scrape();
  EXPECT_EQ(Group(GroupKind::kProgram, "big"), nullptr);
  EXPECT_EQ(Program("small").userTime, 0);
  EXPECT_EQ(Program("other").userTime, 3 * kSecond);
  machine.processTable.Death(11);
  machine.processTable.Death(12);
  machine.clock.Advance(GroupBook::kShownWithoutProcesses);
  Birth(14, "big");
  Use(14, kSecond, 0);
  Scrape();
  EXPECT_EQ(Program("big").userTime, 51 * kSecond);
}

TEST_F(CollectorTest, ThreadsOfTheKernelAreOneGroupAndLongNamesAreWhole) {
  Birth(2, "kthreadd", {}, "root")["pid_vsz"] = 0;
  Birth(30, "kworker/0:1-eve", {}, "root", 2)["pid_vsz"] = 0;
  Birth(31, "kworker/1:0", {}, "root", 2)["pid_vsz"] = 0;
  // A helper of the kernel is a program.
  Birth(32, "modprobe", {}, "root", 2);
  Birth(40, "prometheus-node")
      .texts.Set(FigureCalled("pid_command_line"),
                 "/usr/bin/prometheus-node-exporter --secret=swordfish");
  Scrape();
  EXPECT_EQ(Program("[kernel]").processes, 3);
  EXPECT_EQ(Program("modprobe").processes, 1);
  EXPECT_EQ(Program("prometheus-node-exporter").processes, 1);
  EXPECT_EQ(MetricText(snapshot, MetricFormat::kPrometheus, "1").find("swordfish"),
            std::string::npos);
}

TEST_F(CollectorTest, NamesOfAnyBytesGiveLabelsThatAreUnique) {
  Birth(10, "a\xff\"\\\n");
  Birth(11, std::string("a\xff\"\\\n"));
  Birth(12, "a\\377\"\\\\012");
  const std::string endless(300, 'u');
  for (int i = 0; i < 2; ++i) {
    const auto unit = endless + std::to_string(i) + ".service";
    Birth(20 + i, "x", unit);
  }
  Scrape();
  const auto* shortened = Group(GroupKind::kUnit, std::string(127, 'u') + "…");
  ASSERT_NE(shortened, nullptr);
  EXPECT_EQ(shortened->processes, 2);
  const auto text = MetricText(snapshot, MetricFormat::kOpenMetrics, "1");
  EXPECT_NE(text.find("lurkwell_group_processes{kind=\"program\",group=\"a\\\\377\\\"\\\\\\\\012\"}"
                      " "),
            std::string::npos)
      << text;
  EXPECT_TRUE(text.ends_with("# EOF\n"));
  // Families of counters are named without what their samples end in.
  EXPECT_NE(text.find("# TYPE lurkwell_group_cpu_seconds counter\n"), std::string::npos);
  EXPECT_NE(text.find("# UNIT lurkwell_group_cpu_seconds seconds\n"), std::string::npos);
  EXPECT_NE(text.find("\nlurkwell_machine_cpu_seconds_total{mode=\"system\"} 5\n"),
            std::string::npos);
}

TEST_F(CollectorTest, AReadingThatFailsIsSaidAndLosesNothing) {
  Birth(10, "worker");
  Use(10, kSecond, 0);
  Scrape();
  machine.processTable.FailReadings(1);
  EXPECT_FALSE(TheCollector().Read().has_value());
  Use(10, kSecond, 0);
  Scrape();
  EXPECT_EQ(Program("worker").userTime, 2 * kSecond);
}

}  // namespace
}  // namespace lurkwell
