#pragma once

#include <cstdint>
#include <memory>

namespace lurkwell {

class FlowControlFSM;
class RunLoopTimer;

// Sequences of steps of which each has to wait for a later turn of the run loop: a manager with one
// timer ticks machines, and each machine goes through a queue of states. Main thread only.

/// One step of a sequence. Entered at a tick, ticked until it says that it is done, left and
/// destroyed at the tick at which it is.
class FlowControlFSMState {
 public:
  FlowControlFSMState() = default;
  virtual ~FlowControlFSMState();
  FlowControlFSMState(const FlowControlFSMState&) = delete;
  FlowControlFSMState& operator=(const FlowControlFSMState&) = delete;

  virtual void OnStateEntry() {}
  virtual void OnStateExit() {}
  /// Not called for a state that is done when it has been entered.
  virtual void OnStateTimer() {}

  void MarkStateDone() { mDone = true; }

  /// The state after this one, once both have been appended.
  std::unique_ptr<FlowControlFSMState> next;

 private:
  friend class FlowControlFSM;

  bool mDone = false;
  bool mEntered = false;
};

/// A queue of states. Fill it, then submit it.
class FlowControlFSM {
 public:
  static std::unique_ptr<FlowControlFSM> CreateFlowControlFSM();

  /// A state that has a successor already fails "state->next == NULL".
  void AppendFlowControlFSMState(std::unique_ptr<FlowControlFSMState> state);

  /// One tick; at most one state ends. Gives true when that was the last one. Without a state it
  /// fails "mStateListHead".
  bool OnTimer();

 private:
  friend class FlowControlFSMMgr;

  std::unique_ptr<FlowControlFSMState> mStateListHead;
  std::unique_ptr<FlowControlFSM> mNext;
};

/// Ticks what is submitted. Ticks are a fixed interval apart, counted from the manager's
/// beginning; while there is nothing to tick the run loop is not woken.
class FlowControlFSMMgr {
 public:
  explicit FlowControlFSMMgr(std::int32_t intervalMilliseconds);
  virtual ~FlowControlFSMMgr();
  FlowControlFSMMgr(const FlowControlFSMMgr&) = delete;
  FlowControlFSMMgr& operator=(const FlowControlFSMMgr&) = delete;

  /// The machine starts with the next tick, and is deleted after its last state.
  void SubmitFSM(std::unique_ptr<FlowControlFSM> fsm);

  /// Deletes a machine before its end. Null fails "fsm", an empty list "mFSMHead".
  void RemoveFSM(FlowControlFSM* fsm);

  /// Whether a machine is still under way.
  bool IsBusy() const { return mFSMHead != nullptr; }

 private:
  static void CFTimerFunc();
  void Tick();
  void StartTimer(double firstFireDate);

  std::unique_ptr<FlowControlFSM> mFSMHead;
  double mInterval;
  double mFirstTick;
  std::unique_ptr<RunLoopTimer> mTimer;
};

/// The one manager, or null. Made at start-up, destroyed at shutdown, while there is a run loop.
inline std::unique_ptr<FlowControlFSMMgr> gFCFSMMgr;

/// Ticks every 100 milliseconds. A second call does nothing.
void CreateFlowControlFSMMgr();
void DestroyFlowControlFSMMgr();

}  // namespace lurkwell
