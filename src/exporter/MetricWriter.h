#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Clock.h"

namespace lurkwell {

/// The two text formats that Prometheus reads.
enum class MetricFormat : std::uint8_t { kPrometheus, kOpenMetrics };

/// The format's media type, for a Content-Type header.
const char* ContentTypeOf(MetricFormat format);

/// The format that an Accept header prefers; that of Prometheus when it has no preference, or wants
/// nothing that there is. Pure; any bytes.
MetricFormat FormatFor(std::string_view accept);

enum class MetricType : std::uint8_t { kCounter, kGauge, kInfo };

/// What is said of a metric besides its samples.
struct MetricFamily {
  /// Without "_total" for counters and "_info" for infos.
  std::string_view name;
  MetricType type;
  /// A line without a full stop at its end.
  std::string_view help;
};

/// A text from outside as labels have it: valid UTF-8 on one line, of kLongestLabel characters at
/// most. Pure; any bytes.
std::string LabelText(std::string_view text);
inline constexpr std::size_t kLongestLabel = 128;

/// The same as it stands between quotation marks, with what the formats want escaped.
std::string LabelValue(std::string_view text);

/// Writes families and their samples, one family after the other. What has no value is left out.
class MetricWriter {
 public:
  explicit MetricWriter(MetricFormat format) : mFormat(format) {}

  /// Samples that follow belong to it.
  void Begin(const MetricFamily& family);

  /// `labels` as they stand between braces; empty for none.
  void Whole(std::string_view labels, std::optional<std::int64_t> value);
  void Real(std::string_view labels, std::optional<double> value);
  /// Microseconds, written as seconds.
  void Seconds(std::string_view labels, std::optional<std::int64_t> microseconds);
  void Time(std::string_view labels, std::optional<TimeValue> time);

  /// The whole text, after the last sample.
  std::string Take();

 private:
  void Name(std::string_view labels);
  void Describe(std::string_view what, std::string_view name, std::string_view text);
  void Append(std::int64_t number);

  const MetricFormat mFormat;
  MetricFamily mFamily{};
  /// What samples are called.
  std::string mSampleName;
  std::string mText;
};

}  // namespace lurkwell
