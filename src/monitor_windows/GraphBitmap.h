#pragma once

#include <cstdint>
#include <vector>

namespace lurkwell {

/// The picture of a graph that moves to the left. The columns lie in a ring, so that moving the
/// picture by one column costs one column. Pixels are 0xAARRGGBB. Plain value, any thread.
class GraphBitmap {
 public:
  GraphBitmap(int width, int height);

  int Width() const { return mWidth; }
  int Height() const { return mHeight; }

  void Erase(std::uint32_t colour);

  /// Every column moves one place to the left; the rightmost one becomes empty.
  void ScrollLeft(std::uint32_t background);

  /// A line from (`right` - 2, `fromY`) to (`right` - 1, `toY`), where `right` is the width, with a
  /// pen one pixel wide and `penHeight` high that hangs down from its place. What lies outside is
  /// cut off.
  void LineToRightEdge(int fromY, int toY, int penHeight, std::uint32_t colour);

  /// As it is seen, with `x` counted from the left edge.
  std::uint32_t Pixel(int x, int y) const { return mPixels[Index(x, y)]; }

  /// The rows of the ring, `Width()` pixels each, without gaps; the picture begins at column
  /// `FirstColumn()` and goes round.
  const std::uint32_t* Pixels() const { return mPixels.data(); }
  int FirstColumn() const { return mFirst; }

 private:
  std::size_t Index(int x, int y) const {
    const int column = mFirst + x < mWidth ? mFirst + x : mFirst + x - mWidth;
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(mWidth) +
           static_cast<std::size_t>(column);
  }
  void Fill(int x, int top, int bottom, std::uint32_t colour);

  int mWidth;
  int mHeight;
  int mFirst = 0;
  std::vector<std::uint32_t> mPixels;
};

}  // namespace lurkwell
