// The main window on a recording: what is shown at which moment, the time line, and that nothing
// can be done to what has been.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QStatusBar>
#include <QTest>
#include <chrono>
#include <memory>
#include <string>
#include <thread>

#include "app/ReplayBar.h"
#include "app/appDelegate.h"
#include "main_window/VQTarvMainWindowInfoSynch.h"
#include "platform/ApplicationQuitting.h"
#include "recording/RecordedMachine.h"
#include "support/EventLoop.h"

namespace lurkwell {
namespace {

class ReplayTest : public testing::Test {
 protected:
  /// Five minutes, a beat each two seconds: process 200 lives from beat 31 on to beat 60, and the
  /// processors are busy in beats 91 to 95.
  ReplayTest() {
    gApplicationQuitting = false;
    machine.processTable.TellFigures(true);
    machine.processTable.Birth(100, "busy");
    machine.hostStatistics.machine.processors = {{0, 0, 0}};
    const MachineInstallation installation(machine.services);
    InitializeProcessInformationConsolidator();
    std::string words;
    auto* recorder = Recorder::Create(path, {}, words);
    EXPECT_EQ(words, "");
    AddProcessInformationClient(recorder);
    for (int beat = 1; beat <= 150; ++beat) {
      if (beat == 31) machine.processTable.Birth(200, "passing", 100);
      if (beat == 61) machine.processTable.Death(200);
      const bool isBusy = beat > 90 && beat <= 95;
      machine.processTable.Find(100)->UseCPU(isBusy ? 1000 : 20);
      auto& processor = machine.hostStatistics.machine.processors.front();
      processor.busy += isBusy ? 1'900'000 : 50'000 + beat % 7;
      processor.idle += isBusy ? 100'000 : 1'950'000;
      machine.runLoop.RunFor(2000);
      while (recorder->Progress().waiting > 0) std::this_thread::yield();
    }
    EXPECT_TRUE(recorder->Close(std::chrono::minutes(1)).isClosed);
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyProcessInformationConsolidator();
  }

  bool IsShown(std::int32_t pid) {
    return delegate->mainWindow().controller().rows().Find(pid) != nullptr;
  }
  void Trigger(const char* action) {
    delegate->mainWindow().findChild<QAction*>(QLatin1String(action))->trigger();
    QApplication::processEvents();
  }

  const TemporaryFolder folder;
  const std::string path = folder / "day.lwr";
  SimulatedMachine machine;
  std::unique_ptr<vqAppDelegate> delegate;
};

TEST_F(ReplayTest, TheWindowShowsEachMomentAndDoesNothingToIt) {
  RecordingPlayer player(OpenRecording(path));
  ReplayRunLoop runLoop(machine.runLoop, player);
  RecordedProcessTable table(player);
  RecordedHostStatistics statistics(player);
  UnrecordedFigures costly;
  Machine services = MachineOf(machine, player.Clock(), runLoop, table, statistics, costly);
  const MachineInstallation installation(services);
  ASSERT_EQ(player.GoTo(1), "");
  delegate = std::make_unique<vqAppDelegate>(vqAppDelegate::Launch::kOfRecording);
  delegate->init();
  auto& window = delegate->mainWindow();
  auto* bar = new ReplayBar(player, runLoop, window);
  delegate->applicationDidFinishLaunching();
  delegate->doShowMainWindow();
  bar->GoTo(40);
  EXPECT_TRUE(IsShown(200));
  EXPECT_TRUE(window.windowTitle().toStdString().starts_with("day.lwr \u2013 2001-09-0"));
  // To and fro; a beat before its birth, one after its end.
  auto* line = bar->findChild<QSlider*>();
  for (const int place : {99, 39, 29, 58, 59, 61, 30, 0}) {
    line->setValue(place);
    EXPECT_EQ(player.Header().sequence, static_cast<std::uint64_t>(place + 1));
    EXPECT_EQ(IsShown(200), place >= 30 && place < 60) << place;
    EXPECT_TRUE(IsShown(100));
  }
  const auto shareOf = [](std::int32_t pid) {
    return std::get<double>(GetPIDPropertyTypedValue(pid, "pid_cpu_share"));
  };
  window.controller().addToKeysWeTrackForUI(InternKey("pid_cpu_share"));
  bar->NextPeak();
  EXPECT_GE(player.Header().sequence, 91u);
  EXPECT_LE(player.Header().sequence, 95u);
  EXPECT_NEAR(shareOf(100), 50, 0.1);
  bar->GoTo(20);
  EXPECT_NEAR(shareOf(100), 1, 0.1);
  bar->Step(-1);
  EXPECT_EQ(player.Header().sequence, 19u);
  EXPECT_NEAR(shareOf(100), 1, 0.1);
  bar->GoTo(140);
  bar->NextPeak();
  EXPECT_EQ(player.Header().sequence, 140u);
  EXPECT_EQ(window.statusBar()->currentMessage().toStdString(),
            "There is no later peak of processor use.");

  // A moment as it is typed; what says none changes nothing.
  auto* moment = bar->findChild<QLineEdit*>();
  const auto type = [&](const char* text) {
    moment->selectAll();
    QTest::keyClicks(moment, QLatin1String(text));
    QTest::keyClick(moment, Qt::Key_Return);
    return player.Header().sequence;
  };
  EXPECT_EQ(type("-20s"), 140u);
  EXPECT_EQ(type("-3m"), 60u);
  EXPECT_TRUE(IsShown(200));
  const auto shown = moment->text();
  for (const char* none : {"noon", "1999-01-01"}) {
    window.statusBar()->clearMessage();
    EXPECT_EQ(type(none), 60u);
    EXPECT_NE(window.statusBar()->currentMessage(), "");
    EXPECT_EQ(moment->text(), shown);
  }
  EXPECT_TRUE(IsShown(200));

  // Played, it goes on by itself, and ends at the end.
  bar->findChild<QComboBox*>()->setCurrentIndex(2);
  bar->Play(true);
  EXPECT_TRUE(SoonTrue([&] { return player.Header().sequence == 150; }));
  bar->Play(false);

  machine.log.Clear();
  ASSERT_TRUE(VQTarvMainWindowInfoSynch::SelectPID(100));
  for (const char* command :
       {"menu_process_quit_or_kill", "menu_process_halt", "menu_process_low_priority",
        "menu_process_kill_with_children", "menu_process_signal", "menu_process_scheduling"}) {
    window.statusBar()->clearMessage();
    Trigger(command);
    EXPECT_EQ(window.statusBar()->currentMessage().toStdString(),
              "This is a recording: nothing can be done to its processes.")
        << command;
  }
  Trigger("menu_file_record");
  const auto log = machine.log.Take();
  EXPECT_NE(log.find("The processes are not recorded."), std::string::npos);
  for (const char* access : {"Signals", "Scheduler", "NamedPipes", "Tools.Start"})
    EXPECT_EQ(log.find(access), std::string::npos) << log;
  delegate->applicationWillTerminate();
}

}  // namespace
}  // namespace lurkwell
