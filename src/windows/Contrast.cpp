#include "windows/Contrast.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace lurkwell {
namespace {

double Linear(double component) {
  return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  const auto rgb = colour.toRgb();
  return 0.2126 * Linear(static_cast<double>(rgb.redF())) +
         0.7152 * Linear(static_cast<double>(rgb.greenF())) +
         0.0722 * Linear(static_cast<double>(rgb.blueF()));
}

QColor Between(const QColor& one, const QColor& other, double share) {
  const auto mixed = [share](int a, int b) {
    return static_cast<int>(std::lround(a + (b - a) * share));
  };
  return {mixed(one.red(), other.red()), mixed(one.green(), other.green()),
          mixed(one.blue(), other.blue())};
}

QColor FindFaint(const QColor& text, const QColor& ground) {
  constexpr double kFaintest = 0.5;
  constexpr double kStep = 0.05;
  // Whole numbers may take a little from it.
  constexpr double kEnough = kTextContrast + 0.1;
  for (double share = kFaintest; share > 0; share -= kStep)
    if (const auto faint = Between(text, ground, share); ContrastBetween(faint, ground) > kEnough)
      return faint;
  return text;
}

}  // namespace

double ContrastBetween(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor ReadableOn(const QColor& ground) {
  const QColor white(Qt::white);
  const QColor black(Qt::black);
  return ContrastBetween(white, ground) > ContrastBetween(black, ground) ? white : black;
}

QColor FaintOn(const QColor& text, const QColor& ground) {
  static QColor lastText;
  static QColor lastGround;
  static QColor last;
  if (text != lastText || ground != lastGround) {
    last = FindFaint(text, ground);
    lastText = text;
    lastGround = ground;
  }
  return last;
}

namespace {

QColor FocusColourOn(const QPalette& palette, std::initializer_list<QColor> grounds) {
  // Styles draw controls with shades of these grounds.
  constexpr double kEnough = kMarkContrast + 0.4;
  constexpr double kStep = 0.1;
  const auto nearest = palette.color(QPalette::Highlight);
  const auto farthest = ReadableOn(*grounds.begin());
  for (double share = 0; share < 1; share += kStep) {
    const auto colour = Between(nearest, farthest, share);
    if (std::ranges::all_of(grounds, [&](const QColor& ground) {
          return ContrastBetween(colour, ground) > kEnough;
        }))
      return colour;
  }
  return farthest;
}

}  // namespace

QColor FocusColour(const QPalette& palette, const QColor& ground) {
  return FocusColourOn(palette, {ground});
}

QColor FocusColour(const QPalette& palette) {
  const auto button = palette.color(QPalette::Button);
  // Dark buttons are drawn lighter than their colour.
  constexpr int kLighter = 150;
  return FocusColourOn(palette, {palette.color(QPalette::Window), palette.color(QPalette::Base),
                                 IsDark(palette) ? button.lighter(kLighter) : button});
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Text).lightness() > palette.color(QPalette::Base).lightness();
}

QColor EvenStripe(const QPalette& palette) {
  if (!IsDark(palette)) return QColor::fromRgbF(0.929F, 0.953F, 0.996F);
  const auto base = palette.color(QPalette::Base);
  return base.lightness() < 24 ? QColor(28, 32, 40) : base.lighter(125);
}

QColor OddStripe(const QPalette& palette) {
  return IsDark(palette) ? palette.color(QPalette::Base) : QColor(Qt::white);
}

}  // namespace lurkwell
