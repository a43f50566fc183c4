#include "animated_view/flowcontrolfsm.h"

#include <utility>

#include "animated_view/QuintessentialGlobals.h"
#include "animated_view/QuintessentialHost.h"
#include "platform/Assertion.h"
#include "preferences/LessMotion.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

constexpr double kOverlayAlpha = 0.8;
constexpr double kFadeStep = 0.05;
constexpr int kClearedFrames = 3;

}  // namespace

void ToggleQuintessentialFullScreen() {
  if (gFCFSMMgr == nullptr || std::exchange(gToggleFullscreenInProgress, true)) return;
  auto fsm = FlowControlFSM::CreateFlowControlFSM();
  if (gQuintessentialViewIsCurrentlyShown)
    fsm->AppendFlowControlFSMState(FSMCloseQuintWindow::Create());
  fsm->AppendFlowControlFSMState(FSMSetFullscreen::Create(!gQuintessentialViewIsFullScreenOverlay));
  fsm->AppendFlowControlFSMState(FSMSetUpOpacityEtCeteraOfQuintWindow::Create(kOverlayAlpha));
  fsm->AppendFlowControlFSMState(FSMOpenQuintWindow::Create());
  gFCFSMMgr->SubmitFSM(std::move(fsm));
}

std::unique_ptr<FSMCloseQuintWindow> FSMCloseQuintWindow::Create() {
  return std::make_unique<FSMCloseQuintWindow>();
}

void FSMCloseQuintWindow::OnStateEntry() {
  HostOfCurrentView().CloseCurrentWindow();
  MarkStateDone();
}

std::unique_ptr<FSMSetFullscreen> FSMSetFullscreen::Create(bool fullscreen) {
  return std::make_unique<FSMSetFullscreen>(fullscreen);
}

void FSMSetFullscreen::OnStateEntry() {
  gQuintessentialViewIsFullScreenOverlay = mFullscreen;
  StoreInt("DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW", mFullscreen ? 1 : 0);
  MarkStateDone();
}

std::unique_ptr<FSMSetUpOpacityEtCeteraOfQuintWindow> FSMSetUpOpacityEtCeteraOfQuintWindow::Create(
    double targetAlpha) {
  return std::make_unique<FSMSetUpOpacityEtCeteraOfQuintWindow>(targetAlpha);
}

void FSMSetUpOpacityEtCeteraOfQuintWindow::OnStateEntry() {
  MarkStateDone();
}

void FSMSetUpOpacityEtCeteraOfQuintWindow::OnStateTimer() {
  Require(gQuintessentialViewIsFullScreenOverlay, "flowcontrolfsm",
          "gQuintessentialViewIsFullScreenOverlay");
  if (mCurrentAlpha >= mTargetAlpha || WantsLessMotion()) {
    MarkStateDone();
    mCurrentAlpha = mTargetAlpha;
  }
  HostOfCurrentView().SetCurrentWindowAlpha(mCurrentAlpha);
  mCurrentAlpha += kFadeStep;
}

void FSMSetUpOpacityEtCeteraOfQuintWindow::OnStateExit() {
  auto& host = HostOfCurrentView();
  host.SetUpOverlayStuff();
  if (gQuintessentialViewIsFullScreenOverlay) host.SetFullscreenKludgeCountdown(kClearedFrames);
  gToggleFullscreenInProgress = false;
}

std::unique_ptr<FSMOpenQuintWindow> FSMOpenQuintWindow::Create() {
  return std::make_unique<FSMOpenQuintWindow>();
}

void FSMOpenQuintWindow::OnStateEntry() {
  if (gQuintessentialHost != nullptr) gQuintessentialHost->doShowQuintessentialView();
  MarkStateDone();
}

}  // namespace lurkwell
