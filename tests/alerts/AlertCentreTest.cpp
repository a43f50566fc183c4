#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "alerts/AlertCentre.h"
#include "preferences/PreferenceArrays.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

/// The whole way from a rule's text to the log, the command and who listens.
class AlertCentreTest : public ConsolidatorTest, public AlertListener {
 protected:
  void SetUp() override {
    ::setenv("TZ", "UTC", 1);
    machine.processTable.TellFigures(true);
    for (std::int32_t pid = 200; pid < 300; ++pid) machine.processTable.Birth(pid, "make");
    SetMemory(200, 1);
    machine.tools.SetOutput("/bin/ps -Lww", "pid tt\n");
    machine.tools.SetOutput("/bin/ps 0 -o pid", "PID\n");
    machine.tools.SetOutput("/bin/ps 0 -o tt", "TT\n");
    machine.tools.SetOutput("/bin/ps -axww -o pid,tt", "PID TT\n200 s0\n201 s1\n");
    machine.tools.SetStuck("/bin/ps -Lww");
    Start();
    centre = std::make_unique<AlertCentre>();
    centre->AddListener(this);
  }
  void TearDown() override { centre.reset(); }

  void AlertHasBegun(const AlertOccurrence&) override { ++begun; }
  void AlertHasEnded(const AlertOccurrence&) override { ++ended; }

  void SetMemory(std::int32_t pid, std::int64_t mebibytes) {
    (*machine.processTable.Find(pid))["pid_rsz"] = mebibytes << 20;
  }
  void Run(int seconds) { machine.runLoop.RunFor(seconds * 1000); }
  std::string LogText() const {
    const auto& texts = machine.logFiles.Texts();
    return texts.empty() ? "" : texts.begin()->second;
  }
  /// Of the machine's log, the lines about commands.
  std::string Commands() {
    std::string lines;
    for (const auto& line : machine.log.Lines())
      if (line.find("Command") != line.npos) lines += line + '\n';
    machine.log.Clear();
    return lines;
  }

  std::unique_ptr<AlertCentre> centre;
  int begun = 0;
  int ended = 0;
};

TEST_F(AlertCentreTest, ARuleIsLoggedRunsItsCommandAndIsRemembered) {
  machine.processTable.Find(200)->SetName("evil\tname\n");
  centre->Add({"pid:200 mem>500M for 1m until mem<300M", "notify 'a b' \"$HOME\" \\; x", true});
  SetMemory(200, 600);
  Run(90);
  EXPECT_EQ(begun, 1);
  EXPECT_EQ(Commands(), "Tools.StartCommand [notify] [a b] [$HOME] [;] [x]\n");
  EXPECT_EQ(machine.tools.commandVariables[2], "LURKWELL_ALERT_PID=200");
  EXPECT_EQ(machine.tools.commandVariables[3], "LURKWELL_ALERT_NAME=evil\\011name\\012");
  EXPECT_EQ(machine.tools.commandVariables[4], "LURKWELL_ALERT_FIGURES=pid_rsz=629145600");
  SetMemory(200, 100);
  Run(600);
  EXPECT_EQ(ended, 1);
  // One line each, whatever the process is called.
  const auto log = LogText();
  EXPECT_EQ(std::ranges::count(log, '\n'), 3) << log;
  EXPECT_NE(log.find("\tbegan\tpid:200 mem>500M for 1m until mem<300M\t200\t"), log.npos) << log;
  EXPECT_NE(log.find("\tevil\\011name\\012\tpid_rsz=104857600\t"), log.npos) << log;
  // Too long a command is asked to end, and then ended; the rule says so.
  EXPECT_EQ(Commands(), "RunningCommand.Terminate\nRunningCommand.Kill\n");
  EXPECT_EQ(centre->Rules()[0].commandFailure->kind, AlertCommands::Failure::Kind::kTooLong);
  EXPECT_EQ(machine.tools.runningCommands, 0);

  centre.reset();
  centre = std::make_unique<AlertCentre>();
  ASSERT_EQ(centre->Rules().size(), 1u);
  EXPECT_EQ(centre->Rules()[0].setting.command, "notify 'a b' \"$HOME\" \\; x");
  SetMemory(200, 600);
  Run(90);
  EXPECT_EQ(centre->CountFiring(), 1u);
}

