#include "animated_view/DrawingThread.h"

#include <algorithm>
#include <utility>

#include "animated_view/QuintessentialGlobals.h"
#include "platform/ApplicationQuitting.h"
#include "platform/CriticalRegion.h"

namespace lurkwell {

DrawingThread::DrawingThread(FrameSource* (*source)())
    : mSource(source),
      mThread([this](const std::stop_token& stop) { OpenGLDrawingThread(stop); }) {}

FrameSource* DrawingThread::Visible() const {
  auto* source = mSource();
  if (source == nullptr || source->IsPaused() || !gQuintessentialViewIsCurrentlyShown)
    return nullptr;
  return source;
}

DrawingThread::~DrawingThread() {
  mThread.request_stop();
  Wake();
}

void DrawingThread::Wake() {
  {
    const MutexLock lock(mWakeMutex);
    mWoken = true;
  }
  mWakeCondition.notify_all();
}

std::chrono::microseconds DrawingThread::Rest(std::int32_t intervalMilliseconds,
                                              std::chrono::duration<double, std::milli> elapsed) {
  using namespace std::chrono_literals;
  const auto past = std::chrono::duration_cast<std::chrono::milliseconds>(elapsed);
  const auto rest = std::chrono::milliseconds(intervalMilliseconds) - past;
  return std::clamp<std::chrono::microseconds>(rest, 1ms, 1s);
}

void DrawingThread::OpenGLDrawingThread(const std::stop_token& stop) {
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  while (!IsEnding(stop)) {
    const auto frameStart = Clock::now();
    auto* source = Visible();
    if (source != nullptr && !gQuintessentialWindowIsBeingResized) source->InternalDraw();
    RestUntilNextFrame(stop, frameStart);
  }
}

bool DrawingThread::IsEnding(const std::stop_token& stop) const {
  return stop.stop_requested() || gApplicationQuitting;
}

void DrawingThread::RestUntilNextFrame(const std::stop_token& stop, Clock::time_point frameStart) {
  const auto elapsed = [&] {
    return std::chrono::duration<double, std::milli>(Clock::now() - frameStart);
  };
  for (;;) {
    const auto* source = Visible();
    std::optional<std::chrono::microseconds> time;
    if (source != nullptr) time = Rest(source->GLThreadInterval(), elapsed());
    gQuintessentialMutex.Exit();
    const bool woken = Sleep(stop, time);
    gQuintessentialMutex.Enter();
    source = Visible();
    if (woken || IsEnding(stop)) return;
    if (source != nullptr && elapsed().count() >= source->GLThreadInterval()) return;
  }
}

bool DrawingThread::Sleep(const std::stop_token& stop,
                          std::optional<std::chrono::microseconds> time) {
  MutexLock lock(mWakeMutex);
  const auto isWoken = [this]() LURKWELL_REQUIRES(mWakeMutex) { return mWoken; };
  if (time) {
    lock.WaitFor(mWakeCondition, stop, *time, isWoken);
  } else {
    lock.Wait(mWakeCondition, stop, isWoken);
  }
  return std::exchange(mWoken, false);
}

}  // namespace lurkwell
