#pragma once

#include <cmath>
#include <functional>
#include <limits>
#include <memory>

namespace lurkwell {

/// A timer of a run loop. Owned by the caller that added it; destroying it ends it, also from
/// within its own callback.
class RunLoopTimer {
 public:
  virtual ~RunLoopTimer() = default;

  /// The next time to fire, in seconds of Clock::AbsoluteTime. A date that has passed makes the
  /// timer fire as soon as the loop comes round. Called from within the callback, it replaces the
  /// date that the interval would give.
  virtual void SetNextFireDate(double absoluteSeconds) = 0;
};

/// The main thread's loop. Every call on the main thread; callbacks run there too, one at a time.
/// A callback that takes longer than its interval delays others and is not made up for.
class RunLoop {
 public:
  virtual ~RunLoop() = default;

  /// Adds a timer that fires at `firstFireDate` (seconds, as above) and then every `interval`
  /// seconds; an interval of 0 fires once per date that is set.
  virtual std::unique_ptr<RunLoopTimer> AddTimer(double firstFireDate, double interval,
                                                 std::function<void()> callback) = 0;

  /// Serves timers until Stop is called.
  virtual void Run() = 0;

  /// Ends Run after the callback that is being served. Main thread only. Before Run, as when the
  /// user answers a question at the start by ending the program: a loop on the desktop then does
  /// not begin.
  virtual void Stop() = 0;
};

/// Arithmetic on the fire dates of run loops, in seconds of Clock::AbsoluteTime. Any thread.

inline constexpr double kNever = std::numeric_limits<double>::infinity();

/// A date that can be ordered among others: one that is no number never comes.
inline double Orderable(double date) {
  return std::isnan(date) ? kNever : date;
}

/// The first date after `now` in steps from `date`; kNever without an interval.
inline double NextDate(double date, double interval, double now) {
  if (!(interval > 0)) return kNever;
  if (date + interval > now) return date + interval;
  const double next = date + (std::floor((now - date) / interval) + 1) * interval;
  // An interval too short for the clock to tell apart.
  return next > now ? next : now + interval;
}

}  // namespace lurkwell
