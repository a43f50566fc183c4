#include <gtest/gtest.h>

#include <random>

#include "FakeHost.h"
#include "PlainLayout.h"
#include "consolidator/Region.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

using Info = QuintessentialInformationProcessInfo;
using Lines = std::vector<std::string>;

RandomSource Source() {
  return [random = std::mt19937(5)]() mutable { return static_cast<long>(random() >> 1); };
}

/// The view's records on a simulated machine; frames are taken by the test itself.
class AnimatedClient : public ConsolidatorTest {
 protected:
  void Make() {
    Start();
    client = new QuintessentialInformationClient(200, Source());
  }
  void Show() {
    gQuintessentialViewIsCurrentlyShown = true;
    client->HookIntoConsolidator();
  }
  void Hide() {
    gQuintessentialViewIsCurrentlyShown = false;
    client->UnhookFromConsolidator();
  }
  void MakeAndShow() {
    Make();
    Show();
    machine.runLoop.RunFor(250);
  }
  void SetPref(const char* key, std::int64_t value) {
    machine.preferenceDomain.SetValue(key, value);
  }
  Info& Of(std::int32_t pid) {
    Info* info = client->qipiList().Find(pid);
    if (info == nullptr) throw std::runtime_error("no record of " + std::to_string(pid));
    return *info;
  }
  double SecondsToNextBeat() {
    return machine.runLoop.NextFireDate() - machine.clock.AbsoluteTime();
  }

  /// What the first showing makes of the processes, the plain way.
  QipiList ExpectedFirstShowing(int mostSteps) {
    std::vector<std::int32_t> pids;
    for (const auto& info : client->qipiList()) pids.push_back(info.pid);
    QipiList list;
    const RandomSource random = Source();
    for (auto pid = pids.rbegin(); pid != pids.rend(); ++pid) {
      Info info;
      info.pid = *pid;
      info.parentPid = machine.processTable.Find(*pid)->entry.parentPid;
      if (*pid != 0) {
        info.x = RandomFraction(random);
        info.y = RandomFraction(random);
      }
      list.PushFront(std::move(info));
    }
    for (auto& info : list) plain::Place(info, plain::Of(list), {}, random);
    double spread = plain::Step(plain::Of(list), true);
    for (int i = 0; i < mostSteps; ++i) {
      const double before = std::exchange(spread, plain::Step(plain::Of(list), true));
      if (spread <= before) break;
    }
    return list;
  }

  void ExpectPlaces(QipiList& expected) {
    auto& list = client->qipiList();
    ASSERT_EQ(list.size(), expected.size());
    for (auto a = list.begin(), b = expected.begin(); a != list.end(); ++a, ++b) {
      EXPECT_NEAR(a->x, b->x, 1e-9) << a->pid;
      EXPECT_NEAR(a->y, b->y, 1e-9) << a->pid;
    }
  }

  FakeHost host;
  QuintessentialInformationClient* client = nullptr;
};

TEST_F(AnimatedClient, TheFirstShowingPlacesFamiliesAndSpreadsThem) {
  for (std::int32_t pid = 100; pid < 160; ++pid)
    machine.processTable.Birth(pid, "process" + std::to_string(pid),
                               pid % 5 == 0 ? 1 : pid / 2 + 50);
  MakeAndShow();
  auto expected = ExpectedFirstShowing(10);
  ExpectPlaces(expected);
  for (const auto& info : client->qipiList()) {
    EXPECT_TRUE(info.locationInitialized);
    EXPECT_STREQ(info.name, machine.processTable.Find(info.pid)->entry.commandName);
    EXPECT_EQ(info.labelImage->width, static_cast<int>(std::strlen(info.name)));
    EXPECT_TRUE(info.usesDefaultIcon);
    EXPECT_EQ(info.iconImage, client->qipiList().front().iconImage) << "one for all";
  }
  machine.runLoop.RunFor(1000);
  ExpectPlaces(expected);

  Hide();
  EXPECT_TRUE(client->qipiList().empty());
  EXPECT_GE(host.released, 62);
}

