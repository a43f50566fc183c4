#include "monitor_windows/GraphBitmap.h"

#include <algorithm>

namespace lurkwell {

GraphBitmap::GraphBitmap(int width, int height)
    : mWidth(std::max(width, 1)),
      mHeight(std::max(height, 1)),
      mPixels(static_cast<std::size_t>(mWidth) * static_cast<std::size_t>(mHeight)) {}

void GraphBitmap::Erase(std::uint32_t colour) {
  std::ranges::fill(mPixels, colour);
}

void GraphBitmap::ScrollLeft(std::uint32_t background) {
  mFirst = mFirst + 1 < mWidth ? mFirst + 1 : 0;
  Fill(mWidth - 1, 0, mHeight, background);
}

void GraphBitmap::LineToRightEdge(int fromY, int toY, int penHeight, std::uint32_t colour) {
  // Each of the two columns takes the half of the way that is nearer to it; the middle of an odd
  // number of rows falls to the right one.
  const int distance = toY - fromY;
  const int steps = distance < 0 ? -distance : distance;
  const int direction = distance < 0 ? -1 : 1;
  const int lastOnLeft = steps == 0 ? 0 : (steps - 1) / 2;
  const int firstOnRight = steps == 0 ? 0 : lastOnLeft + 1;
  const auto span = [&](int x, int y1, int y2) {
    Fill(x, std::min(y1, y2), std::max(y1, y2) + penHeight, colour);
  };
  if (mWidth > 1) span(mWidth - 2, fromY, fromY + direction * lastOnLeft);
  span(mWidth - 1, fromY + direction * firstOnRight, toY);
}

void GraphBitmap::Fill(int x, int top, int bottom, std::uint32_t colour) {
  top = std::max(top, 0);
  bottom = std::min(bottom, mHeight);
  for (int y = top; y < bottom; ++y) mPixels[Index(x, y)] = colour;
}

}  // namespace lurkwell
