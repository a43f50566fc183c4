// Whether everybody can read what is drawn: contrasts in the program's two themes.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <functional>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

#include "animated_view/LabelPicture.h"
#include "app/WindowMode.h"
#include "main_window/SystemInfoImage.h"
#include "main_window/ToolbarGauge.h"
#include "resources/Resources.h"
#include "windows/Contrast.h"
#include "windows/CustomCells.h"
#include "windows/GraphPlot.h"
#include "windows/SystemFigures.h"

namespace lurkwell {
namespace {

using Theme = CommandLine::Theme;

class ColoursTest : public testing::TestWithParam<Theme> {
 protected:
  ~ColoursTest() override { QApplication::setPalette(QPalette()); }

  static void Expect(const char* what, const QColor& one, const QColor& other, double least) {
    EXPECT_GE(ContrastBetween(one, other), least)
        << what << ": " << one.name().toStdString() << " on " << other.name().toStdString();
  }

  const QPalette& Palette() const { return mPalette; }

 private:
  QPalette mPalette = [this] {
    ApplyTheme(GetParam());
    return QApplication::palette();
  }();
};

TEST_P(ColoursTest, TextsOfThePaletteCanBeRead) {
  using Role = QPalette::ColorRole;
  constexpr std::tuple<const char*, Role, Role> kTexts[] = {
      {"text", QPalette::Text, QPalette::Base},
      {"text between", QPalette::Text, QPalette::AlternateBase},
      {"window", QPalette::WindowText, QPalette::Window},
      {"button", QPalette::ButtonText, QPalette::Button},
      {"selection", QPalette::HighlightedText, QPalette::Highlight},
      {"tip", QPalette::ToolTipText, QPalette::ToolTipBase},
      {"placeholder", QPalette::PlaceholderText, QPalette::Base},
      {"link", QPalette::Link, QPalette::Window},
      {"link in a text", QPalette::Link, QPalette::Base}};
  for (const auto group : {QPalette::Active, QPalette::Inactive})
    for (const auto& [what, text, ground] : kTexts)
      Expect(what, Palette().color(group, text), Palette().color(group, ground), kTextContrast);
  Expect("selection beside", Palette().color(QPalette::Highlight), Palette().color(QPalette::Base),
         kMarkContrast);
}

TEST_P(ColoursTest, FiguresOfTheTableCanBeReadAndItsBarsSeen) {
  const auto text = Palette().color(QPalette::Text);
  const auto highlight = Palette().color(QPalette::Highlight);
  for (const auto& stripe : {EvenStripe(Palette()), OddStripe(Palette())}) {
    Expect("text", text, stripe, kTextContrast);
    Expect("faint text", FaintOn(text, EvenStripe(Palette())), stripe, kTextContrast);
    EXPECT_NE(FaintOn(text, stripe), text);
  }
  Expect("faint text of the selection",
         FaintOn(Palette().color(QPalette::HighlightedText), highlight), highlight, kTextContrast);

  // What is drawn, on both stripes.
  for (const auto& stripe : {EvenStripe(Palette()), OddStripe(Palette())}) {
    QImage image(200, 30, QImage::Format_RGB32);
    image.fill(stripe);
    {
      QPainter painter(&image);
      CPUCell cell;
      cell.setCpuPercent(0.5);
      cell.drawInteriorWithFrame(painter, QRect(0, 0, 100, 30), IsDark(Palette()));
      MemGraphCell memory;
      gBiggestVSZ = 100;
      memory.setRSZ(25);
      memory.setVSZ(50);
      memory.drawInteriorWithFrame(painter, QRect(100, 0, 100, 30), Palette());
    }
    Expect("CPU bar", image.pixelColor(20, 15), image.pixelColor(80, 15), kMarkContrast);
    Expect("CPU bar beside", image.pixelColor(20, 15), stripe, kMarkContrast);
    Expect("resident size", image.pixelColor(110, 15), image.pixelColor(140, 15), kMarkContrast);
    // Its edge, where it ends.
    const int top = 5;
    Expect("virtual size", image.pixelColor(140, top), stripe, kMarkContrast);
  }
}

TEST_P(ColoursTest, LinesOfGraphsCanBeSeen) {
  for (std::size_t series = 0; series < 6; ++series)
    Expect("line", LookOfSeries(series, IsDark(Palette())).colour, Palette().color(QPalette::Base),
           kMarkContrast);
}

QImage PictureOf(const QIcon& icon, const QColor& ground) {
  constexpr int kSize = 96;
  QImage image(kSize, kSize, QImage::Format_RGB32);
  image.fill(ground);
  QPainter(&image).drawPixmap(image.rect(), icon.pixmap(kSize));
  return image;
}

/// The share of pixels that everybody sees upon that colour.
double Seen(const QImage& image, const QColor& ground) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      count += ContrastBetween(image.pixelColor(x, y), ground) >= kMarkContrast;
  return static_cast<double>(count) / (image.width() * image.height());
}

TEST_P(ColoursTest, PicturesAndBadgesCanBeSeen) {
  const auto ground = Palette().color(QPalette::Window);
  auto names = QDir(QStringLiteral(":/images")).entryList({QStringLiteral("*.svg")});
  // Grounds of other pictures, and an empty place.
  for (const char* name : {"qvbackground.svg", "qvdefault.svg", "toolbar_space.svg"})
    EXPECT_TRUE(names.removeOne(QLatin1String(name))) << name;
  for (const auto& name : names)
    EXPECT_GE(Seen(PictureOf(NamedImage(name.chopped(4).toUtf8()), ground), ground), 0.04)
        << qPrintable(name);
  for (const char* name : {"process_halted", "process_niced_high", "process_niced_low"}) {
    for (const auto& stripe :
         {EvenStripe(Palette()), OddStripe(Palette()), Palette().color(QPalette::Highlight)})
      EXPECT_GE(Seen(PictureOf(NamedImage(name), stripe), stripe), 0.15)
          << name << " on " << stripe.name().toStdString();
    // The sign upon its ground, beside which the picture ends.
    const auto image = PictureOf(NamedImage(name), ground);
    const auto disc = image.pixelColor(image.width() / 6, image.height() / 2);
    EXPECT_GE(Seen(image.copy(image.rect().adjusted(26, 26, -26, -26)), disc), 0.2) << name;
  }
}

TEST_P(ColoursTest, GaugesTellTheirFiguresWithoutColours) {
  const bool isDark = IsDark(Palette());
  const auto picture = [isDark](bool isMemory, double share) {
    ToolbarGauge gauge({kSystemInfoImageWidth, kSystemInfoImageHeight}, 24, "Name", "Tip");
    SystemInfoImage image;
    const auto used = static_cast<std::int64_t>(1000 * share);
    const int end = isMemory ? DrawMemoryGauge(image.data(), {1000, used, 0, 0, 0}, isDark)
                             : DrawCPUGauge(image.data(), share, isDark);
    gauge.ShowImage(image, end);
    gauge.resize(gauge.sizeHint());
    return gauge.grab().toImage();
  };
  for (const bool isMemory : {false, true}) {
    const auto empty = picture(isMemory, 0);
    EXPECT_GE(Seen(empty, Palette().color(QPalette::Window)) * empty.width() * empty.height(), 140)
        << "the frame of the bar";
    const auto low = picture(isMemory, 0.25);
    const auto high = picture(isMemory, 0.75);
    int changed = 0;
    for (int y = 0; y < low.height(); ++y)
      for (int x = 0; x < low.width(); ++x)
        changed += ContrastBetween(low.pixelColor(x, y), high.pixelColor(x, y)) >= kMarkContrast;
    EXPECT_GE(changed, 20) << isMemory;
  }
}

TEST(ContrastTest, NamesInTheAnimatedViewCanBeRead) {
  const auto label = ConvertCStringToNSImage("name", true, 2);
  ASSERT_NE(label, nullptr);
  std::map<QRgb, int> counts;
  for (const auto pixel : label->pixels)
    if (qAlpha(pixel) == 255) ++counts[pixel];
  std::vector<std::pair<int, QRgb>> ordered;
  for (const auto& [colour, count] : counts) ordered.emplace_back(count, colour);
  std::ranges::sort(ordered, std::greater());
  ASSERT_GE(ordered.size(), 2U);
  EXPECT_GE(ContrastBetween(QColor(ordered[0].second), QColor(ordered[1].second)), kTextContrast);
}

TEST(ContrastTest, CountsAsTheGuidelinesDo) {
  EXPECT_NEAR(ContrastBetween(Qt::black, Qt::white), 21, 1e-9);
  EXPECT_NEAR(ContrastBetween(QColor("#777777"), Qt::white), 4.48, 0.005);
  EXPECT_NEAR(ContrastBetween(Qt::blue, Qt::white), 8.59, 0.005);
  for (int grey = 0; grey < 256; ++grey) {
    const QColor ground(grey, grey, 255 - grey);
    EXPECT_GE(ContrastBetween(ReadableOn(ground), ground), kTextContrast) << grey;
  }
  EXPECT_EQ(FaintOn(QColor("#777777"), Qt::white), QColor("#777777")) << "it is faint enough";
}

INSTANTIATE_TEST_SUITE_P(Themes, ColoursTest, testing::Values(Theme::kLight, Theme::kDark),
                         [](const auto& theme) {
                           return theme.param == Theme::kDark ? "Dark" : "Light";
                         });

}  // namespace
}  // namespace lurkwell
