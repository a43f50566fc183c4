// What is drawn, to the pixel.
#include <unistd.h>

#include <QPaintEvent>
#include <QPainter>
#include <clocale>
#include <cstdlib>
#include <filesystem>

#include "consolidator/TextScan.h"
#include "main_window/CustomCells.h"
#include "main_window/MainWindowTest.h"
#include "main_window/PropertyText.h"

namespace lurkwell {
namespace {

using CellsTest = MainWindowTest;

const QColor kBlue(Qt::blue);
const QColor kGrey(Qt::lightGray);

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

TEST_F(CellsTest, CPUBarsHaveASliverAtLeastAndTheWholeWidthAtMost) {
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

TEST_F(CellsTest, MemoryBarsAreMeasuredByTheBiggest) {
  MemGraphCell cell;
  gBiggestVSZ = 1000;
  const auto draw = [&](std::int64_t resident, std::int64_t virtualSize) {
    cell.setRSZ(resident);
    cell.setVSZ(virtualSize);
    return Drawn({106, 20}, [&](QPainter& painter, const QRect& frame) {
      cell.drawInteriorWithFrame(painter, frame, QPalette());
    });
  };
  EXPECT_EQ(Runs(draw(100, 500), 10), "2#ffffff 10#004d00 41#33e633 53#ffffff ");
  EXPECT_EQ(Runs(draw(100, 500), 3), "2#ffffff 10#004d00 94#ffffff ") << "the resident is taller";
  EXPECT_EQ(Runs(draw(0, 0), 10), "2#ffffff 2#004d00 2#33e633 100#ffffff ") << "at least";
  EXPECT_EQ(Runs(draw(500, 2000), 10), "2#ffffff 25#596600 76#80b300 3#ffffff ")
      << "larger than any: full width, other colours";
}

TEST_F(CellsTest, TimesKeepTwoDigitsAtLeast) {
  for (const auto& [raw, shown] : {std::pair("12.340000", "12.34"), std::pair("12.500000", "12.50"),
                                   std::pair("12.000000", "12.00"), std::pair("3.141500", "3.1415"),
                                   std::pair("5.123456", "5.123456"), std::pair("0.000000", "0.00"),
                                   std::pair("100.000001", "100.000001"), std::pair("", "0.00")})
    EXPECT_EQ(TimeText(ReadTime(raw)).toStdString(), shown) << raw;
}

TEST_F(CellsTest, NumbersHaveAPointWhateverTheUsersLanguage) {
  const auto folder = std::filesystem::path(testing::TempDir()) / std::to_string(::getpid());
  std::filesystem::create_directory(folder);
  const auto locale = folder / "comma.UTF-8";
  ASSERT_EQ(std::system(("localedef -i de_DE -f UTF-8 " + locale.string()).c_str()), 0);
  ::setenv("LOCPATH", folder.c_str(), 1);
  ASSERT_NE(std::setlocale(LC_NUMERIC, "comma.UTF-8"), nullptr);
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  std::filesystem::remove_all(folder);
  for (const auto& [text, number] : {std::pair(" 12.5\n", 12.5), std::pair("-0.25", -0.25),
                                     std::pair("nan", 0.0), std::pair("inf", 0.0)})
    EXPECT_EQ(NumberOf(ReadValue(kPropertyTypeReal, text)), number) << text;
}

TEST_F(CellsTest, StripesAndGridCoverTheWholeView) {
  machine.processTable.Birth(300, "p");
  Open();
  auto& table = window->table();
  const auto image = table.viewport()->grab().toImage();
  const int pitch = table.verticalHeader()->defaultSectionSize();
  const int right = image.width() - 5;
  EXPECT_EQ(image.pixelColor(right, pitch / 2).name(), "#edf3fe");
  EXPECT_EQ(image.pixelColor(right, pitch + pitch / 2).name(), "#ffffff");
  EXPECT_EQ(image.pixelColor(right, 10 * pitch + pitch / 2).name(), "#edf3fe") << "below the rows";
  EXPECT_EQ(image.pixelColor(table.columnWidth(0) - 1, 11 * pitch + 3), kGrey);
  EXPECT_NE(image.pixelColor(table.columnWidth(0), 11 * pitch + 3), kGrey);
}

TEST_F(CellsTest, OnADarkGroundStripesBarsAndTextsStayReadable) {
  machine.processTable.Birth(300, "p");
  QPalette dark(QColor(46, 49, 56), QColor(36, 39, 45));
  dark.setColor(QPalette::Base, QColor(27, 29, 34));
  QApplication::setPalette(dark);
  Open();
  const auto image = window->table().viewport()->grab().toImage();
  const int pitch = window->table().verticalHeader()->defaultSectionSize();
  const int right = image.width() - 5;
  for (const int row : {0, 1}) {
    const auto ground = image.pixelColor(right, row * pitch + pitch / 2);
    EXPECT_LT(ground.lightness(), 80) << row;
    EXPECT_GT(window->palette().color(QPalette::Text).lightness() - ground.lightness(), 120);
  }
  EXPECT_NE(image.pixelColor(right, pitch / 2), image.pixelColor(right, pitch + pitch / 2));
}

TEST_F(CellsTest, OnlyRowsThatChangedAreDrawnAgain) {
  struct Painted : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
      return false;
    }
    QRegion region;
  } painted;
  for (int pid = 300; pid < 310; ++pid) machine.processTable.Birth(pid, "p");
  Open();
  ClickHeader("meta_pid");
  Turn();
  window->table().viewport()->installEventFilter(&painted);
  Turn();
  EXPECT_TRUE(painted.region.isEmpty());
  machine.processTable.Find(303)->UseCPU(100);
  Turn();
  const auto rows = painted.region.boundingRect();
  const auto row = window->table().visualRect(controller().index(5, 0));
  EXPECT_EQ(rows.top(), row.top());
  EXPECT_EQ(rows.bottom(), row.bottom());
}

}  // namespace
}  // namespace lurkwell