TEST_F(AnimatedClient, ThousandsComeInSlicesAndLeaveAtOnce) {
  for (std::int32_t pid = 100; pid < 1700; ++pid) machine.processTable.Birth(pid, "process");
  MakeAndShow();
  const auto first = client->qipiList().size();
  EXPECT_GT(first, 700U);
  EXPECT_LT(first, 1602U);
  for (const auto& info : client->qipiList()) EXPECT_TRUE(info.locationInitialized);
  // What changes of one that waits for its place is there when it comes.
  std::int32_t waiting = 100;
  while (client->qipiList().Find(waiting) != nullptr) ++waiting;
  machine.processManager.Launch({0, 9}, waiting, "application");
  machine.iconServices.SetColour({0, 9}, 0xFF112233);
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(client->qipiList().size(), 1602U);
  EXPECT_EQ(Of(waiting).iconImage->pixels.front(), 0xFF112233U);
  for (std::int32_t pid = 100; pid < 1700; ++pid) machine.processTable.Death(pid);
  machine.runLoop.RunFor(250);
  EXPECT_EQ(client->qipiList().size(), 2U);
}

TEST_F(AnimatedClient, CPUUseBecomesWeight) {
  machine.processTable.Birth(100, "idle");
  machine.processTable.Birth(101, "busy");
  machine.processTable.Birth(102, "raging");
  machine.processTable.Birth(103, "Lurkwell");
  machine.processTable.Birth(104, "lkw_helper_daemo");
  machine.processTable.Birth(105, "Lurkwell2");
  machine.processTable.Birth(106, "lurkwell");
  machine.preferenceDomain.SetValue("QUINT_TARVIK_FACTOR", 3.0);
  Make();
  Show();
  machine.runLoop.RunFor(1100);
  EXPECT_EQ(Of(101).targetWeight, 0.6) << "one reading tells nothing";
  const auto useAll = [this](std::int64_t milliseconds) {
    for (const int pid : {0, 101, 103, 104, 105, 106})
      machine.processTable.Find(pid)->UseCPU(milliseconds);
  };
  useAll(250);
  machine.processTable.Find(102)->UseCPU(60'000);
  machine.runLoop.RunFor(1000);
  EXPECT_DOUBLE_EQ(Of(0).targetWeight, 0.5);
  EXPECT_DOUBLE_EQ(Of(100).targetWeight, 0.5);
  EXPECT_DOUBLE_EQ(Of(101).targetWeight, 2 * 0.45 + 0.5);
  EXPECT_DOUBLE_EQ(Of(102).targetWeight, 8.5);
  EXPECT_DOUBLE_EQ(Of(103).targetWeight, 2 * 0.45 * 3 + 0.5);
  EXPECT_DOUBLE_EQ(Of(104).targetWeight, 2 * 0.45 * 3 + 0.5);
  EXPECT_DOUBLE_EQ(Of(105).targetWeight, 2 * 0.45 + 0.5);
  EXPECT_DOUBLE_EQ(Of(106).targetWeight, 2 * 0.45 * 3 + 0.5) << "in a build tree";
  (*machine.processTable.Find(101))["pid_user_time"] = 0;
  machine.runLoop.RunFor(1000);
  EXPECT_DOUBLE_EQ(Of(101).targetWeight, 0.5) << "time that went back";

  const CriticalRegion::Guard guard(gQuintessentialMutex);
  client->InternalDraw();
  EXPECT_DOUBLE_EQ(Of(100).weight, 0.4 + 0.2 * (0.5 - 0.4));
  EXPECT_EQ(host.frames, 1);
}

TEST_F(AnimatedClient, WhoWantsLessMotionSeesRecordsStayWhereTheyAre) {
  machine.screen.wantsLessMotion = true;
  for (int pid = 100; pid < 110; ++pid) machine.processTable.Birth(pid, "p");
  Make();
  Show();
  machine.runLoop.RunFor(1100);
  const auto draw = [this] {
    const CriticalRegion::Guard guard(gQuintessentialMutex);
    const auto before = std::pair(Of(105).x, Of(105).y);
    for (int frame = 0; frame < 5; ++frame) client->InternalDraw();
    return std::pair(Of(105).x, Of(105).y) != before;
  };
  EXPECT_FALSE(draw());
  machine.processTable.Find(105)->UseCPU(900);
  machine.runLoop.RunFor(1000);
  EXPECT_FALSE(draw());
  EXPECT_GT(Of(105).weight, 1);
  EXPECT_DOUBLE_EQ(Of(105).weight, Of(105).targetWeight) << "at once";
  machine.screen.wantsLessMotion = false;
  machine.runLoop.RunFor(1000);
  EXPECT_TRUE(draw());
}

TEST_F(AnimatedClient, AFactorThatCannotBeDrawnIsNone) {
  machine.processTable.Birth(103, "Lurkwell");
  machine.preferenceDomain.SetValue("QUINT_TARVIK_FACTOR", 1e300);
  Make();
  Show();
  machine.runLoop.RunFor(1100);
  machine.processTable.Find(103)->UseCPU(250);
  machine.runLoop.RunFor(1000);
  EXPECT_DOUBLE_EQ(Of(103).targetWeight, 2 * 0.45 + 0.5);
}

TEST_F(AnimatedClient, ChangesAreTakenOver) {
  machine.processTable.Birth(100, "before");
  MakeAndShow();
  Info& info = Of(100);
  // A mark that would turn the letters round is written out, as in every other window.
  machine.processTable.Find(100)->SetName("gnp\xe2\x80\xae.exe");
  machine.runLoop.RunFor(500);
  EXPECT_EQ(info.labelImage->width, static_cast<int>(std::strlen("gnp\\xe2\\x80\\xae.exe")));
  machine.processTable.Find(100)->commandLine = "/usr/libexec/desktop-portal-gtk --replace";
  machine.processTable.Find(100)->SetName("desktop-portal-g");
  machine.runLoop.RunFor(500);
  EXPECT_EQ(info.labelImage->width, static_cast<int>(std::strlen("desktop-portal-gtk")));
  {
    const ConsolidatorGuard names;
    const CriticalRegion::Guard guard(gQuintessentialMutex);
    client->MakeLabelsAnew();
  }
  EXPECT_EQ(info.labelImage->width, static_cast<int>(std::strlen("desktop-portal-gtk")));
  info.iconTexture = info.labelTexture = 7;
  info.texturesReady = true;
  machine.processTable.Find(100)->SetName("afterwards");
  machine.processManager.Launch({0, 9}, 100, "afterwards");
  machine.iconServices.SetColour({0, 9}, 0xFF112233);
  machine.runLoop.RunFor(500);
  EXPECT_STREQ(info.name, "afterwards");
  EXPECT_EQ(info.labelImage->width, 10);
  EXPECT_FALSE(info.usesDefaultIcon);
  EXPECT_EQ(info.iconImage->pixels.front(), 0xFF112233U);
  EXPECT_EQ(info.labelTexture, 0U);
  EXPECT_FALSE(info.texturesReady);
  EXPECT_EQ(client->qipiList().Find(100), &info) << "the same record, where it was";
}

TEST_F(AnimatedClient, ANameThatCannotBeReadIsAskedForAgain) {
  machine.processTable.Birth(100, "one");
  machine.processTable.Birth(101, "two");
  MakeAndShow();
  auto& list = client->qipiList();
  Info& stranger = list.PushBack({});
  list.ForEach(stranger.pid, [](Info& info) { std::strcpy(info.name, "kept"); });
  auto& teller = Add("teller", 60'000);
  told.Clear();
  teller.onUpdated = [&] {
    client->NotifyPidHasChangedAppreciably(stranger.pid);
    EXPECT_STREQ(stranger.name, "kept");
    EXPECT_STREQ(list.front().name, "");
  };
  RequestUpdate(&teller);
  machine.runLoop.RunFor(250);
  EXPECT_EQ(told.Take(), "teller updated\n");
  EXPECT_STREQ(list.front().name, machine.processTable.Find(list.front().pid)->entry.commandName);
}

TEST_F(AnimatedClient, WhatIsNotSeenCostsNoHeartbeat) {
  machine.processTable.Birth(100, "process");
  Make();
  Show();
  machine.runLoop.RunFor(1300);
  EXPECT_LE(SecondsToNextBeat(), 0.21);
  client->SetPaused(true);
  machine.runLoop.RunFor(1300);
  EXPECT_GT(SecondsToNextBeat(), 10.0);
  machine.processTable.Birth(101, "later");
  machine.processTable.Find(100)->UseCPU(500);
  machine.runLoop.RunFor(1000);
  EXPECT_EQ(client->qipiList().Find(101), nullptr);

  client->SetPaused(false);
  machine.runLoop.RunFor(0);
  EXPECT_NE(client->qipiList().Find(101), nullptr) << "caught up at once";
  machine.runLoop.RunFor(1000);
  EXPECT_LE(SecondsToNextBeat(), 0.21);

  Hide();
  machine.runLoop.RunFor(1300);
  EXPECT_GT(SecondsToNextBeat(), 10.0);
  Show();
  machine.runLoop.RunFor(1300);
  EXPECT_EQ(client->qipiList().size(), 4U);
  EXPECT_LE(SecondsToNextBeat(), 0.21);
}

TEST_F(AnimatedClient, IntervalsAreMadeToFit) {
  SetPref("HEARTQUIVA_GL_THREAD_INTERVAL", 500);
  SetPref("HEARTQUIVA_MAINPIC_INTERVAL", 200);
  SetPref("HEARTQUIVA_HELPERPIC_INTERVAL", -1);
  Make();
  EXPECT_EQ(client->GLThreadInterval(), 500);
  EXPECT_EQ(client->Interval(), 500);
  EXPECT_EQ(FittedAnimationIntervals().cpu, 500);
}

TEST_F(AnimatedClient, ChangedPreferencesReachTheOverlay) {
  gQuintessentialViewIsFullScreenOverlay = true;
  MakeAndShow();
  EXPECT_EQ(host.Told(), Lines{}) << "the overlay shows itself when its time has come";
  SetPref("HEARTQUIVA_GL_THREAD_INTERVAL", 40);
  SetPref("HEARTQUIVA_MAINPIC_INTERVAL", 300);
  SetPref("QUIVA_FULLSCREEN_DRAW_PARENT_CHILD_CONNECTORS", 1);
  ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType(
      "QuintessentialInformationClient");
  EXPECT_EQ(client->GLThreadInterval(), 40);
  EXPECT_EQ(client->Interval(), 300);
  EXPECT_TRUE(client->DrawingSettings().drawConnectorsFullscreen);
  EXPECT_EQ(host.Told(), Lines{"alpha 0.80"});

  machine.preferenceDomain.SetValue("QUINT_FULLSCREEN_WINDOW_ALPHA", 0.5);
  machine.preferenceDomain.SetValue("QUINT_FULLSCREEN_UNDERLAY_ALPHA", 0.75);
  client->NotifyPreferencesHaveBeenUpdated();
  EXPECT_EQ(host.Told(), (Lines{"alpha 0.50", "background"}));
}

TEST_F(AnimatedClient, AClickFindsTheNearest) {
  machine.processTable.Birth(100, "process");
  Make();
  EXPECT_EQ(client->GetClosestPidToPoint({10, 10}), -1);
  Show();
  machine.runLoop.RunFor(250);
  const auto put = [this](int pid, double x, double y) {
    Of(pid).x = x;
    Of(pid).y = y;
  };
  put(0, 0.1, 0.9);
  put(1, 0.9, 0.1);
  put(100, 0.5, 0.5);
  // The window is 400 by 200 points.
  EXPECT_EQ(client->GetClosestPidToPoint({40, 180}), 0);
  EXPECT_EQ(client->GetClosestPidToPoint({360, 20}), 1);
  EXPECT_EQ(client->GetClosestPidToPoint({210, 110}), 100);
  put(1, 0.5, 0.5);
  const auto& list = client->qipiList();
  const auto first = std::ranges::find_if(list, [](const Info& info) { return info.x == 0.5; });
  EXPECT_EQ(client->GetClosestPidToPoint({200, 100}), first->pid) << "of equals the first";
  host.frame = {0, 0};
  EXPECT_EQ(client->GetClosestPidToPoint({0, 0}), -1) << "no window to speak of";
  host.hasView = false;
  EXPECT_DEATH(client->GetClosestPidToPoint({0, 0}), "theCurrentQuintessentialView");
}

TEST_F(AnimatedClient, LeavesNothingBehind) {
  MakeAndShow();
  delete client;
  EXPECT_EQ(gQuintessentialInformationClient, nullptr);
  machine.runLoop.RunFor(3000);
  EXPECT_GT(SecondsToNextBeat(), 10.0) << "nor its CPU watcher";
}

}  // namespace
}  // namespace lurkwell
