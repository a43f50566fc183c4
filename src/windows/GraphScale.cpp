#include "windows/GraphScale.h"

#include <algorithm>
#include <cmath>

#include "process_control/DisplayFormats.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"

namespace lurkwell {
namespace {

constexpr double kMostBytes = 9e18;

bool IsInBytes(GraphUnit unit) {
  return unit == GraphUnit::kBytes || unit == GraphUnit::kBytesPerSecond;
}

/// With so many digits behind the point as tell two neighbours apart, and no zero at their end.
QString Plain(double value, int digits) {
  auto text = QString::number(value, 'f', digits);
  if (text.contains(QLatin1Char('.'))) {
    while (text.endsWith(QLatin1Char('0'))) text.chop(1);
    if (text.endsWith(QLatin1Char('.'))) text.chop(1);
  }
  return LocalFigure(text);
}

QString PerSecond(const QString& text, GraphUnit unit) {
  return unit == GraphUnit::kBytesPerSecond ? text + QLatin1String("/s") : text;
}

/// The smallest number of the wanted kind that is not below.
double NiceStep(double least, GraphUnit unit) {
  if (IsInBytes(unit)) return std::max(1.0, std::exp2(std::ceil(std::log2(least) - 1e-9)));
  const double power = std::pow(10.0, std::floor(std::log10(least) + 1e-9));
  for (const double factor : {1.0, 2.0, 5.0})
    if (factor * power >= least * (1 - 1e-9)) return factor * power;
  return 10 * power;
}

}  // namespace

QString GraphFigureText(GraphUnit unit, double value) {
  if (!std::isfinite(value)) return LocalizedString("graph_missing");
  if (unit == GraphUnit::kShare) return LocalNumber(value * 100, 'f', 1) + QLatin1String(" %");
  if (unit == GraphUnit::kNumber) return LocalNumber(value, 'f', value < 100 ? 2 : 0);
  const auto bytes = static_cast<std::int64_t>(std::clamp(value, 0.0, kMostBytes));
  auto text = LocalFigure(QString::fromStdString(MemoryString(bytes)));
  if (text.back().isDigit()) text += QLatin1String(" B");
  return PerSecond(text, unit);
}

QString GraphScaleText(GraphUnit unit, double value) {
  if (unit == GraphUnit::kShare) return Plain(value * 100, 2) + QLatin1String(" %");
  if (unit == GraphUnit::kNumber) return Plain(value, value < 1 ? 4 : 2);
  constexpr const char* kUnits[] = {" B", " K", " M", " G", " T", " P"};
  std::size_t place = 0;
  while (value >= 1024 && place + 1 < std::size(kUnits)) {
    value /= 1024;
    ++place;
  }
  return PerSecond(Plain(value, 1) + QLatin1String(kUnits[place]), unit);
}

GraphScale GraphScaleTo(double top, GraphUnit unit, int mostSteps) {
  if (!std::isfinite(top) || top <= 0) return {};
  return {top, NiceStep(top / std::max(mostSteps, 1), unit)};
}

GraphScale NiceGraphScale(double most, GraphUnit unit, int mostSteps) {
  const auto scale = GraphScaleTo(most, unit, mostSteps);
  return {std::ceil(scale.top / scale.step - 1e-9) * scale.step, scale.step};
}

}  // namespace lurkwell
