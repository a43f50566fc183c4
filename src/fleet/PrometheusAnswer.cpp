#include "fleet/PrometheusAnswer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QJsonValue>
#include <cmath>
#include <optional>

namespace lurkwell {
namespace {

using Kind = FleetError::Kind;

constexpr int kMostWarnings = 5;
constexpr int kMostExcerpt = 120;

/// The beginning of what came instead of an answer, without the marks of a web page.
QString Excerpt(const QByteArray& body) {
  QString text;
  bool isInMark = false;
  for (const QChar c : QString::fromUtf8(body.left(4096))) {
    if (c == QLatin1Char('<')) isInMark = true;
    if (!isInMark) text += c;
    if (c == QLatin1Char('>')) {
      isInMark = false;
      text += QLatin1Char(' ');
    }
  }
  return OneLine(text, kMostExcerpt);
}

FleetError NotAnAnswer(const QByteArray& body, int status) {
  const auto excerpt = Excerpt(body);
  const auto number = QStringLiteral("HTTP %1").arg(status);
  const auto detail = excerpt.isEmpty() ? number : number + QLatin1String(": ") + excerpt;
  if (status == 401 || status == 403 || status == 407) return {Kind::kCredentials, detail};
  // Gateways say so in a page of their own.
  if (status >= 500 || status == 429) return {Kind::kServer, detail};
  return {Kind::kNotPrometheus, detail};
}

FleetError Refusal(const QJsonObject& answer, int status) {
  const auto type = answer[QLatin1String("errorType")].toString();
  const auto detail = OneLine(answer[QLatin1String("error")].toString());
  if (status == 401 || status == 403) return {Kind::kCredentials, detail};
  const bool isOfServer = type == QLatin1String("internal") ||
                          type == QLatin1String("unavailable") ||
                          type == QLatin1String("timeout") || type == QLatin1String("canceled");
  return {isOfServer ? Kind::kServer : Kind::kQuery, detail};
}

/// Of [seconds, "figure"]; a figure that is no number stays one.
std::optional<std::pair<double, double>> PointOf(const QJsonValue& value) {
  const auto pair = value.toArray();
  if (pair.size() != 2 || !pair[0].isDouble() || !pair[1].isString()) return std::nullopt;
  const auto text = pair[1].toString();
  bool isNumber = false;
  const double figure = text.toDouble(&isNumber);
  const bool isSaidToBeNone = text == QLatin1String("NaN") || text.endsWith(QLatin1String("Inf"));
  if (!isNumber && !isSaidToBeNone) return std::nullopt;
  return std::pair(pair[0].toDouble(), isSaidToBeNone ? std::nan("") : figure);
}

class Reader {
 public:
  explicit Reader(std::span<const char* const> labels) {
    for (const char* label : labels) mLabels.emplace_back(label);
  }

  PrometheusAnswer Read(const QJsonArray& result, bool isMatrix) {
    for (const auto& each : result) {
      if (mAnswer.series.size() >= kMostSeries || mPoints >= kMostPoints) {
        ++mAnswer.leftOut;
        continue;
      }
      PrometheusSeries series;
      if (ReadLabels(each.toObject()[QLatin1String("metric")], series)) {
        ReadPoints(each.toObject()[QLatin1String(isMatrix ? "values" : "value")], isMatrix, series);
        if (!series.points.empty()) mAnswer.series.push_back(std::move(series));
      } else {
        ++mAnswer.leftOut;
      }
    }
    return std::move(mAnswer);
  }

 private:
  bool ReadLabels(const QJsonValue& value, PrometheusSeries& series) const {
    if (!value.isObject()) return false;
    const auto metric = value.toObject();
    for (const auto& label : mLabels) {
      const auto found = metric.find(label);
      if (found == metric.end()) {
        series.labels.append(QString());
        continue;
      }
      const auto text = found->toString();
      if (!found->isString() || text.size() > kLongestLabel) return false;
      series.labels.append(text.isNull() ? QStringLiteral("") : text);
    }
    return true;
  }

  void ReadPoints(const QJsonValue& value, bool isMatrix, PrometheusSeries& series) {
    if (!isMatrix) return Add(value, series);
    if (!value.isArray()) ++mAnswer.leftOut;
    for (const auto& each : value.toArray()) {
      if (++mPoints > kMostPoints)
        ++mAnswer.leftOut;
      else
        Add(each, series);
    }
  }

  void Add(const QJsonValue& value, PrometheusSeries& series) {
    const auto point = PointOf(value);
    const bool isLater =
        point && (series.points.empty() || point->first > series.points.back().first);
    if (!isLater || !std::isfinite(point->first)) {
      ++mAnswer.leftOut;
    } else if (std::isfinite(point->second)) {
      series.points.push_back(*point);
    }
  }

  QStringList mLabels;
  PrometheusAnswer mAnswer;
  std::size_t mPoints = 0;
};

}  // namespace

std::variant<PrometheusAnswer, FleetError> ReadPrometheusAnswer(
    const QByteArray& body, int status, std::span<const char* const> labels) {
  QJsonParseError error{};
  const auto document = QJsonDocument::fromJson(body, &error);
  const auto answer = document.object();
  const auto outcome = answer[QLatin1String("status")].toString();
  if (error.error != QJsonParseError::NoError || outcome.isEmpty())
    return NotAnAnswer(body, status);
  if (outcome == QLatin1String("error")) return Refusal(answer, status);
  const auto data = answer[QLatin1String("data")].toObject();
  const auto type = data[QLatin1String("resultType")].toString();
  const bool isMatrix = type == QLatin1String("matrix");
  const auto result = data[QLatin1String("result")];
  const bool isKnown = isMatrix || type == QLatin1String("vector");
  if (outcome != QLatin1String("success") || status != 200 || !isKnown || !result.isArray())
    return NotAnAnswer(body, status);
  auto read = Reader(labels).Read(result.toArray(), isMatrix);
  const auto warnings = answer[QLatin1String("warnings")].toArray();
  for (const auto& warning : warnings)
    if (read.warnings.size() < kMostWarnings) read.warnings.append(OneLine(warning.toString()));
  return read;
}

}  // namespace lurkwell
