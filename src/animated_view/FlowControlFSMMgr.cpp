#include "animated_view/FlowControlFSMMgr.h"

#include <cmath>
#include <utility>

#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"

namespace lurkwell {
namespace {

constexpr char kUnit[] = "flowcontrolfsm";
constexpr std::int32_t kTickMilliseconds = 100;

}  // namespace

FlowControlFSMState::~FlowControlFSMState() = default;

std::unique_ptr<FlowControlFSM> FlowControlFSM::CreateFlowControlFSM() {
  return std::make_unique<FlowControlFSM>();
}

void FlowControlFSM::AppendFlowControlFSMState(std::unique_ptr<FlowControlFSMState> state) {
  Require(state->next == nullptr, kUnit, "state->next == NULL");
  auto* end = &mStateListHead;
  while (*end != nullptr) end = &(*end)->next;
  *end = std::move(state);
}

bool FlowControlFSM::OnTimer() {
  Require(mStateListHead != nullptr, kUnit, "mStateListHead");
  auto& state = *mStateListHead;
  if (!std::exchange(state.mEntered, true)) state.OnStateEntry();
  if (!state.mDone) state.OnStateTimer();
  if (!state.mDone) return false;
  state.OnStateExit();
  mStateListHead = std::exchange(state.next, nullptr);
  return mStateListHead == nullptr;
}

FlowControlFSMMgr::FlowControlFSMMgr(std::int32_t intervalMilliseconds)
    : mInterval(intervalMilliseconds / 1000.0), mFirstTick(TheMachine().clock.AbsoluteTime()) {
  StartTimer(mFirstTick);
}

FlowControlFSMMgr::~FlowControlFSMMgr() = default;

void FlowControlFSMMgr::StartTimer(double firstFireDate) {
  mTimer = TheMachine().runLoop.AddTimer(firstFireDate, mInterval, CFTimerFunc);
}

void FlowControlFSMMgr::SubmitFSM(std::unique_ptr<FlowControlFSM> fsm) {
  fsm->mNext = std::move(mFSMHead);
  mFSMHead = std::move(fsm);
  if (mTimer != nullptr) return;
  const double ticks = std::floor((TheMachine().clock.AbsoluteTime() - mFirstTick) / mInterval);
  StartTimer(mFirstTick + (ticks + 1) * mInterval);
}

void FlowControlFSMMgr::RemoveFSM(FlowControlFSM* fsm) {
  Require(fsm != nullptr, kUnit, "fsm");
  Require(mFSMHead != nullptr, kUnit, "mFSMHead");
  auto* link = &mFSMHead;
  while (*link != nullptr && link->get() != fsm) link = &(*link)->mNext;
  if (*link == nullptr) return;
  const auto removed = std::move(*link);
  *link = std::move(removed->mNext);
}

void FlowControlFSMMgr::CFTimerFunc() {
  Require(gFCFSMMgr != nullptr, kUnit, "gFCFSMMgr");
  gFCFSMMgr->Tick();
}

void FlowControlFSMMgr::Tick() {
  // What a state submits stands before the machine under way and is not met.
  for (auto* fsm = mFSMHead.get(); fsm != nullptr;) {
    auto* const following = fsm->mNext.get();
    if (fsm->OnTimer()) RemoveFSM(fsm);
    fsm = following;
  }
  if (mFSMHead == nullptr) mTimer.reset();
}

void CreateFlowControlFSMMgr() {
  if (gFCFSMMgr == nullptr) gFCFSMMgr = std::make_unique<FlowControlFSMMgr>(kTickMilliseconds);
}

void DestroyFlowControlFSMMgr() {
  gFCFSMMgr.reset();
}

}  // namespace lurkwell
