// Figures over time: what is kept, how it is scaled, what is seen of it at any scale, and the
// cursor.
#include <gtest/gtest.h>

#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "platform/simulated/SimulatedMachine.h"
#include "windows/FigureHistory.h"
#include "windows/GraphPlot.h"
#include "windows/GraphScale.h"
#include "windows/TimeGraph.h"

namespace lurkwell {
namespace {

constexpr float kNone = FigureHistory::kMissing;

TEST(FigureHistoryTest, TheOldestGoesAndWhatWasNotThereIsMissing) {
  FigureHistory history(4);
  ASSERT_EQ(history.AddSeries(), 0U);
  for (int i = 1; i <= 3; ++i) history.Add(i * 1000, std::array{static_cast<float>(i)});
  ASSERT_EQ(history.AddSeries(), 1U) << "a disk that came";
  EXPECT_FALSE(IsThere(history.ValueOf(1, 2)));
  for (int i = 4; i <= 6; ++i) history.Add(i * 1000, std::array{static_cast<float>(i), 7.0F});
  history.Add(6000, std::array{99.0F});
  history.Add(7000, std::array{kNone});
  ASSERT_EQ(history.Size(), 4U);
  EXPECT_EQ(history.TimeOf(0), 4000);
  EXPECT_EQ(history.ValueOf(0, 2), 6.0F) << "a time that has been is not told again";
  EXPECT_EQ(history.ValueOf(1, 0), 7.0F);
  EXPECT_FALSE(IsThere(history.ValueOf(0, 3)) || IsThere(history.ValueOf(1, 3)));
  EXPECT_EQ(history.FirstSince(4001), 1U);
  EXPECT_EQ(history.FirstSince(9000), 4U);
  EXPECT_EQ(history.NearestTo(5400), 1U);
  EXPECT_EQ(history.NearestTo(5600), 2U);
  EXPECT_EQ(history.NearestTo(0), 0U);
  EXPECT_EQ(history.NearestTo(90000), 3U);
}

TEST(GraphScaleTest, HasStepsThatPeopleCountIn) {
  const auto lines = [](double most, GraphUnit unit, int steps) {
    const auto scale = NiceGraphScale(most, unit, steps);
    EXPECT_GE(scale.top, most);
    std::string text;
    for (double line = 0; line <= scale.top * 1.0001; line += scale.step)
      text += GraphScaleText(unit, line).toStdString() + "|";
    return text;
  };
  EXPECT_EQ(lines(1, GraphUnit::kShare, 4), "0 %|50 %|100 %|");
  EXPECT_EQ(lines(1, GraphUnit::kShare, 5), "0 %|20 %|40 %|60 %|80 %|100 %|");
  EXPECT_EQ(lines(3.1, GraphUnit::kShare, 4), "0 %|100 %|200 %|300 %|400 %|");
  EXPECT_EQ(lines(0.013, GraphUnit::kNumber, 4), "0|0.005|0.01|0.015|");
  EXPECT_EQ(lines(700.0 * 1024, GraphUnit::kBytesPerSecond, 4), "0 B/s|256 K/s|512 K/s|768 K/s|");
  EXPECT_EQ(lines(3e9, GraphUnit::kBytes, 4), "0 B|1 G|2 G|3 G|");
  for (const double none : {0.0, -5.0, std::nan(""), HUGE_VAL}) {
    const auto scale = NiceGraphScale(none, GraphUnit::kNumber, 4);
    EXPECT_EQ(scale.top, 1.0) << none;
    EXPECT_EQ(scale.step, 1.0) << none;
  }
}

/// A plot of 100 by 100 units over 100 seconds, from 0 to 1, drawn at that scale on white.
QImage Plotted(const FigureHistory& history, double scale) {
  const auto size = static_cast<int>(100 * scale);
  QImage image(size, size, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  QPainter painter(&image);
  const GraphPlot plot{{0, 0, 100, 100}, 100'000, 100'000, 1, 5'000};
  plot.Draw(painter, history, 0, {QColor(Qt::black), Qt::SolidLine, false});
  return image;
}

/// How many pixels of a column are black, and how many neither black nor white.
std::pair<int, int> InColumn(const QImage& image, int x) {
  int black = 0, grey = 0;
  for (int y = 0; y < image.height(); ++y) {
    const int value = qGray(image.pixel(x, y));
    black += value < 96;
    grey += value >= 96 && value < 240;
  }
  return {black, grey};
}

TEST(GraphPlotTest, LevelsAreWholePixelsAtAnyScaleAndGapsAreEmpty) {
  FigureHistory history(1000);
  history.AddSeries();
  for (int second = 0; second <= 100; ++second)
    if (second < 60 || second > 70)
      history.Add(second * 1000, std::array{second > 30 && second < 40 ? kNone : 0.437F});
  for (const auto& [scale, wide] : {std::pair(1.0, 1), {1.25, 1}, {1.5, 2}, {2.0, 2}, {3.0, 4}}) {
    const auto image = Plotted(history, scale);
    const auto column = [&](double at) {
      return InColumn(image, static_cast<int>(std::lround(at * scale)));
    };
    for (const double at : {5.5, 50.5, 90.5}) EXPECT_EQ(column(at), std::pair(wide, 0)) << scale;
    EXPECT_EQ(column(35), std::pair(0, 0)) << "figures were missing";
    EXPECT_EQ(column(65), std::pair(0, 0)) << "nobody looked";
  }
}

TEST(GraphPlotTest, AnHourShowsTheBeatThatStoodOutAndOneAloneIsADot) {
  FigureHistory history(10'000);
  history.AddSeries();
  history.AddSeries();
  for (int i = 0; i < 10'000; ++i)
    history.Add(i * 10 + 1, std::array{i == 5003   ? 1.0F
                                       : i == 7001 ? 0.0F
                                                   : 0.5F,
                                       i == 5000 ? 0.5F : kNone});
  const auto image = Plotted(history, 1);
  const auto marks = [&](int x) { return InColumn(image, x).first + InColumn(image, x).second; };
  EXPECT_GT(marks(50), 45) << "upwards";
  EXPECT_GT(marks(70), 45) << "downwards";
  EXPECT_LT(marks(60), 3);
  QImage dot(100, 100, QImage::Format_RGB32);
  dot.fill(Qt::white);
  QPainter painter(&dot);
  GraphPlot{{0, 0, 100, 100}, 100'000, 100'000, 1, 5'000}.Draw(painter, history, 1,
                                                               LookOfSeries(0, false));
  EXPECT_NE(dot.pixelColor(50, 50), QColor(Qt::white));
}

TEST(GraphPlotTest, NoTwoSeriesLookAlikeInGreyOrByStyle) {
  for (const bool isDark : {false, true})
    for (std::size_t a = 0; a < 5; ++a)
      for (std::size_t b = a + 1; b < 5; ++b)
        EXPECT_NE(LookOfSeries(a, isDark).style, LookOfSeries(b, isDark).style);
}

class TimeGraphTest : public testing::Test {
 protected:
  TimeGraphTest() {
    history.AddSeries();
    history.AddSeries();
    for (int i = 0; i < 50; ++i)
      history.Add(i * 2000, std::array{static_cast<float>(i) / 100, i == 48 ? kNone : 0.25F});
    graph.setHistory(&history, {{"used", 0}, {"lent", 1}});
    graph.setSpan(60'000);
    graph.resize(500, 160);
  }

  std::string Figures() const {
    const auto text = graph.figures();
    return text.mid(text.indexOf(": ") + 2).toStdString();
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  FigureHistory history{100};
  TimeGraph graph{"Memory", GraphUnit::kShare};
};

TEST_F(TimeGraphTest, KeysAndPointerTellTheFiguresOfAMoment) {
  graph.show();
  graph.setFocus();
  EXPECT_EQ(graph.accessibleName(), "Memory");
  EXPECT_EQ(Figures(), "used 49.0 %, lent 25.0 %");
  QSignalSpy chosen(&graph, &TimeGraph::momentChosen);
  QSignalSpy moved(&graph, &TimeGraph::cursorMoved);
  QTest::keyClick(&graph, Qt::Key_Return);
  EXPECT_EQ(chosen.size(), 0) << "no moment is pointed at";
  QTest::keyClick(&graph, Qt::Key_Left);
  EXPECT_EQ(Figures(), "used 49.0 %, lent 25.0 %") << "the cursor comes where one looked already";
  QTest::keyClick(&graph, Qt::Key_Left);
  EXPECT_EQ(Figures(), "used 48.0 %, lent not known");
  QTest::keyClick(&graph, Qt::Key_Return);
  ASSERT_EQ(chosen.size(), 1);
  EXPECT_EQ(chosen[0][0].toLongLong(), 96'000);
  QTest::keyClick(&graph, Qt::Key_Home);
  EXPECT_EQ(graph.cursor(), 38'000) << "the span's oldest";
  QTest::keyClick(&graph, Qt::Key_Left);
  EXPECT_EQ(graph.cursor(), 38'000);
  QTest::keyClick(&graph, Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(graph.cursor(), 58'000);
  QTest::keyClick(&graph, Qt::Key_Escape);
  EXPECT_FALSE(graph.cursor());
  EXPECT_EQ(moved.size(), 5);

  QTest::mouseMove(&graph, QPoint(498, 80));
  ASSERT_TRUE(graph.cursor());
  EXPECT_NEAR(static_cast<double>(*graph.cursor()), 98'000, 500);
  // The pointer rests while time goes on.
  history.Add(100'000, std::array{0.9F, 0.1F});
  graph.historyHasGrown();
  EXPECT_EQ(Figures(), "used 90.0 %, lent 10.0 %");
  QTest::mouseClick(&graph, Qt::LeftButton, {}, QPoint(498, 80));
  EXPECT_EQ(chosen.size(), 2);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&graph, &leave);
  EXPECT_FALSE(graph.cursor());
}

TEST_F(TimeGraphTest, SaysWhyThereIsNothing) {
  const FigureHistory nothing(1);
  graph.setEmptyText("This kernel does not tell it.");
  EXPECT_EQ(Figures(), "used 49.0 %, lent 25.0 %");
  graph.setHistory(&nothing, {});
  EXPECT_EQ(graph.figures(), "This kernel does not tell it.");
  graph.setHistory(nullptr, {});
  graph.show();
  for (const auto key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Return}) QTest::keyClick(&graph, key);
  EXPECT_FALSE(graph.grab().isNull()) << "drawn without a history";
  EXPECT_FALSE(graph.cursor());
}

}  // namespace
}  // namespace lurkwell
