// The toolbar's gauges: their pictures by the pixel, and what they show of the machine.
#include "main_window/MainToolbar.h"
#include "main_window/MainWindowTest.h"
#include "main_window/SystemInfoImage.h"
#include "main_window/ToolbarGauge.h"
#include "support/OpenChannel.h"
#include "windows/Contrast.h"
#include "windows/SystemFigures.h"

namespace lurkwell {
namespace {

char LetterOf(const std::uint8_t* pixel) {
  const std::array<int, 4> colour{pixel[0], pixel[1], pixel[2], pixel[3]};
  if (colour == std::array{0, 0, 0, 0}) return '.';
  if (colour == std::array{170, 170, 170, 255}) return 'g';
  if (colour == std::array{0, 0, 255, 255}) return 'B';
  if (colour == std::array{255, 0, 0, 255}) return 'R';
  if (colour == std::array{255, 255, 0, 255}) return 'Y';
  return colour == std::array{255, 170, 170, 255} ? 'P' : '?';
}

/// A letter per pixel.
std::vector<std::string> RowsOf(const SystemInfoImage& image) {
  std::vector<std::string> rows(20);
  for (std::size_t at = 0; at < image.size(); at += 4) rows[at / 256] += LetterOf(&image[at]);
  return rows;
}

SystemInfoImage CPU(double usage) {
  SystemInfoImage image;
  image.fill(77);
  DrawCPUGauge(image.data(), usage, false);
  return image;
}

SystemInfoImage Memory(std::int64_t physical, std::int64_t used, std::int64_t wired,
                       std::int64_t inactive) {
  SystemInfoImage image;
  image.fill(77);
  DrawMemoryGauge(image.data(), {physical, used, wired, inactive, 0}, false);
  return image;
}

std::string Times(std::size_t count, char letter) {
  return std::string(count, letter);
}

TEST(GaugeImageTest, TheCPUBarIsBlueUpToTheUsage) {
  const auto bar = [](std::size_t blue) {
    return "..." + Times(blue, 'B') + Times(58 - blue, 'g') + "...";
  };
  const auto half = RowsOf(CPU(0.5));
  for (std::size_t y = 0; y < 20; ++y)
    EXPECT_EQ(half[y], y >= 4 && y <= 15 ? bar(29) : Times(64, '.')) << y;
  EXPECT_EQ(RowsOf(CPU(0.0))[4], bar(0));
  EXPECT_EQ(RowsOf(CPU(0.999))[15], bar(57)) << "cut, not rounded";
  EXPECT_EQ(RowsOf(CPU(1.0))[15], bar(58));
}

TEST(GaugeImageTest, TheMemoryBarHasStripesOneWayAndTheOther) {
  const auto rows = RowsOf(Memory(64, 32, 8, 16));
  const std::string four = "...YRRRYYRRRRRRRRRPRRPPPRRPPPRRP" + Times(29, 'g') + "...";
  const std::string five = "...YYRRRYYRRRRRRRRRRPPPRRPPPRRPP" + Times(29, 'g') + "...";
  EXPECT_EQ(rows[3], Times(64, '.'));
  EXPECT_EQ(rows[4], four);
  EXPECT_EQ(rows[5], five);
  EXPECT_EQ(rows[14], four);
  EXPECT_EQ(rows[15], five);
  EXPECT_EQ(rows[16], Times(64, '.'));
  // Sizes beyond 32 bits keep their shares.
  EXPECT_EQ(Memory(64LL << 33, 32LL << 33, 8LL << 33, 16LL << 33), Memory(64, 32, 8, 16));
}

TEST(GaugeImageTest, FiguresThatContradictEachOtherStayInTheBar) {
  const std::string empty = "..." + Times(58, 'g') + "...";
  EXPECT_EQ(RowsOf(Memory(0, 0, 0, 0))[4], empty);
  EXPECT_EQ(RowsOf(Memory(64, -32, 0, 16))[4], empty);
  const auto full = RowsOf(Memory(64, 1000, 2000, 0))[5];
  EXPECT_EQ(full.substr(0, 13), "...YYRRRYYRRR");
  EXPECT_EQ(full.find('g'), std::string::npos);
  EXPECT_EQ(RowsOf(Memory(0, 32, 0, 1 << 30))[5].substr(0, 13), "...RRPPPRRPPP");
}

TEST(GaugeImageTest, OnADarkWindowWhatIsUsedStandsOut) {
  const QColor ground(38, 40, 46);
  const auto colourAt = [](const SystemInfoImage& image, std::size_t x) {
    const auto* pixel = &image[(8 * 64 + x) * 4];
    return QColor(pixel[0], pixel[1], pixel[2]);
  };
  SystemInfoImage cpu;
  DrawCPUGauge(cpu.data(), 0.5, true);
  SystemInfoImage memory;
  DrawMemoryGauge(memory.data(), {64, 32, 0, 0, 0}, true);
  for (const auto& image : {cpu, memory}) {
    EXPECT_GE(ContrastBetween(colourAt(image, 10), ground), kMarkContrast);
    EXPECT_GE(ContrastBetween(colourAt(image, 10), colourAt(image, 50)), kMarkContrast);
  }
}

class GaugesTest : public MainWindowTest {
 protected:
  ToolbarGauge& Gauge(const char* identifier) {
    auto& toolbar = *controller().toolbar();
    const auto place = toolbar.itemIdentifiers().indexOf(QLatin1String(identifier));
    return dynamic_cast<ToolbarGauge&>(*toolbar.widgetForAction(toolbar.items()[place]));
  }
  std::string Said(const char* identifier) {
    return Gauge(identifier).SpokenFigures().toStdString();
  }

