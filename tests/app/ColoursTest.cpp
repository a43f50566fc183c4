// Whether everybody can read what is drawn: contrasts in the program's two themes.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <tuple>

#include "app/WindowMode.h"
#include "windows/Contrast.h"
#include "windows/CustomCells.h"
#include "windows/GraphPlot.h"

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
