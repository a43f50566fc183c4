#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <optional>
#include <stop_token>
#include <thread>

#include "animated_view/QuintessentialGlobals.h"
#include "platform/Mutex.h"
#include "platform/ThreadSafety.h"

namespace lurkwell {

/// What is drawn, frame by frame. Inside gQuintessentialMutex, on the drawing thread.
class FrameSource {
 public:
  virtual ~FrameSource() = default;
  virtual void InternalDraw() LURKWELL_REQUIRES(gQuintessentialMutex) = 0;
  virtual bool IsPaused() const = 0;
  /// Milliseconds from the beginning of one frame to that of the next.
  virtual std::int32_t GLThreadInterval() const LURKWELL_REQUIRES(gQuintessentialMutex) = 0;
};

/// The thread that draws the animated view: a frame, a rest outside gQuintessentialMutex, and so
/// on. While nothing is to be seen it sleeps until it is woken.
class DrawingThread {
 public:
  /// `source` gives what there is to draw, or null; it is called inside the mutex.
  explicit DrawingThread(FrameSource* (*source)());
  /// Waits for the frame under way. Not inside the mutex.
  ~DrawingThread();
  DrawingThread(const DrawingThread&) = delete;
  DrawingThread& operator=(const DrawingThread&) = delete;

  /// The next frame comes now. Any thread.
  void Wake();

  /// How long to rest when a frame began `elapsed` ago: the remaining whole milliseconds of the
  /// interval, at least 1 ms, at most 1 s at a time.
  static std::chrono::microseconds Rest(std::int32_t intervalMilliseconds,
                                        std::chrono::duration<double, std::milli> elapsed);

 private:
  using Clock = std::chrono::steady_clock;

  void OpenGLDrawingThread(const std::stop_token& stop);
  /// What there is to draw now, or null.
  FrameSource* Visible() const LURKWELL_REQUIRES(gQuintessentialMutex);
  bool IsEnding(const std::stop_token& stop) const;
  /// Leaves the mutex meanwhile.
  void RestUntilNextFrame(const std::stop_token& stop, Clock::time_point frameStart)
      LURKWELL_REQUIRES(gQuintessentialMutex);
  bool Sleep(const std::stop_token& stop, std::optional<std::chrono::microseconds> time);

  FrameSource* (*mSource)();
  Mutex mWakeMutex;
  std::condition_variable_any mWakeCondition;
  bool mWoken LURKWELL_GUARDED_BY(mWakeMutex) = false;
  std::jthread mThread;
};

}  // namespace lurkwell
