#pragma once

#include <cstdint>
#include <span>
#include <unordered_set>
#include <vector>

#include "animated_view/FrameRenderer.h"
#include "animated_view/QuintessentialInformationClient.h"

namespace lurkwell {

/// The size of a view. Pixels are device pixels.
struct ViewSize {
  double width = 0, height = 0;  ///< points
  double pixelRatio = 1;         ///< pixels per point

  int PixelWidth() const;
  int PixelHeight() const;
};

/// How a view shows itself.
enum class ViewMode {
  kWindow,
  kOverlay,           ///< what is behind shines through
  kOpaqueFullscreen,  ///< in its place, where windows cannot be translucent
};

/// What stands out among the processes.
struct ViewMarks {
  /// What has a ring: what is selected in the table.
  std::unordered_set<std::int32_t> selected;
  /// Whose label comes before all others: under the pointer; -1 for none.
  std::int32_t pointedAt = -1;
};

/// What follows is done inside gQuintessentialMutex.

/// Gives every record that has new pictures its places in the renderer.
void InitializeOpenGLProcessInfo(QipiList& list, FrameRenderer& renderer);

/// What a frame shows of the records, in their order; `processes` is overwritten. A label follows
/// its process from pixel to pixel, and only when that has moved far enough. Of a hundred processes
/// or more, those whose labels would lie on more important ones (under the pointer, marked,
/// heavier) go without.
void FindWhatIsDrawn(QipiList& list, const QuintessentialDrawingSettings& settings,
                     const ViewMarks& marks, ViewMode mode, const ViewSize& size,
                     std::vector<DrawnProcess>& processes);

FrameLook LookOf(const QuintessentialDrawingSettings& settings, ViewMode mode,
                 const ViewSize& size);

/// A label in a view, in device pixels from the top left corner.
struct LabelBox {
  int left = 0, top = 0, width = 0, height = 0;
  double importance = 0;
};

/// Which of the labels can stand without lying on one of greater importance, one by one; among
/// equals the first stands. Any thread; the work grows with their number, not with its square.
std::vector<bool> WhichLabelsStand(std::span<const LabelBox> labels, int viewWidth, int viewHeight);

}  // namespace lurkwell
