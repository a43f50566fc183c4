#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace lurkwell {

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
