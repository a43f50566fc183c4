#include "machine_window/MachineFacts.h"

#include <QStringList>
#include <algorithm>
#include <vector>

#include "resources/Resources.h"
#include "resources/UserLocale.h"
#include "windows/GraphScale.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr std::size_t kMostTemperatures = 6;

QString LoadText(const MachineFigures& figures) {
  if (!figures.load) return LocalizedString("machine_no_load");
  const auto part = [&](std::size_t i) { return LocalNumber((*figures.load)[i], 'f', 2); };
  return LocalizedString("machine_load").arg(part(0), part(1), part(2));
}

QString FrequencyText(const std::vector<Frequency>& frequencies) {
  if (frequencies.empty()) return LocalizedString("machine_no_frequency");
  double sum = 0;
  for (const auto& frequency : frequencies) sum += static_cast<double>(frequency.hertz);
  const auto [slowest, fastest] = std::ranges::minmax_element(frequencies, {}, &Frequency::hertz);
  const auto gigahertz = [](double hertz) { return LocalNumber(hertz / 1e9, 'f', 2); };
  return LocalizedString("machine_frequency")
      .arg(gigahertz(sum / static_cast<double>(frequencies.size())),
           gigahertz(static_cast<double>(slowest->hertz)),
           gigahertz(static_cast<double>(fastest->hertz)));
}

/// The hottest first.
QStringList TemperatureTexts(std::vector<Temperature> temperatures) {
  if (temperatures.empty()) return {LocalizedString("machine_no_temperature")};
  std::ranges::stable_sort(temperatures, std::ranges::greater(), &Temperature::celsius);
  QStringList texts;
  for (const auto& [name, celsius] : temperatures) {
    if (static_cast<std::size_t>(texts.size()) == kMostTemperatures) {
      const auto left = temperatures.size() - kMostTemperatures;
      texts += LocalizedString("machine_more_temperatures", static_cast<qint64>(left));
      break;
    }
    texts += PlainText(name) + QStringLiteral(": %1 °C").arg(LocalNumber(celsius, 'f', 0));
  }
  return texts;
}

}  // namespace

QString MachineFactsText(const MachineFigures& figures) {
  QStringList lines{LoadText(figures), FrequencyText(figures.frequencies)};
  lines += TemperatureTexts(figures.temperatures);
  return lines.join(QLatin1Char('\n'));
}

QString MachineLimitsText(const MachineLimits& limits) {
  QStringList parts;
  if (limits.processors)
    parts += LocalizedString("machine_limit_processors", *limits.processors,
                             LocalNumber(*limits.processors, 'g', 3));
  if (limits.memory) {
    const auto text = [](std::int64_t bytes) {
      return GraphFigureText(GraphUnit::kBytes, static_cast<double>(bytes));
    };
    parts += limits.memoryUsed ? LocalizedString("machine_limit_memory_used")
                                     .arg(text(*limits.memory), text(*limits.memoryUsed))
                               : LocalizedString("machine_limit_memory").arg(text(*limits.memory));
  }
  return parts.isEmpty() ? QString()
                         : LocalizedString("machine_limits").arg(parts.join(QStringLiteral(", ")));
}

}  // namespace lurkwell
