#include <gtest/gtest.h>

#include "FakeHost.h"
#include "animated_view/flowcontrolfsm.h"
#include "platform/simulated/SimulatedMachine.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

using testing::ExitedWithCode;
using Lines = std::vector<std::string>;

class FlowControl : public testing::Test {
 protected:
  FlowControl() {
    CreateFlowControlFSMMgr();
    machine.runLoop.RunFor(1000);
  }
  ~FlowControl() override { DestroyFlowControlFSMMgr(); }

  /// Steps through the time between two ticks, in the middle of which the caller stands.
  Lines NextTick() {
    machine.runLoop.RunFor(100);
    return host.Told();
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  FakeHost host;
};

/// Writes down what happens to it; done when it has been ticked `ticks` times.
class Recorder final : public FlowControlFSMState {
 public:
  Recorder(Lines& lines, std::string name, int ticks) : mLines(lines), mName(name), mTicks(ticks) {}
  ~Recorder() override { mLines.push_back(mName + " destroyed"); }
  void OnStateEntry() override {
    mLines.push_back(mName + " entered");
    if (onEntry) onEntry();
    if (mTicks == 0) MarkStateDone();
  }
  void OnStateTimer() override {
    mLines.push_back(mName + " ticked");
    if (--mTicks == 0) MarkStateDone();
  }
  void OnStateExit() override { mLines.push_back(mName + " left"); }

  std::function<void()> onEntry;

