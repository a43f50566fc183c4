#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

#include "platform/CriticalRegion.h"

namespace lurkwell {

/// The thread that draws the animated view: a frame of gQuintessentialInformationClient, a rest
/// outside gQuintessentialMutex, and so on. While nothing is to be seen it sleeps until it is
/// woken.
class DrawingThread {
 public:
  DrawingThread();
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
  bool IsEnding(const std::stop_token& stop) const;
  void RestUntilNextFrame(const std::stop_token& stop, Clock::time_point frameStart,
                          std::unique_lock<CriticalRegion>& inside);
  bool Sleep(const std::stop_token& stop, std::optional<std::chrono::microseconds> time);

  std::mutex mWakeMutex;
  std::condition_variable_any mWakeCondition;
  bool mWoken = false;
  std::jthread mThread;
};

}  // namespace lurkwell
