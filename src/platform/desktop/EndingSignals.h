#pragma once

#include <memory>

class QSocketNotifier;

namespace lurkwell {

/// Makes SIGINT, SIGTERM and SIGHUP quit the application in order, as its own menu does. They are
/// blocked in the calling thread for this object's life, which therefore begins before other
/// threads start; one that is ignored at that time (nohup) stays ignored. Needs a
/// QCoreApplication from Watch on.
class EndingSignals {
 public:
  EndingSignals();
  ~EndingSignals();
  EndingSignals(const EndingSignals&) = delete;
  EndingSignals& operator=(const EndingSignals&) = delete;

  /// From now on a signal, also one that came before, ends the event loop.
  void Watch();

 private:
  int mDescriptor = -1;
  std::unique_ptr<QSocketNotifier> mNotifier;
};

/// Whether a window could be shown: $WAYLAND_DISPLAY is set or the X server of $DISPLAY answers.
bool IsDisplayReachable();

}  // namespace lurkwell
