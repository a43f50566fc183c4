#pragma once

#include <span>
#include <vector>

namespace lurkwell {

/// A label in a view, in device pixels from the top left corner.
struct LabelBox {
  int left = 0, top = 0, width = 0, height = 0;
  double importance = 0;
};

/// Which of the labels can stand without lying on one of greater importance, one by one; among
/// equals the first stands. Any thread; the work grows with their number, not with its square.
std::vector<bool> WhichLabelsStand(std::span<const LabelBox> labels, int viewWidth, int viewHeight);

}  // namespace lurkwell
