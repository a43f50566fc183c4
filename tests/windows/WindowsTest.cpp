// What every window uses: cells to the pixel, texts of values, the order of windows.
#include <gtest/gtest.h>

#include <QPainter>
#include <QTest>
#include <string>

#include "consolidator/TextScan.h"
#include "platform/simulated/SimulatedMachine.h"
#include "windows/CustomCells.h"
#include "windows/FrontmostWindow.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

template <typename Draw>
QImage Drawn(QSize size, Draw draw) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  draw(painter, image.rect());
  return image;
}

/// The length of each run of one colour along a line, as "3 white 1 blue ...".
std::string Runs(const QImage& image, int y) {
  std::string text;
  for (int x = 0; x < image.width();) {
    int end = x;
    while (end < image.width() && image.pixel(end, y) == image.pixel(x, y)) ++end;
    text += std::to_string(end - x) + image.pixelColor(x, y).name().toStdString() + " ";
    x = end;
  }
  return text;
}

TEST(CellsTest, CPUBarsHaveASliverAtLeastAndTheWholeWidthAtMost) {
  CPUCell cell;
  const auto draw = [&](double share) {
    cell.setCpuPercent(share);
    return Drawn({106, 20}, [&](QPainter& painter, const QRect& frame) {
      cell.drawInteriorWithFrame(painter, frame, false);
    });
  };
  EXPECT_EQ(Runs(draw(0.0), 10), "3#ffffff 1#0000ff 99#c0c0c0 3#ffffff ");
  EXPECT_EQ(Runs(draw(0.255), 10), "3#ffffff 25#0000ff 75#c0c0c0 3#ffffff ");
  EXPECT_EQ(Runs(draw(1.0), 10), "3#ffffff 100#0000ff 3#ffffff ");
  EXPECT_EQ(Runs(draw(1.0), 2), "106#ffffff ");
  EXPECT_EQ(Runs(draw(1.0), 3), Runs(draw(1.0), 16));
  EXPECT_EQ(Runs(draw(1.0), 17), "106#ffffff ");
}

TEST(CellsTest, MemoryBarsAreMeasuredByTheBiggest) {
  MemGraphCell cell;
  gBiggestVSZ = 1000;
  const auto draw = [&](std::int64_t resident, std::int64_t virtualSize) {
    cell.setRSZ(resident);
    cell.setVSZ(virtualSize);
    return Drawn({106, 20}, [&](QPainter& painter, const QRect& frame) {
      cell.drawInteriorWithFrame(painter, frame, QPalette());
    });
  };
  EXPECT_EQ(Runs(draw(100, 500), 10), "2#ffffff 10#004d00 40#33e633 1#6b6d72 53#ffffff ");
  EXPECT_EQ(Runs(draw(100, 500), 3), "2#ffffff 10#004d00 94#ffffff ") << "the resident is taller";
  EXPECT_EQ(Runs(draw(0, 0), 10), "2#ffffff 2#004d00 1#33e633 1#6b6d72 100#ffffff ") << "at least";
  EXPECT_EQ(Runs(draw(500, 2000), 10), "2#ffffff 25#596600 75#80b300 1#6b6d72 3#ffffff ")
      << "larger than any: full width, other colours";
}

TEST(TextsTest, TimesKeepTwoDigitsAtLeast) {
  for (const auto& [raw, shown] : {std::pair("12.340000", "12.34"), std::pair("12.500000", "12.50"),
                                   std::pair("12.000000", "12.00"), std::pair("3.141500", "3.1415"),
                                   std::pair("5.123456", "5.123456"), std::pair("0.000000", "0.00"),
                                   std::pair("100.000001", "100.000001"), std::pair("", "0.00")})
    EXPECT_EQ(TimeText(ReadTime(raw)).toStdString(), shown) << raw;
}

TEST(OrderTest, TheKeyboardGoesToTheFrontmostWindowOfAKnownTitle) {
  SimulatedMachine machine;
  const MachineInstallation installation(machine.services);
  QWidget other, process, preferences;
  other.setWindowTitle("Other Process");
  process.setWindowTitle("Processes of a test");
  preferences.setWindowTitle("Lurkwell Preferences");
  for (auto* widget : {&other, &process, &preferences}) WatchWindowOrder(*widget);
  EXPECT_FALSE(EnsureThatCocoaWindowIsFrontmostIfPossible()) << "none of them is visible";
  for (auto* widget : {&process, &preferences, &other}) {
    widget->show();
    widget->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(widget));
  }
  EXPECT_EQ(orderedWindows().first(), &other);
  EXPECT_TRUE(EnsureThatCocoaWindowIsFrontmostIfPossible());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&preferences));
  preferences.hide();
  EXPECT_TRUE(EnsureThatCocoaWindowIsFrontmostIfPossible());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&process));
  process.hide();
  EXPECT_FALSE(EnsureThatCocoaWindowIsFrontmostIfPossible());
  EXPECT_TRUE(other.isVisible());
}

}  // namespace
}  // namespace lurkwell
