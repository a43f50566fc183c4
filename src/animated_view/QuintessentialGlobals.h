#pragma once

#include <atomic>
#include <cstdint>

#include "platform/CriticalRegion.h"
#include "platform/ThreadSafety.h"

namespace lurkwell {

class QuintessentialInformationClient;

/// The source that the animated view's assertions name, in whichever of its files they stand.
inline constexpr char kQuintessentialUnit[] = "QuintessentialSupport";

/// Guards the view's records, positions and drawing. The drawing thread leaves it only to sleep, so
/// entering it takes one frame at most. What runs inside on the drawing thread must not read
/// process data: the main thread comes here from within a heartbeat.
inline CriticalRegion gQuintessentialMutex;

/// The one client there is, or null. Changes on the main thread inside the mutex.
inline QuintessentialInformationClient* gQuintessentialInformationClient = nullptr;

/// Written on the main thread, read on both.
inline std::atomic<bool> gQuintessentialViewIsCurrentlyShown{false};
inline std::atomic<bool> gQuintessentialViewIsFullScreenOverlay{false};
/// The drawing thread skips frames meanwhile.
inline std::atomic<bool> gQuintessentialWindowIsBeingResized{false};

/// A change between window and overlay is under way. Main thread.
inline bool gToggleFullscreenInProgress = false;

/// The largest picture that the drawing can make, in pixels; 0 until the first frame.
struct ViewportDimensions {
  std::int32_t width = 0;
  std::int32_t height = 0;
};
inline ViewportDimensions gOpenGLViewportMaxDimensions LURKWELL_GUARDED_BY(gQuintessentialMutex);

}  // namespace lurkwell
