#pragma once

#include <signal.h>

#include <cstdint>
#include <map>
#include <memory>
#include <utility>

#include "platform/Clock.h"
#include "platform/FileDescriptor.h"
#include "platform/RunLoop.h"

namespace lurkwell {

/// A run loop that waits in poll and nothing else: for programs without windows. Timers that are
/// due fire in order of their dates, and of their adding where the dates are the same; each at most
/// once before the loop looks at the time again, so that none can starve the others. The clock must
/// outlive the loop; timers may outlive it and are then dead.
class PollRunLoop final : public RunLoop {
 public:
  /// Whether SIGINT, SIGTERM and SIGHUP end Run like a call of Stop. They are blocked in the
  /// calling thread for the loop's life, which therefore has to begin before other threads start. A
  /// signal that is ignored at that time (nohup) stays ignored.
  enum class EndingSignals { kLeave, kStop };

  explicit PollRunLoop(Clock& clock, EndingSignals signals = EndingSignals::kLeave);
  ~PollRunLoop() override;
  PollRunLoop(const PollRunLoop&) = delete;
  PollRunLoop& operator=(const PollRunLoop&) = delete;

  std::unique_ptr<RunLoopTimer> AddTimer(double firstFireDate, double interval,
                                         std::function<void()> callback) override;
  void Run() override;
  void Stop() override { mStopped = true; }

 private:
  struct Timer;
  class Handle;
  /// Date, then order of adding.
  using Place = std::pair<double, std::uint64_t>;
  using Queue = std::map<Place, std::shared_ptr<Timer>>;

  void FireDueTimers();
  void Fire(Timer& timer, double now);
  void Wait();

  Clock& mClock;
  std::shared_ptr<Queue> mQueue;
  std::uint64_t mAdded = 0;
  bool mStopped = false;
  FileDescriptor mSignals;
  sigset_t mMaskBefore{};
};

}  // namespace lurkwell
