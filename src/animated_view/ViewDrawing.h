#pragma once

#include <functional>
#include <vector>

#include "animated_view/DrawingContext.h"
#include "animated_view/FrameContents.h"
#include "animated_view/FrameRenderer.h"

namespace lurkwell {

/// What both views draw with. Inside gQuintessentialMutex, but for the making and the end.
struct ViewDrawing {
  DrawingContext context;
  FrameRenderer renderer;
  ViewMarks marks;
  /// Kept from frame to frame for its memory.
  std::vector<DrawnProcess> processes;
  /// Drawing has failed; nothing is drawn until the main thread has dealt with it.
  bool hasFailed = false;
  /// Whether a frame has been drawn since the last failure.
  bool hasDrawn = false;
  /// Called on the drawing thread when it fails; has the main thread do something about it.
  std::function<void()> tellOfFailure;
  /// Called on the drawing thread once the largest view is known.
  std::function<void()> tellOfLimits;
};

}  // namespace lurkwell