TEST_F(AlertCentreTest, AStormHasBounds) {
  machine.tools.commandStatus = std::nullopt;
  centre->Add({"name:make", "true", true});
  Run(10);
  EXPECT_EQ(begun, 100);
  EXPECT_EQ(machine.tools.runningCommands, 4);
  EXPECT_EQ(centre->Rules()[0].commandFailure->kind, AlertCommands::Failure::Kind::kLeftOut);
  Run(600);
  // Once each, for as long as they go on.
  EXPECT_EQ(begun, 100);
  for (std::int32_t pid = 300; pid < 1000; ++pid) {
    machine.processTable.Death(pid - 100);
    machine.processTable.Birth(pid, "make");
    if (pid % 100 == 0) Run(10);
  }
  EXPECT_EQ(centre->Occurrences().size(), AlertCentre::kMostOccurrences);
  centre->Remove(0);
  EXPECT_EQ(centre->CountFiring(), 0u);
  EXPECT_EQ(centre->Occurrences().front().ending, AlertOccurrence::Ending::kRuleChanged);
}

TEST_F(AlertCentreTest, WhatIsStoredIsNeverLost) {
  centre.reset();
  SetPrefArrayString("ALERT_RULES", 0, "RULE", "nmae:x");
  SetPrefArrayInt("ALERT_RULES", 1, "COMMAND", 5);
  for (int place = 2; place < 150; ++place)
    SetPrefArrayString("ALERT_RULES", place, "RULE", "name:x%C3%A4 for 1m");
  centre = std::make_unique<AlertCentre>();
  const auto rules = centre->Rules();
  ASSERT_EQ(rules.size(), kMostAlertRules);
  EXPECT_EQ(centre->CountLeftOut(), 50u);
  EXPECT_FALSE(centre->MayAdd());
  EXPECT_EQ(rules[0].error->position, 0u);
  EXPECT_TRUE(rules[1].setting.isDamaged);
  EXPECT_EQ(rules[2].setting.rule, "name:x\xC3\xA4 for 1m");
  EXPECT_NE(rules[2].watch, nullptr);
  auto changed = rules[2].setting;
  changed.isOn = false;
  centre->Change(2, changed);
  centre->Remove(1);
  EXPECT_EQ(GetPrefArrayCount("ALERT_RULES"), 149);
  centre.reset();
  SetPrefString("ALERT_RULES", "no list");
  centre = std::make_unique<AlertCentre>();
  EXPECT_TRUE(centre->Rules().empty());
}

TEST_F(AlertCentreTest, ARuleWaitsForTheColumnsOfPs) {
  centre->Add({"TT:s1", "", true});
  EXPECT_TRUE(centre->Rules()[0].error.has_value());
  centre.reset();
  centre = std::make_unique<AlertCentre>();
  Run(10);
  EXPECT_TRUE(centre->Rules()[0].error.has_value());
  machine.tools.SetStuck("/bin/ps -Lww", false);
  Run(10);
  EXPECT_FALSE(centre->Rules()[0].error.has_value());
  ASSERT_EQ(centre->Occurrences().size(), 1u);
  EXPECT_EQ(centre->Occurrences()[0].subject.process.pid, 201);
}

TEST_F(AlertCentreTest, ALogThatCannotBeWrittenIsSaidAndTriedAgain) {
  machine.logFiles.Refuse("No space left on device");
  centre->Add({"pid:200", "", true});
  Run(10);
  EXPECT_EQ(begun, 1);
  EXPECT_EQ(centre->LogProblem(), "No space left on device");
  machine.logFiles.Refuse("");
  machine.processTable.Death(200);
  Run(10);
  EXPECT_EQ(centre->LogProblem(), "");
  EXPECT_NE(LogText().find("process ended"), std::string::npos);
}

TEST(AlertCommand, IsSplitWithoutAShell) {
  using Words = std::vector<std::string>;
  EXPECT_EQ(SplitCommand("  a  b\t c\n"), (Words{"a", "b", "c"}));
  EXPECT_EQ(SplitCommand(R"(a"b c"d 'e\' \" "\"" '' ~ $(x) `y` | > *)"),
            (Words{"ab cd", "e\\", "\"", "\"", "", "~", "$(x)", "`y`", "|", ">", "*"}));
  EXPECT_EQ(SplitCommand("a \"b"), std::nullopt);
  EXPECT_EQ(SplitCommand(" "), Words{});
  for (const std::string text : {"plain", "100%", "\xC3\xA4%41\n\xFF", "%"})
    EXPECT_EQ(AlertTextStoredAs(StoredAlertText(text)), text);
}

}  // namespace
}  // namespace lurkwell
