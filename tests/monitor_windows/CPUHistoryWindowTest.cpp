// CPU history windows over a simulated machine: what they measure, show, remember and survive.
#include <QApplication>
#include <QScreen>
#include <QTest>

#include "monitor_windows/CPUHistoryWindow.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

using Client = CPUHistoryWindowInformationClient;

/// A client always wants the names of all, as the watchdog does.
class CPUHistoryWindowTest : public ConsolidatorTest {
 protected:
  void Start() {
    ConsolidatorTest::Start();
    Add("watchdog", 50).Needs({"meta_name", "meta_kind"});
    Turn(100);
  }

  /// A process with a window of its own, and the first point, which is always 0.
  Client* Open(std::int32_t pid, const WindowRect* rect = nullptr) {
    const auto uuid = Uuid::Fresh();
    auto* client = new Client(&uuid, 1000, pid, rect != nullptr ? *rect : kBounds, mTracks);
    AddProcessInformationClient(client);
    Turn(1000);
    return client;
  }

  void Turn(std::int64_t milliseconds = 1000) {
    machine.runLoop.RunFor(milliseconds);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
  }

  static std::string Percent(const Client* client) {
    return client->CurrentPercentageWindow()->Text().toStdString();
  }

  static constexpr WindowRect kBounds{200, 150, 350, 220};
  bool mTracks = false;
};