  int PixelsOf(const char* identifier, QRgb colour) {
    const auto image = Gauge(identifier).grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) count += (image.pixel(x, y) == colour);
    return count;
  }

  /// What the light shows: green, yellow, red, or the other red as Red.
  std::string Light() {
    // A triangle has less of its colour than a disc has.
    constexpr int kMarked = 30;
    std::string shown;
    for (const auto& [colour, name] :
         {std::pair{0xff2fae66U, "green"}, std::pair{0xffe6b01eU, "yellow"},
          std::pair{0xfff0483aU, "red"}, std::pair{0xff7d1f1aU, "Red"}})
      if (PixelsOf(kToolbarPageouts, colour) > kMarked) shown += name;
    return shown;
  }

  /// As Light, for every 125 ms of some time; each that differs from the one before, with how long
  /// it was seen.
  std::string Lights(int milliseconds) {
    std::string text, last;
    int since = 0;
    const auto note = [&] {
      if (since > 0) text += last + " " + std::to_string(since) + "\n";
    };
    for (int at = 0; at < milliseconds; at += 125, since += 125) {
      Turn(125);
      const auto light = Light();
      if (light == last) continue;
      note();
      last = light;
      since = 0;
    }
    note();
    return text;
  }

  void PageOut(std::int64_t pages) { machine.hostStatistics.virtualMemory->pageouts += pages; }
};

TEST_F(GaugesTest, BarsFollowTheMachine) {
  machine.processTable.Find(0)->UseCPU(70'000);
  Open();
  EXPECT_EQ(Said(kToolbarCPU), "CPU: 100 % of 1 processor") << "nothing to compare with yet";
  EXPECT_EQ(PixelsOf(kToolbarCPU, 0xff0000ff), 58 * 12);
  machine.processTable.Find(0)->UseCPU(1000);
  Turn();
  EXPECT_EQ(Said(kToolbarCPU), "CPU: 50 % of 1 processor");
  EXPECT_EQ(PixelsOf(kToolbarCPU, 0xff0000ff), 29 * 12);
  machine.hostStatistics.processors = 4;
  machine.processTable.Find(0)->UseCPU(9000);
  Turn();
  EXPECT_EQ(Said(kToolbarCPU), "CPU: 0 % of 4 processors") << "more idle than there was time";

  EXPECT_EQ(Said(kToolbarMemory),
            "Memory: 512.0 M of 1.00 G used\nWired: 128.0 M\nInactive: 256.0 M\nFree: 512.0 M");
  EXPECT_EQ(PixelsOf(kToolbarMemory, 0xffaaaaaa), 29 * 12);
  EXPECT_TRUE(Gauge(kToolbarMemory).toolTip().startsWith(QLatin1String("Memory: 512")));
}

TEST_F(GaugesTest, WhatTheMachineDoesNotTellIsPrintedAndSurvived) {
  Open();
  machine.hostStatistics.pageSize.reset();
  machine.hostStatistics.virtualMemory.reset();
  testing::internal::CaptureStderr();
  Turn();
  const auto printed = testing::internal::GetCapturedStderr();
  EXPECT_NE(printed.find("didn't get pagesize so defaulting to 4K\n"), std::string::npos);
  EXPECT_NE(printed.find("error: failed to get stats\n"), std::string::npos);
  EXPECT_EQ(PixelsOf(kToolbarMemory, 0xffaaaaaa), 0) << "nothing is known to be free";
}

TEST_F(GaugesTest, AReadingThatFailedIsNoAlarmAndNothingToCompareWith) {
  auto& memory = machine.hostStatistics.virtualMemory;
  memory->pageouts = 5000;
  const auto known = memory;
  memory.reset();
  Open();
  EXPECT_EQ(Light(), "green");
  memory = known;
  Turn();
  EXPECT_EQ(Light(), "green") << "the first reading that succeeds is where counting begins";
  memory.reset();
  Turn();
  EXPECT_EQ(Light(), "green");
  EXPECT_EQ(Said(kToolbarPageouts), "0 pages swapped out since the last update");
  memory = known;
  PageOut(3);
  Turn();
  EXPECT_EQ(Said(kToolbarPageouts), "3 pages swapped out since the last update");
  EXPECT_EQ(Light(), "yellow");
}

TEST_F(GaugesTest, PreferencesMeasureNothing) {
  machine.processTable.Find(0)->UseCPU(70'000);
  auto& busy = machine.processTable.Birth(300, "busy");
  busy.UseCPU(5000);
  Open();
  ClickHeader("meta_pid");
  machine.processTable.Find(0)->UseCPU(1000);
  busy.UseCPU(500);
  PageOut(15);
  Turn();
  const auto shown = [this] { return Cell(2, 5).toStdString() + Said(kToolbarCPU) + Light(); };
  const std::string before = shown();
  EXPECT_EQ(before, "25.0 %CPU: 50 % of 1 processoryellow");
  SetPrefInt("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT", 3);
  for (int i = 0; i < 3; ++i)
    ProcessInformationClient::NotifyPreferencesHaveBeenUpdatedForType("*");
  QApplication::processEvents();
  EXPECT_EQ(shown(), before);
  EXPECT_EQ(Said(kToolbarPageouts), "15 pages swapped out since the last update");
  EXPECT_EQ(Said(kToolbarMemory).find("Memory: 512.0 M of 1024.0 M used"), 0U)
      << Said(kToolbarMemory) << "only the format is another one";
  busy.UseCPU(500);
  machine.processTable.Find(0)->UseCPU(1000);
  Turn();
  EXPECT_EQ(shown(), before) << "the whole interval counts; 3 pages are left of 15";
  // Nor does a time without any figures.
  QuitHelperDaemon();
  busy.UseCPU(1500);
  machine.processTable.Find(0)->UseCPU(2000);
  const auto shares = [this] { return Cell(2, 5).toStdString() + Said(kToolbarCPU); };
  for (int turn = 0; turn < 2; ++turn) {
    Turn();
    EXPECT_EQ(shares(), "25.0 %CPU: 50 % of 1 processor");
  }
  OpenChannel("/helper");
  busy.UseCPU(1500);
  machine.processTable.Find(0)->UseCPU(1000);
  Turn();
  EXPECT_EQ(shares(), "50.0 %CPU: 50 % of 1 processor") << "of all three turns";
}

TEST_F(GaugesTest, ABurstOfPageoutsFlashesAndDecays) {
  Open();
  EXPECT_EQ(Lights(250), "green 250\n");
  Turn(1750);
  PageOut(100);
  // 100, 20, 4, 0.8: red for two updates, then yellow, then green.
  auto lights = Lights(12'000);
  EXPECT_EQ(lights.find("green"), 0U) << lights;
  int reds = 0;
  for (std::size_t at = 0; (at = lights.find("ed 250\n", at)) != std::string::npos; ++at) ++reds;
  EXPECT_GE(reds, 14) << lights << "every quarter of a second for four seconds";
  EXPECT_LE(reds, 16) << lights;
  lights.erase(0, lights.find("yellow"));
  EXPECT_EQ(lights.substr(0, 18), "yellow 2000\ngreen ") << "steady again";
  EXPECT_EQ(lights.find("ed "), std::string::npos);
}

TEST_F(GaugesTest, ThresholdsAreMetExactly) {
  Open();
  PageOut(1);
  Turn();
  EXPECT_EQ(Light(), "yellow");
  EXPECT_EQ(Said(kToolbarPageouts), "1 page swapped out since the last update");
  Turn();
  EXPECT_EQ(Light(), "green");
  PageOut(19);
  Turn();
  EXPECT_EQ(Light(), "yellow");
  PageOut(25);
  Turn();
  EXPECT_TRUE(Light() == "red" || Light() == "Red") << Light();
  Turn();
  EXPECT_EQ(Light(), "yellow") << "5 are left of 25";
  EXPECT_EQ(Said(kToolbarPageouts), "0 pages swapped out since the last update");
}

TEST_F(GaugesTest, AHiddenToolbarIsNotDrawnButGoesOnCounting) {
  machine.processTable.Find(0)->UseCPU(70'000);
  Open();
  auto& gauge = Gauge(kToolbarCPU);
  Choose("menu_view_show_toolbar");
  machine.processTable.Find(0)->UseCPU(500);
  Turn();
  PageOut(100);
  machine.processTable.Find(0)->UseCPU(1500);
  Turn();
  EXPECT_EQ(gauge.SpokenFigures(), "CPU: 100 % of 1 processor") << "as it was";
  Choose("menu_view_show_toolbar");
  EXPECT_EQ(Said(kToolbarCPU), "CPU: 25 % of 1 processor") << "of the last update alone";
  EXPECT_TRUE(Light() == "red" || Light() == "Red");
  EXPECT_EQ(Said(kToolbarPageouts), "100 pages swapped out since the last update");
}

TEST_F(GaugesTest, PreferencesThatMakeNoSenseDoNoHarm) {
  SetPrefDouble("MAIN_WINDOW_PAGEOUT_CRITICAL_FLASH_INTERVAL", -1.0);
  SetPrefDouble("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_FILTER", 1e300);
  SetPrefInt("MAIN_WINDOW_SYSTEM_INFO_PAGEOUTS_YELLOW", 3);
  Open();
  PageOut(2);
  Turn();
  EXPECT_EQ(Light(), "green") << "three are yellow";
  for (int i = 0; i < 3; ++i) Turn();
  EXPECT_TRUE(Light() == "red" || Light() == "Red") << "it grows, and stays a number";
}

}  // namespace
}  // namespace lurkwell
