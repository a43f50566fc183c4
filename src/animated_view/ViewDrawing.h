#pragma once

#include <functional>
#include <vector>

#include "animated_view/DrawingContext.h"
#include "animated_view/FrameContents.h"
#include "animated_view/FrameRenderer.h"
#include "animated_view/QuintessentialGlobals.h"
#include "platform/ThreadSafety.h"

namespace lurkwell {

/// What both views draw with. Inside gQuintessentialMutex, but for the making and the end and where
/// nothing else is said.
struct ViewDrawing {
  /// Made and destroyed on the main thread inside the mutex, used on the drawing thread.
  DrawingContext context;
  FrameRenderer renderer LURKWELL_GUARDED_BY(gQuintessentialMutex);
  ViewMarks marks LURKWELL_GUARDED_BY(gQuintessentialMutex);
  /// Kept from frame to frame for its memory.
  std::vector<DrawnProcess> processes LURKWELL_GUARDED_BY(gQuintessentialMutex);
  /// Drawing has failed; nothing is drawn until the main thread has dealt with it.
  bool hasFailed LURKWELL_GUARDED_BY(gQuintessentialMutex) = false;
  /// Whether a frame has been drawn since the last failure.
  bool hasDrawn LURKWELL_GUARDED_BY(gQuintessentialMutex) = false;
  /// Called on the drawing thread when it fails; has the main thread do something about it.
  std::function<void()> tellOfFailure;
  /// Called on the drawing thread once the largest view is known.
  std::function<void()> tellOfLimits;
};

}  // namespace lurkwell
