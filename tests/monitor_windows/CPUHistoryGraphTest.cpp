// The graph's arithmetic and its picture, compared with literals.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "monitor_windows/CPUHistoryGraph.h"

namespace lurkwell {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

constexpr std::uint32_t kGround = 0xFF000000;
constexpr std::uint32_t kLine = 0xFF00FF00;
constexpr std::uint32_t kOwn = 0xFF0000FF;

CPUHistoryGraph Graph(int columns, int height, int processors = 4) {
  CPUHistoryGraph graph(columns, height, processors);
  graph.SetColours({kGround, kLine, kOwn});
  return graph;
}

/// The picture, a line per row: '#' the line, 'o' the own part's, '.' nothing.
std::string Picture(const CPUHistoryGraph& graph) {
  const auto& bitmap = graph.Bitmap();
  std::string text = "\n";
  for (int y = 0; y < bitmap.Height(); ++y) {
    for (int x = 0; x < bitmap.Width(); ++x) {
      const auto pixel = bitmap.Pixel(x, y);
      text += pixel == kLine ? '#' : pixel == kOwn ? 'o' : '.';
    }
    text += '\n';
  }
  return text;
}

TEST(CPUHistoryGraph, ValuesAreSmoothedBoundedAndBeginAtZeroAfterAGap) {
  auto graph = Graph(5, 10, 2);
  EXPECT_EQ(graph.AddDataPointToValuesArray(900.0, 1.0, 1.0), 0.0);
  EXPECT_DOUBLE_EQ(graph.AddDataPointToValuesArray(0.2, 1.0, 1.0), 0.1);
  EXPECT_DOUBLE_EQ(graph.AddDataPointToValuesArray(0.3, 1.0, 1.0), 0.2);
  EXPECT_DOUBLE_EQ(graph.AddDataPointToValuesArray(99.0, 1.0, 1.0), 1.1) << "two processors";
  EXPECT_DOUBLE_EQ(graph.AddDataPointToValuesArray(-5.0, 1.0, 1.0), 0.55);
  EXPECT_THAT(graph.Values(), ElementsAre(0.0, 0.1, DoubleNear(0.2, 1e-12), 1.1, 0.55));
  graph.SetFilter(0.75);
  EXPECT_DOUBLE_EQ(graph.AddDataPointToValuesArray(0.0001, 1.0, 0.0), 0.415)
      << "no time counts as 10 ms";
  EXPECT_THAT(graph.Values(),
              ElementsAre(0.1, DoubleNear(0.2, 1e-12), 1.1, 0.55, DoubleNear(0.415, 1e-12)))
      << "the oldest makes room";
  EXPECT_DEATH(CPUHistoryGraph(0, 10, 1),
               "CPUHistoryWindow:[0-9]+: failed assertion `mBounds.right > mBounds.left'");
}

TEST(CPUHistoryGraph, TheOwnPartIsSmoothedOnItsOwn) {
  auto graph = Graph(4, 10);
  graph.AddDataPointToValuesArray(0.4, 0.5, 1.0);
  graph.SetTrackDescendants(true);
  EXPECT_THAT(graph.OwnValues(), ElementsAre(-1.0, -1.0, -1.0, -1.0));
  graph.AddDataPointToValuesArray(0.4, 0.5, 1.0);
  graph.AddDataPointToValuesArray(0.4, 0.5, 1.0);
  graph.AddDataPointToValuesArray(0.4, 0.25, 1.0);
  // Values 0.2, 0.3, 0.35; own parts 0.1 (counted as 0 after the gap), 0.15, 0.0875.
  EXPECT_THAT(graph.OwnValues(),
              ElementsAre(-1.0, 0.0, DoubleNear(0.075, 1e-12), DoubleNear(0.08125, 1e-12)));
}

TEST(CPUHistoryGraph, TheRelativeScaleStepsAndItsLabelFlashesForTwelveUpdates) {
  using Colour = CPUHistoryGraph::ScaleLabelColour;
  auto graph = Graph(3, 10);
  graph.SetFilter(0.0);
  const auto scaleAt = [&](double load) {
    graph.SanitizeForScaling(load, 1.0, 1.0);
    return graph.ScalePercent();
  };
  EXPECT_EQ(graph.ScalePercent(), 100);
  EXPECT_EQ(scaleAt(0.9), 1) << "nothing yet, but at least one percent";
  EXPECT_EQ(scaleAt(0.031), 4);
  EXPECT_EQ(scaleAt(0.049), 5);
  EXPECT_EQ(scaleAt(0.37), 40);
  EXPECT_EQ(scaleAt(0.02), 40) << "as long as the largest one is in the picture";
  EXPECT_EQ(scaleAt(1.23), 125);
  for (int i = 0; i < 12; ++i) {
    EXPECT_TRUE(graph.AreLabelsDirty());
    EXPECT_EQ(graph.TakeScaleLabelColour(), i % 2 == 0 ? Colour::kFlash : Colour::kRelative) << i;
  }
  EXPECT_TRUE(graph.AreLabelsDirty()) << "once more, without a flash";
  EXPECT_EQ(graph.TakeScaleLabelColour(), Colour::kRelative);
  EXPECT_FALSE(graph.AreLabelsDirty());
  scaleAt(0.01);
  scaleAt(0.01);
  EXPECT_EQ(scaleAt(0.01), 1);
  graph.SetRelative(false);
  EXPECT_EQ(graph.ScalePercent(), 100);
  EXPECT_EQ(graph.TakeScaleLabelColour(), Colour::kAbsolute);
  EXPECT_EQ(scaleAt(2.0), 100);
}

TEST(CPUHistoryGraph, AnUpdateMovesThePictureByOneColumn) {
  auto graph = Graph(5, 6);
  graph.SetRelative(false);
  graph.DrawRightmostPixel(0.0, -1.0);
  graph.DrawRightmostPixel(0.4, -1.0);
  EXPECT_EQ(Picture(graph), R"(
.....
.....
.....
....#
....#
...##
)") << "from below the picture, then up by two rows: one in the left column, two in the right one";
  graph.DrawRightmostPixel(1.0, -1.0);
  EXPECT_EQ(Picture(graph), R"(
....#
....#
...##
...#.
...#.
..##.
)");
  graph.DrawRightmostPixel(-1.0, -1.0);
  graph.DrawRightmostPixel(1.0, -1.0);
  EXPECT_EQ(Picture(graph), R"(
..#.#
..#.#
.##.#
.#..#
.#..#
##..#
)") << "no value, no line; the next one comes from far below";
}

TEST(CPUHistoryGraph, TheOwnPartLiesAtTheShareAndInARedrawAtTheValueTimesItself) {
  auto graph = Graph(4, 11);
  graph.SetRelative(false);
  graph.SetFilter(0.0);
  graph.SetTrackDescendants(true);
  for (int i = 0; i < 6; ++i)
    graph.DrawRightmostPixel(graph.SanitizeForScaling(0.6, 0.5, 1.0), 0.5);
  const auto row = [&](std::uint32_t colour) {
    for (int y = 0; y < 11; ++y)
      if (graph.Bitmap().Pixel(3, y) == colour) return y;
    return -1;
  };
  EXPECT_EQ(row(kLine), 4);
  EXPECT_EQ(row(kOwn), 7) << "0.6 times 0.5";
  graph.RedrawEntireWindow();
  EXPECT_EQ(row(kLine), 4);
  EXPECT_EQ(row(kOwn), 9) << "0.6 times 0.3";
}

TEST(CPUHistoryGraph, AFullRedrawDrawsAllColumnsButTheNewest) {
  auto graph = Graph(150, 70);
  graph.SetRelative(false);
  graph.SetFilter(0.0);
  for (int i = 0; i < 400; ++i) graph.AddDataPointToValuesArray(i % 40 * 0.025, 1.0, 1.0);
  EXPECT_EQ(graph.Values().size(), 150U);
  graph.RedrawEntireWindow();
  const auto values = graph.Values();
  for (int x = 1; x < 150; ++x) {
    const auto y = graph.ScaleToInteger(values[static_cast<std::size_t>(x) - 1]);
    EXPECT_EQ(graph.Bitmap().Pixel(x, y), kLine) << x;
  }
}

TEST(CPUHistoryGraph, ThePercentageHasThreeCharactersAndRidesWithTheGraph) {
  EXPECT_EQ(PercentageText(0.0), "\u00A00%");
  EXPECT_EQ(PercentageText(0.076), "\u00A08%");
  EXPECT_EQ(PercentageText(0.095), "10%");
  EXPECT_EQ(PercentageText(0.994), "99%");
  EXPECT_EQ(PercentageText(1.0), "100");
  EXPECT_EQ(PercentageText(9.995), "999");
  EXPECT_EQ(PercentageText(64.0), "999");
  auto graph = Graph(10, 70);
  EXPECT_EQ(graph.PercentageOffset(0.0, 59), 56);
  EXPECT_EQ(graph.PercentageOffset(0.5, 59), 29);
  EXPECT_EQ(graph.PercentageOffset(0.99, 59), 3);
  EXPECT_EQ(graph.PercentageOffset(7.0, 59), 3);
  graph.SetFilter(0.0);
  graph.SanitizeForScaling(0.1, 1.0, 1.0);
  graph.SanitizeForScaling(0.1, 1.0, 1.0);
  EXPECT_EQ(graph.ScalePercent(), 10);
  EXPECT_EQ(graph.PercentageOffset(0.05, 59), 29) << "half of ten percent";
}

}  // namespace
}  // namespace lurkwell