TEST_F(CPUHistoryWindowTest, AProcessWithKnownUseGivesTheValuesLabelsAndScale) {
  auto& worker = machine.processTable.Birth(300, "worker");
  worker.UseCPU(77'000);
  Start();
  auto* client = Open(300);
  const auto last = [&] { return client->Graph().Values().back(); };
  EXPECT_EQ(last(), 0.0) << "whatever it used before";
  EXPECT_EQ(Percent(client), "\u00A00%");
  worker.UseCPU(200);
  Turn();
  EXPECT_DOUBLE_EQ(last(), 0.1);
  EXPECT_EQ(Percent(client), "10%");
  EXPECT_EQ(client->Graph().ScalePercent(), 10);
  worker.UseCPU(300);
  Turn();
  EXPECT_DOUBLE_EQ(last(), 0.2);
  EXPECT_EQ(Percent(client), "20%");
  EXPECT_EQ(client->HighWaterMarkWindow()->Text(), QLatin1String("10%"))
      << "labels are drawn before the point";
  EXPECT_EQ(client->CurrentPercentageWindow()->y(), 3);
  Turn();
  EXPECT_EQ(client->HighWaterMarkWindow()->Text(), QLatin1String("20%"));
  EXPECT_EQ(Percent(client), "10%");
  EXPECT_EQ(client->CurrentPercentageWindow()->y(), 29);
  EXPECT_EQ(client->NameWindow()->Text(), QLatin1String("worker"));
  EXPECT_EQ(client->NameWindow()->geometry().topLeft(), QPoint(1, 1));
  EXPECT_DOUBLE_EQ(client->NameWindow()->Alpha(), 0.6);
  EXPECT_DOUBLE_EQ(client->IconWindow()->Alpha(), 0.2);
  EXPECT_DOUBLE_EQ(client->CurrentPercentageWindow()->Alpha(), 0.7);
}

TEST_F(CPUHistoryWindowTest, AnUpdateChangesTwoColumnsOfWhatIsSeenAndMovesTheRest) {
  SetPrefInt("CPU_HISTORY_WINDOW_USE_RELATIVE", 0);
  for (const char* alpha : {"NAME_ALPHA", "HIGHWATERMARK_ALPHA", "CURRENT_PERCENTAGE_ALPHA"})
    SetPrefDouble((std::string("DEFAULT_CPU_HISTORY_") + alpha).c_str(), 0.0);
  auto& worker = machine.processTable.Birth(300, "worker");
  Start();
  auto* client = Open(300);
  const auto seen = [&] {
    return client->Window()->ContentWidget().grab().toImage().convertToFormat(QImage::Format_RGB32);
  };
  for (int i = 0; i < 5; ++i) worker.UseCPU(900), Turn();
  const auto before = seen();
  EXPECT_EQ(before.size(), QSize(150, 70));
  worker.UseCPU(100);
  Turn();
  const auto after = seen();
  EXPECT_EQ(after.copy(0, 0, 148, 70), before.copy(1, 0, 148, 70));
  const int y = client->Graph().ScaleToInteger(client->Graph().Values().back());
  const QRgb line = QColor::fromRgba64(16384, 65535, 16384).rgb();
  EXPECT_EQ(after.pixel(149, y), line);
  EXPECT_EQ(after.pixel(149, y + 1), line);
  EXPECT_EQ(after.pixel(149, y + 2), QColor::fromRgba64(0, 1024, 0).rgb());
  EXPECT_EQ(after.pixel(0, 0), QColor::fromRgba64(0, 1024, 0).rgb());
}

TEST_F(CPUHistoryWindowTest, DescendantsComeAndGoWithoutJumps) {
  auto& table = machine.processTable;
  mTracks = true;
  SetPrefDouble("CPU_HISTORY_WINDOW_DEFAULT_FILTER", 0.0);
  SetPrefInt("CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS", 1);
  auto& shell = table.Birth(300, "shell");
  table.Birth(301, "make", 300).UseCPU(50'000);
  table.Birth(302, "compiler", 301).UseCPU(60'000);
  Start();
  auto* client = Open(300);
  Turn();
  const auto turn = [&] {
    Turn();
    return client->Graph().Values().back();
  };
  EXPECT_DOUBLE_EQ(turn(), 0.0);
  shell.UseCPU(100);
  table.Find(301)->UseCPU(50);
  table.Find(302)->UseCPU(250);
  EXPECT_NEAR(turn(), 0.4, 1e-9);
  EXPECT_NEAR(client->Graph().OwnValues().back(), 0.1, 1e-9);
  table.Birth(303, "linker", 301).UseCPU(300);
  EXPECT_NEAR(turn(), 0.0, 1e-9) << "its figures have not been asked for yet";
  EXPECT_NEAR(turn(), 0.3, 1e-9) << "a new one's time counts from its birth";
  table.Death(302);
  shell.UseCPU(200);
  EXPECT_NEAR(turn(), 0.2, 1e-9) << "the minute it had used is not taken back";
  // With make gone, the linker has another parent.
  table.Death(301);
  shell.UseCPU(150);
  EXPECT_NEAR(turn(), 0.15, 1e-9);
  EXPECT_NEAR(client->Graph().OwnValues().back(), 0.15, 1e-9);
  EXPECT_FALSE(client->NeedPidProcProperty(303, "meta_active_time"));
  EXPECT_TRUE(client->NeedPidProcProperty(300, "pid_parent_pid"));
  EXPECT_FALSE(client->NeedPidProcProperty(300, "pid_vsz"));
}

TEST_F(CPUHistoryWindowTest, WhatAnotherClientOnceReadIsNoBaseForDescendants) {
  auto& table = machine.processTable;
  mTracks = true;
  SetPrefDouble("CPU_HISTORY_WINDOW_DEFAULT_FILTER", 0.0);
  table.Birth(300, "shell");
  table.Birth(301, "make", 300).UseCPU(50'000);
  Start();
  auto& reader = Add("reader", 50).Needs({"meta_active_time"});
  Turn(200);
  reader.Needs({});
  Turn(200);
  table.Find(301)->UseCPU(60'000);
  auto* client = Open(300);
  Turn(5000);
  EXPECT_EQ(std::ranges::max(client->Graph().Values()), 0.0);
}

TEST_F(CPUHistoryWindowTest, AnApplicationHasItsIconAndItsOpacity) {
  machine.processTable.Birth(300, "editor");
  machine.processManager.Launch({0, 9}, 300, "Editor");
  machine.iconServices.SetColour({0, 9}, 0xFF3366CC);
  Start();
  auto* client = Open(300);
  Turn();
  EXPECT_EQ(client->NameWindow()->Text(), QLatin1String("Editor"));
  EXPECT_DOUBLE_EQ(client->IconWindow()->Alpha(), 0.7);
  EXPECT_EQ(client->IconWindow()->Picture().toImage().pixel(5, 5), 0xFF3366CCU);
  EXPECT_EQ(client->IconWindow()->geometry(), QRect(4, 26, 40, 40));
}

TEST_F(CPUHistoryWindowTest, TheEndOfTheProcessKeepsTheRecordAndClosingForgetsIt) {
  const char* const kind = kCPUHistoryWindowKind;
  machine.processTable.Birth(300, "worker");
  machine.processTable.Birth(301, "other");
  Start();
  CreateCPUHistoryWindow(250, 299, nullptr, nullptr);
  EXPECT_EQ(GetPrefArrayCount(kind), 0) << "no such process";
  CreateCPUHistoryWindow(250, 300, nullptr, nullptr);
  CreateCPUHistoryWindow(250, 301, nullptr, nullptr);
  Turn(500);
  ASSERT_EQ(ListCPUHistoryWindows().size(), 2U);
  ASSERT_EQ(GetPrefArrayCount(kind), 2);
  char name[64];
  GetPrefArrayString(kind, 1, "PROCESS_NAME", name, sizeof name, false, nullptr);
  EXPECT_STREQ(name, "other");
  EXPECT_EQ(GetPrefArrayInt(kind, 0, "WINDOW_RECT_LEFT", false, 0), 100);
  EXPECT_EQ(ReadRememberedRect(kind, 1), (WindowRect{120, 220, 270, 290}))
      << "next in the cascade, but not on the first one";
  for (auto* widget : QApplication::topLevelWidgets())
    if (widget->windowTitle() == QLatin1String("300")) widget->move(widget->pos() + QPoint(5, 7));
  machine.processTable.Death(300);
  Turn(1000);
  EXPECT_EQ(ListCPUHistoryWindows().size(), 1U);
  EXPECT_EQ(GetPrefArrayInt(kind, 0, "WINDOW_RECT_LEFT", false, 0), 105);
  EXPECT_EQ(GetPrefArrayInt(kind, 0, "WINDOW_RECT_BOTTOM", false, 0), 207);
  for (auto* widget : QApplication::topLevelWidgets())
    if (widget->windowTitle() == QLatin1String("301")) widget->close();
  Turn(1000);
  EXPECT_EQ(ListCPUHistoryWindows().size(), 0U);
  ASSERT_EQ(GetPrefArrayCount(kind), 1);
  GetPrefArrayString(kind, 0, "PROCESS_NAME", name, sizeof name, false, nullptr);
  EXPECT_STREQ(name, "worker");
}

TEST_F(CPUHistoryWindowTest, ABeatWithoutAReadingIsNoDipAndNoSpike) {
  SetPrefDouble("CPU_HISTORY_WINDOW_DEFAULT_FILTER", 0.0);
  auto& worker = machine.processTable.Birth(300, "worker");
  Start();
  auto* client = Open(300);
  worker.UseCPU(200);
  Turn();
  const auto before = client->Graph().Values();
  EXPECT_DOUBLE_EQ(before.back(), 0.2);
  helper->SetAnswer([](std::string_view) { return ""; });
  worker.UseCPU(200);
  Turn();
  EXPECT_EQ(client->Graph().Values(), before);
  helper->SetAnswer([this](std::string_view request) { return machine.helper.Answer(request); });
  worker.UseCPU(200);
  Turn();
  EXPECT_DOUBLE_EQ(client->Graph().Values().back(), 0.2) << "over both beats";
}

TEST_F(CPUHistoryWindowTest, AWindowSaysWhoseProcessItFollowsAndCanBeResized) {
  auto& worker = machine.processTable.Birth(300, "worker-with-a-na");
  worker.owner = "ann";
  worker.commandLine = "/bin/worker-with-a-name-that-goes-on --fast <b>";
  SetPrefDouble("DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA", 0.8);
  Start();
  auto* client = Open(300);
  worker.UseCPU(200);
  Turn();
  EXPECT_EQ(client->IdentityWindow()->Text(), QStringLiteral("pid 300 · ann"));
  EXPECT_EQ(client->Window()->accessibleName(),
            QLatin1String("CPU history of worker-with-a-name-that-goes-on, process 300 of ann"));
  EXPECT_EQ(client->Title(),
            QLatin1String("CPU history of worker-with-a-name-that-goes-on, pid 300"));
  const auto& name = *client->NameWindow();
  EXPECT_TRUE(name.Text().startsWith(QLatin1String("worker")) &&
              name.Text().endsWith(QLatin1String("on")))
      << name.Text().toStdString();
  EXPECT_LE(name.geometry().right(), client->HighWaterMarkWindow()->x());
  EXPECT_EQ(client->Window()->SpokenFigures(),
            QLatin1String("10 % now, between 0 % and 10 % in the window; the upper edge is 10 %"));
  EXPECT_TRUE(client->Window()->toolTip().contains(QLatin1String("goes-on --fast &lt;b&gt;")));
  EXPECT_FALSE(client->Window()->toolTip().contains(QLatin1String("above other windows")));
  EXPECT_NEAR(client->NameWindow()->Alpha() * client->Window()->windowOpacity(), 0.6, 0.01)
      << "its own opacity, not a part of the window's";
  const auto values = client->Graph().Values();
  client->Window()->resize(client->Window()->width() + 50, 120);
  EXPECT_EQ(client->Graph().Bitmap().Width(), 200);
  EXPECT_EQ(client->Graph().Bitmap().Height(), 120);
  auto resized = client->Graph().Values();
  ASSERT_EQ(resized.size(), 200U);
  resized.erase(resized.begin(), resized.begin() + 50);
  EXPECT_EQ(resized, values) << "the newest stay at the right edge";
  EXPECT_EQ(client->IconWindow()->geometry(), QRect(4, 76, 40, 40));
  client->Window()->resize(600, 120);
  Turn();
  EXPECT_EQ(name.Text(), QLatin1String("worker-with-a-name-that-goes-on"));
}

TEST_F(CPUHistoryWindowTest, ADamagedRecordStillGivesAWindowOnTheScreen) {
  machine.processTable.Birth(300, "worker");
  Start();
  const auto uuid = Uuid::Fresh();
  for (const WindowRect& rect :
       {WindowRect{}, WindowRect{-2147483647, 5, 2147483647, 4}, WindowRect{9, 9, 9, 90}})
    CreateCPUHistoryWindow(250, 300, &uuid, &rect);
  const WindowRect farAway{900'000, -900'000, 900'200, -899'900};
  CreateCPUHistoryWindow(250, 300, &uuid, &farAway);
  Turn(500);
  EXPECT_EQ(ListCPUHistoryWindows().size(), 4U);
  int onScreen = 0;
  for (auto* widget : QApplication::topLevelWidgets())
    if (const auto* window = qobject_cast<FloatingWindow*>(widget))
      onScreen += QGuiApplication::screenAt(window->ContentBounds().center()) != nullptr ? 1 : 0;
  EXPECT_EQ(onScreen, 4);
  EXPECT_EQ(GetPrefArrayCount(kCPUHistoryWindowKind), 0) << "a remembered one is not recorded anew";
}

TEST_F(CPUHistoryWindowTest, OpenWindowsFollowThePreferences) {
  auto& worker = machine.processTable.Birth(300, "worker");
  machine.processTable.Birth(301, "child", 300).UseCPU(90'000);
  Start();
  auto* client = Open(300);
  worker.UseCPU(400), Turn();
  EXPECT_EQ(client->Graph().ScalePercent(), 20);
  SetPrefInt("CPU_HISTORY_WINDOW_USE_RELATIVE", 0);
  SetPrefInt("CPU_HISTORY_WINDOW_TRACK_PROCESS_DESCENDANTS", 1);
  SetPrefInt("DEFAULT_CPU_HISTORY_WINDOW_INTERVAL", 125);
  SetPrefInt("DEFAULT_CPU_HISTORY_BACKGROUND_RGB_RED", 65535);
  SetPrefInt("DEFAULT_CPU_HISTORY_HWM_RGB_BLUE", 0);
  SetPrefInt("DEFAULT_CPU_HISTORY_DESCENDANTS_FOREGROUND_RGB_RED", 65535);
  SetPrefDouble("DEFAULT_CPU_HISTORY_NAME_ALPHA", 0.9);
  ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType(
      "CPUHistoryWindowInformationClient");
  EXPECT_EQ(client->Interval(), 125);
  EXPECT_EQ(client->Graph().ScalePercent(), 100);
  EXPECT_EQ(client->Graph().Bitmap().Pixel(100, 5), 0xFFFF0400U) << "drawn again at once";
  EXPECT_EQ(client->Graph().Bitmap().Pixel(0, 5), 0xFFFF0400U) << "the column without a point too";
  Turn(125);
  EXPECT_DOUBLE_EQ(client->NameWindow()->Alpha(), 0.9);
  EXPECT_EQ(client->HighWaterMarkWindow()->Text(), QLatin1String("100%"));
  EXPECT_EQ(client->HighWaterMarkWindow()->TextColour().blue(), 0);
  Turn(500);
  EXPECT_LT(client->Graph().Values().back(), 0.1) << "what the child used before does not count";
  worker.UseCPU(30), machine.processTable.Find(301)->UseCPU(60), Turn(125);
  bool hasOwnShare = false;
  for (int y = 0; y < client->Graph().Bitmap().Height(); ++y)
    hasOwnShare = hasOwnShare || client->Graph().Bitmap().Pixel(149, y) == 0xFFFF00FFU;
  EXPECT_TRUE(hasOwnShare) << "in the descendants' new colour";
}

}  // namespace
}  // namespace lurkwell
