#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <span>
#include <utility>
#include <variant>
#include <vector>

#include "fleet/FleetError.h"

namespace lurkwell {

/// One series of an answer with what was wanted of its labels.
struct PrometheusSeries {
  /// Values of the labels that were named, in that order; null where the series has no such label.
  QStringList labels;
  /// Seconds since the epoch and figure, in the order of time; one alone for an instant. Figures
  /// are finite.
  std::vector<std::pair<double, double>> points;
};

/// What a server answered to a query.
struct PrometheusAnswer {
  std::vector<PrometheusSeries> series;
  /// What the server remarks on it, each on one line.
  QStringList warnings;
  /// Series and points that were none: of wrong types, out of order, or beyond the bounds.
  std::int64_t leftOut = 0;
};

/// No answer has more than that; what follows is left out, and counted.
inline constexpr std::size_t kMostSeries = 50'000;
inline constexpr std::size_t kMostPoints = 2'000'000;
/// Longer label values are none.
inline constexpr qsizetype kLongestLabel = 1024;

/// Reads the body of an answer of Prometheus's API, as it comes from anybody. `status` is HTTP's.
/// Figures that are no numbers (NaN and infinities, which servers send for what cannot be divided)
/// are missing and no fault. Pure, but for the memory it takes; linear in the body's length.
std::variant<PrometheusAnswer, FleetError> ReadPrometheusAnswer(
    const QByteArray& body, int status, std::span<const char* const> labels);

}  // namespace lurkwell
