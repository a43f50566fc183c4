#pragma once

#include <memory>

#include "platform/Clock.h"
#include "platform/RunLoop.h"

namespace lurkwell {

/// The run loop of a program with windows: Qt's. Timers are timers of Qt's event loop, so they fire
/// in nested loops (menus, dialogs), too; but not in one that a timer's own callback has begun,
/// since callbacks run one at a time. What became due meanwhile fires afterwards, as does, with the
/// next Run, what was due when Stop was called. Stop ends nested loops as well and asks no window.
/// Needs a QCoreApplication. The clock must outlive the loop and its timers.
class QtRunLoop final : public RunLoop {
 public:
  explicit QtRunLoop(Clock& clock);

  std::unique_ptr<RunLoopTimer> AddTimer(double firstFireDate, double interval,
                                         std::function<void()> callback) override;
  void Run() override;
  void Stop() override;

 private:
  class Timer;
  struct State;

  std::shared_ptr<State> mState;
};

}  // namespace lurkwell