 private:
  Lines& mLines;
  std::string mName;
  int mTicks;
};

std::unique_ptr<FlowControlFSM> Machine1(Lines& lines, const std::string& name, int ticks,
                                         std::function<void()> onEntry = {}) {
  auto fsm = FlowControlFSM::CreateFlowControlFSM();
  auto state = std::make_unique<Recorder>(lines, name, ticks);
  state->onEntry = std::move(onEntry);
  fsm->AppendFlowControlFSMState(std::move(state));
  return fsm;
}

TEST_F(FlowControl, TheOverlayComesOnTheFourthTick) {
  machine.runLoop.RunFor(50);
  gQuintessentialViewIsCurrentlyShown = true;
  ToggleQuintessentialFullScreen();
  ToggleQuintessentialFullScreen();
  machine.runLoop.RunFor(40);
  EXPECT_EQ(host.Told(), Lines{}) << "not before the tick";
  machine.runLoop.RunFor(60);
  EXPECT_EQ(host.Told(), Lines{"close"});
  EXPECT_FALSE(gQuintessentialViewIsFullScreenOverlay);

  EXPECT_EQ(NextTick(), Lines{});
  EXPECT_TRUE(gQuintessentialViewIsFullScreenOverlay);
  EXPECT_EQ(GetPrefInt("DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW", nullptr, false, 0), 1);
  EXPECT_TRUE(gToggleFullscreenInProgress);
  ToggleQuintessentialFullScreen();

  EXPECT_EQ(NextTick(), (Lines{"set up", "countdown 3"}));
  EXPECT_FALSE(gToggleFullscreenInProgress) << "a tick before the view is back";
  EXPECT_TRUE(gFCFSMMgr->IsBusy()) << "until it is back";

  EXPECT_EQ(NextTick(), Lines{"show"});
  EXPECT_FALSE(gFCFSMMgr->IsBusy());
  EXPECT_EQ(NextTick(), Lines{});
  EXPECT_TRUE(gQuintessentialViewIsFullScreenOverlay) << "the two calls meanwhile were ignored";
}

TEST_F(FlowControl, AHiddenViewIsShownOnTheThirdTick) {
  machine.runLoop.RunFor(50);
  gQuintessentialViewIsFullScreenOverlay = true;
  ToggleQuintessentialFullScreen();
  EXPECT_EQ(NextTick(), Lines{});
  EXPECT_FALSE(gQuintessentialViewIsFullScreenOverlay);
  EXPECT_EQ(NextTick(), Lines{"set up"});
  EXPECT_EQ(NextTick(), Lines{"show"});
}

TEST_F(FlowControl, AStartUpsToggleBeginsWithTheFirstTurnOfTheLoop) {
  DestroyFlowControlFSMMgr();
  CreateFlowControlFSMMgr();
  ToggleQuintessentialFullScreen();
  machine.runLoop.RunFor(0);
  EXPECT_TRUE(gQuintessentialViewIsFullScreenOverlay);
}

TEST_F(FlowControl, MachinesAreTickedNewestFirstAndOneStateEndsATick) {
  Lines lines;
  auto first = Machine1(lines, "a", 0);
  first->AppendFlowControlFSMState(std::make_unique<Recorder>(lines, "b", 2));
  gFCFSMMgr->SubmitFSM(std::move(first));
  gFCFSMMgr->SubmitFSM(
      Machine1(lines, "c", 0, [&] { gFCFSMMgr->SubmitFSM(Machine1(lines, "d", 0)); }));
  NextTick();
  EXPECT_EQ(std::exchange(lines, {}),
            (Lines{"c entered", "c left", "c destroyed", "a entered", "a left", "a destroyed"}));
  NextTick();
  EXPECT_EQ(std::exchange(lines, {}),
            (Lines{"d entered", "d left", "d destroyed", "b entered", "b ticked"}));
  NextTick();
  EXPECT_EQ(std::exchange(lines, {}), (Lines{"b ticked", "b left", "b destroyed"}));
}

TEST_F(FlowControl, NothingToTickWakesNobodyAndKeepsTheBeat) {
  EXPECT_GT(machine.runLoop.NextFireDate(), machine.clock.AbsoluteTime() + 3600);
  machine.runLoop.RunFor(12'370);
  Lines lines;
  gFCFSMMgr->SubmitFSM(Machine1(lines, "a", 0));
  machine.runLoop.RunFor(25);
  EXPECT_EQ(lines.size(), 0U);
  machine.runLoop.RunFor(10);
  EXPECT_EQ(lines.size(), 3U);
  EXPECT_GT(machine.runLoop.NextFireDate(), machine.clock.AbsoluteTime() + 3600);
}

TEST_F(FlowControl, AMachineMayBeTakenAwayBeforeItsEnd) {
  Lines lines;
  auto doomed = Machine1(lines, "a", 3);
  auto* const which = doomed.get();
  gFCFSMMgr->SubmitFSM(std::move(doomed));
  gFCFSMMgr->SubmitFSM(Machine1(lines, "b", 0));
  gFCFSMMgr->RemoveFSM(which);
  EXPECT_EQ(std::exchange(lines, {}), Lines{"a destroyed"});
  NextTick();
  EXPECT_EQ(lines.size(), 3U);
}

TEST_F(FlowControl, AFadeGoesUpToItsTarget) {
  gQuintessentialViewIsFullScreenOverlay = true;
  FSMSetUpOpacityEtCeteraOfQuintWindow state(0.1);
  for (int i = 0; i < 3; ++i) state.OnStateTimer();
  EXPECT_EQ(host.Told(), (Lines{"alpha 0.00", "alpha 0.05", "alpha 0.10"}));
}

using FlowControlDeathTest = FlowControl;

TEST_F(FlowControlDeathTest, MisuseEndsTheProgram) {
  Lines lines;
  auto chained = std::make_unique<Recorder>(lines, "a", 0);
  chained->next = std::make_unique<Recorder>(lines, "b", 0);
  auto fsm = FlowControlFSM::CreateFlowControlFSM();
  EXPECT_DEATH(fsm->AppendFlowControlFSMState(std::move(chained)),
               "flowcontrolfsm:[0-9]+: failed assertion `state->next == NULL'");
  EXPECT_DEATH(fsm->OnTimer(), "failed assertion `mStateListHead'");
  EXPECT_DEATH(gFCFSMMgr->RemoveFSM(nullptr), "failed assertion `fsm'");
  EXPECT_DEATH(gFCFSMMgr->RemoveFSM(fsm.get()), "failed assertion `mFSMHead'");
  host.hasView = false;
  EXPECT_DEATH(FSMCloseQuintWindow::Create()->OnStateEntry(),
               "QuintessentialSupport:[0-9]+: failed assertion `theCurrentQuintessentialView'");
  EXPECT_DEATH(FSMSetUpOpacityEtCeteraOfQuintWindow(0.8).OnStateTimer(),
               "failed assertion `gQuintessentialViewIsFullScreenOverlay'");
}

}  // namespace
}  // namespace lurkwell
