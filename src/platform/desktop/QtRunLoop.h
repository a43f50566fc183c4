#pragma once

#include <functional>
#include <memory>

#include "platform/Clock.h"
#include "platform/RunLoop.h"

class QSocketNotifier;

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

/// Makes SIGINT, SIGTERM and SIGHUP end the application in order, from this object's beginning to
/// its end; one that is ignored already (nohup) stays ignored. Nothing is blocked, so programs that
/// are started meanwhile hear signals as usual. One at a time; main thread; needs a
/// QCoreApplication from Watch on.
class EndingSignals {
 public:
  EndingSignals();
  ~EndingSignals();
  EndingSignals(const EndingSignals&) = delete;
  EndingSignals& operator=(const EndingSignals&) = delete;

  /// From now on a signal, also one that came before, calls `end` on the main thread. What a modal
  /// question waits for does not hold it up.
  void Watch(std::function<void()> end);

 private:
  std::unique_ptr<QSocketNotifier> mNotifier;
};

}  // namespace lurkwell
