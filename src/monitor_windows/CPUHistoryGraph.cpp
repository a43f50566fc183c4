#include "monitor_windows/CPUHistoryGraph.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/Assertion.h"

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

namespace {

constexpr double kNoData = -1.0;
/// Where lines come from after a gap: from below, unless the window is very tall.
constexpr int kBelowTheGraph = 140;
constexpr int kFlashes = 12;
constexpr double kShortestTime = 0.01;

}  // namespace

CPUHistoryGraph::CPUHistoryGraph(int columns, int height, int processors)
    : mBitmap(columns, height),
      mProcessors(std::max(processors, 1)),
      mLastY(kBelowTheGraph),
      mLastDescendantsY(kBelowTheGraph) {
  Require(columns > 0, kHistoryUnit, "mBounds.right > mBounds.left");
  mCPUValuesArray.assign(static_cast<std::size_t>(columns), kNoData);
}

void CPUHistoryGraph::SetRelative(bool relative) {
  mRelative = relative;
  if (relative) return;
  mScalePercent = 100;
  mFlashCount = 0;
}

void CPUHistoryGraph::SetTrackDescendants(bool track) {
  if (track && !mTrackDescendants) mCPUDescendantsArray.assign(mCPUValuesArray.size(), kNoData);
  mTrackDescendants = track;
}

std::vector<double> CPUHistoryGraph::Resized(const std::vector<double>& ring,
                                             std::size_t places) const {
  const auto values = InOrder(ring);
  std::vector<double> resized(places, kNoData);
  const auto kept = static_cast<std::ptrdiff_t>(std::min(values.size(), places));
  std::copy(values.end() - kept, values.end(), resized.end() - kept);
  return resized;
}

void CPUHistoryGraph::Resize(int columns, int height) {
  const auto places = static_cast<std::size_t>(std::max(columns, 1));
  auto values = Resized(mCPUValuesArray, places);
  if (mTrackDescendants) mCPUDescendantsArray = Resized(mCPUDescendantsArray, places);
  mCPUValuesArray = std::move(values);
  mWriteIndex = places - 1;
  mBitmap = GraphBitmap(columns, height);
  mLabelsDirty = true;
  Erase();
  RedrawEntireWindow();
}

double CPUHistoryGraph::AddDataPointToValuesArray(double cpuSeconds, double share,
                                                  double elapsedSeconds) {
  const std::size_t previous = mWriteIndex;
  mWriteIndex = mWriteIndex + 1 < mCPUValuesArray.size() ? mWriteIndex + 1 : 0;
  const double load = std::min(std::max(0.0, cpuSeconds / std::max(kShortestTime, elapsedSeconds)),
                               static_cast<double>(mProcessors));
  const auto smoothed = [&](double before, double now) {
    return before >= 0.0 ? (before - now) * mFilter + now : 0.0;
  };
  const double value = smoothed(mCPUValuesArray[previous], load);
  mCPUValuesArray[mWriteIndex] = value;
  if (mTrackDescendants)
    mCPUDescendantsArray[mWriteIndex] = smoothed(mCPUDescendantsArray[previous], share * value);
  return value;
}

double CPUHistoryGraph::SanitizeForScaling(double cpuSeconds, double share, double elapsedSeconds) {
  const double value = AddDataPointToValuesArray(cpuSeconds, share, elapsedSeconds);
  if (!mRelative) return value;
  const double largest = std::max(std::ranges::max(mCPUValuesArray), 0.01);
  const int scale = largest >= 0.05 ? 5 * static_cast<int>(std::ceil(largest * 20.0))
                                    : static_cast<int>(std::ceil(largest * 100.0));
  if (scale != mScalePercent) {
    mScalePercent = scale;
    mFlashCount = kFlashes;
    mLabelsDirty = true;
    RedrawEntireWindow();
  }
  return value;
}

int CPUHistoryGraph::ScaleToInteger(double value) const {
  const double height =
      std::max(0.0, value) * (mBitmap.Height() - 1) * (100.0 / static_cast<double>(mScalePercent));
  return mBitmap.Height() - 1 - static_cast<int>(height);
}

void CPUHistoryGraph::DrawRightmostPixel(double value, double share) {
  mBitmap.ScrollLeft(mColours.background);
  if (mTrackDescendants && share >= 0.0) {
    const int y = ScaleToInteger(value * share);
    mBitmap.LineToRightEdge(mLastDescendantsY, y, 1, mColours.ownShareLine);
    mLastDescendantsY = y;
  }
  if (value >= 0.0) {
    const int y = ScaleToInteger(value);
    mBitmap.LineToRightEdge(mLastY, y, 2, mColours.line);
    mLastY = y;
  } else {
    mLastY = kBelowTheGraph;
  }
}

void CPUHistoryGraph::RedrawEntireWindow() {
  const std::size_t columns = mCPUValuesArray.size();
  for (std::size_t step = 1; step < columns; ++step) {
    const std::size_t index = (mWriteIndex + step) % columns;
    DrawRightmostPixel(mCPUValuesArray[index],
                       mTrackDescendants ? mCPUDescendantsArray[index] : -1.0);
  }
}

CPUHistoryGraph::ScaleLabelColour CPUHistoryGraph::TakeScaleLabelColour() {
  mLabelsDirty = false;
  if (mFlashCount > 0) {
    --mFlashCount;
    mLabelsDirty = true;
    return mFlashCount % 2 == 1 ? ScaleLabelColour::kFlash : ScaleLabelColour::kRelative;
  }
  return mRelative ? ScaleLabelColour::kRelative : ScaleLabelColour::kAbsolute;
}

int CPUHistoryGraph::PercentageOffset(double value, int travel) const {
  const double full = mRelative ? mScalePercent / 100.0 : 1.0;
  const double offset = std::max(3.0, (full - value) / full * travel);
  return static_cast<int>(std::min(travel - 3.0, offset));
}

std::vector<double> CPUHistoryGraph::InOrder(const std::vector<double>& ring) const {
  std::vector<double> values;
  values.reserve(ring.size());
  for (std::size_t step = 1; step <= ring.size(); ++step)
    values.push_back(ring[(mWriteIndex + step) % ring.size()]);
  return values;
}

std::string PercentageText(double value) {
  const int percent = static_cast<int>(std::min(std::max(value, 0.0) * 100.0 + 0.5, 999.0));
  if (percent >= 100) return std::to_string(percent);
  const std::string first = percent < 10 ? "\u00A0" : std::to_string(percent / 10);
  return first + std::to_string(percent % 10) + "%";
}

}  // namespace lurkwell
