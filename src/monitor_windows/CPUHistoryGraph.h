#pragma once

#include <cstdint>
#include <string>
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

/// The source that the assertions of a history name, in whichever of its files they stand.
inline constexpr char kHistoryUnit[] = "CPUHistoryWindow";

/// The graph of a CPU history window: its values, its scale and its picture. A value of 1.0 is one
/// CPU kept busy. Knows nothing of windows; plain value, any thread.
class CPUHistoryGraph {
 public:
  /// 0xAARRGGBB.
  struct Colours {
    std::uint32_t background = 0xFF000000;
    std::uint32_t line = 0xFFFFFFFF;
    std::uint32_t ownShareLine = 0xFF0000FF;
  };

  /// One value per column. Without a column the assertion "mBounds.right > mBounds.left" fails.
  /// `processors` bounds the values.
  CPUHistoryGraph(int columns, int height, int processors);

  // ---- Settings ---------------------------------------------------------------------------------

  void SetColours(const Colours& colours) { mColours = colours; }
  /// The weight of the value before, 0 to 1.
  void SetFilter(double filter) { mFilter = filter; }
  /// Relative: the full scale follows the largest value. Otherwise it is 100 % from now on.
  void SetRelative(bool relative);
  bool IsRelative() const { return mRelative; }
  /// The process's own part gets a line of its own. Turning it on forgets earlier own parts.
  void SetTrackDescendants(bool track);
  bool TracksDescendants() const { return mTrackDescendants; }

  /// The newest values stay, at the right edge; the picture is drawn anew. At least one column.
  void Resize(int columns, int height);

  // ---- A point ----------------------------------------------------------------------------------

  /// A point for `cpuSeconds` used within `elapsedSeconds`, of which the process itself used the
  /// part `share`; the scale follows, and after a change of it the whole picture is drawn anew.
  /// The smoothed value.
  double SanitizeForScaling(double cpuSeconds, double share, double elapsedSeconds);

  /// Smooths and stores a point; the smoothed value, 0 for the first point after a gap.
  double AddDataPointToValuesArray(double cpuSeconds, double share, double elapsedSeconds);

  /// Moves the picture by one column and draws the newest one: the line of `value`, unless that is
  /// negative, and the own part at `value` times `share`, when that is wanted and not negative.
  void DrawRightmostPixel(double value, double share);

  /// Fills the picture with the background.
  void Erase() { mBitmap.Erase(mColours.background); }

  /// Draws all columns again, the oldest first. Own parts lie at the value times the stored own
  /// part here, lower than in the running graph.
  void RedrawEntireWindow();

  // ---- What labels show -------------------------------------------------------------------------

  /// The value of the upper edge, in percent.
  int ScalePercent() const { return mScalePercent; }
  /// Whether labels have to be drawn again.
  bool AreLabelsDirty() const { return mLabelsDirty; }
  void MarkLabelsDirty() { mLabelsDirty = true; }

  enum class ScaleLabelColour { kAbsolute, kRelative, kFlash };
  /// Labels are being drawn: the colour of the full scale now. While it flashes they stay dirty.
  ScaleLabelColour TakeScaleLabelColour();

  /// How far below the upper edge the percentage rides, for a label that can travel `travel`
  /// pixels.
  int PercentageOffset(double value, int travel) const;

  // ---- For drawing and for tests ----------------------------------------------------------------

  const GraphBitmap& Bitmap() const { return mBitmap; }
  int ScaleToInteger(double value) const;
  /// From the oldest to the newest; -1 where there is no data.
  std::vector<double> Values() const { return InOrder(mCPUValuesArray); }
  std::vector<double> OwnValues() const { return InOrder(mCPUDescendantsArray); }

 private:
  std::vector<double> InOrder(const std::vector<double>& ring) const;
  /// The ring with another number of places, its newest value at the last one.
  std::vector<double> Resized(const std::vector<double>& ring, std::size_t places) const;

  GraphBitmap mBitmap;
  Colours mColours;
  double mFilter = 0.5;
  int mProcessors;
  bool mRelative = true;
  bool mTrackDescendants = false;
  /// Rings, one entry per column; the newest one is at the write index.
  std::vector<double> mCPUValuesArray;
  std::vector<double> mCPUDescendantsArray;
  std::size_t mWriteIndex = 0;
  int mScalePercent = 100;
  int mFlashCount = 0;
  bool mLabelsDirty = true;
  int mLastY;
  int mLastDescendantsY;
};

/// Three characters for a value, rounded to percent: "%" behind two of them, a no-break space for
/// a missing first digit; three digits alone from 100 to 999. UTF-8.
std::string PercentageText(double value);

}  // namespace lurkwell
