#include "exporter/MetricWriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

constexpr std::string_view kUnits[] = {"seconds", "bytes"};
constexpr std::string_view kTypeNames[] = {"counter", "gauge", "info"};

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// What stands before the next separator, which goes, too.
std::string_view TakeUntil(std::string_view& text, char separator) {
  const auto at = text.find(separator);
  const auto taken = text.substr(0, at);
  text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
  return Trimmed(taken);
}

bool IsSame(std::string_view a, std::string_view lower) {
  return std::ranges::equal(a, lower, {}, [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
}

/// One of the ranges of an Accept header.
struct MediaRange {
  std::string_view type;
  std::string_view version;
  double quality = 1;
};

MediaRange ReadRange(std::string_view text) {
  MediaRange range;
  range.type = TakeUntil(text, ';');
  while (!text.empty()) {
    auto parameter = TakeUntil(text, ';');
    const auto name = TakeUntil(parameter, '=');
    if (IsSame(name, "version")) range.version = Trimmed(parameter);
    if (!IsSame(name, "q")) continue;
    double quality = 0;
    const auto value = Trimmed(parameter);
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), quality);
    const bool isNumber = error == std::errc() && end == value.data() + value.size();
    range.quality = isNumber && quality >= 0 && quality <= 1 ? quality : 0;
  }
  return range;
}

}  // namespace

const char* ContentTypeOf(MetricFormat format) {
  return format == MetricFormat::kOpenMetrics
             ? "application/openmetrics-text; version=1.0.0; charset=utf-8"
             : "text/plain; version=0.0.4; charset=utf-8";
}

MetricFormat FormatFor(std::string_view accept) {
  double open = 0;
  double plain = 0;
  while (!accept.empty()) {
    const auto range = ReadRange(TakeUntil(accept, ','));
    const bool isKnownVersion =
        range.version.empty() || range.version == "1.0.0" || range.version == "0.0.1";
    if (IsSame(range.type, "application/openmetrics-text") && isKnownVersion)
      open = std::max(open, range.quality);
    if (IsSame(range.type, "text/plain") || IsSame(range.type, "text/*"))
      plain = std::max(plain, range.quality);
  }
  return open > plain ? MetricFormat::kOpenMetrics : MetricFormat::kPrometheus;
}

std::string LabelText(std::string_view text) {
  const bool isPlain = std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
  if (isPlain && text.size() <= kLongestLabel) return std::string(text);
  // A character has four bytes at most, and an escape is made of one.
  auto printable = PrintableText(text.substr(0, 4 * kLongestLabel + 4));
  if (CountCharacters(printable) <= kLongestLabel) return printable;
  std::size_t characters = 0;
  std::size_t end = 0;
  for (; end < printable.size(); ++end)
    if ((printable[end] & '\xC0') != '\x80' && ++characters == kLongestLabel) break;
  printable.resize(end);
  return printable += "…";
}

std::string LabelValue(std::string_view text) {
  std::string value;
  for (const char c : LabelText(text)) {
    if (c == '\\' || c == '"') value += '\\';
    value += c;
  }
  return value;
}

void MetricWriter::Describe(std::string_view what, std::string_view name, std::string_view text) {
  mText.append("# ").append(what).append(" ").append(name).append(" ").append(text) += '\n';
}

void MetricWriter::Begin(const MetricFamily& family) {
  mFamily = family;
  constexpr std::string_view kSuffixes[] = {"_total", "", "_info"};
  const auto type = static_cast<std::size_t>(family.type);
  mSampleName = std::string(family.name).append(kSuffixes[type]);
  const bool isOpen = mFormat == MetricFormat::kOpenMetrics;
  const std::string_view name = isOpen ? family.name : std::string_view(mSampleName);
  Describe("HELP", name, family.help);
  const bool isPlainInfo = family.type == MetricType::kInfo && !isOpen;
  Describe("TYPE", name, isPlainInfo ? "gauge" : kTypeNames[type]);
  if (!isOpen) return;
  for (const auto unit : kUnits)
    if (name.ends_with(unit) && name.substr(0, name.size() - unit.size()).ends_with('_'))
      Describe("UNIT", name, unit);
}

void MetricWriter::Name(std::string_view labels) {
  mText += mSampleName;
  if (!labels.empty()) mText.append("{").append(labels) += '}';
  mText += ' ';
}

void MetricWriter::Append(std::int64_t number) {
  std::array<char, 24> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  mText.append(digits.data(), end);
}

void MetricWriter::Whole(std::string_view labels, std::optional<std::int64_t> value) {
  if (!value) return;
  Name(labels);
  Append(*value);
  mText += '\n';
}

void MetricWriter::Real(std::string_view labels, std::optional<double> value) {
  if (!value || !std::isfinite(*value)) return;
  Name(labels);
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), *value).ptr;
  mText.append(digits.data(), end) += '\n';
}

void MetricWriter::Seconds(std::string_view labels, std::optional<std::int64_t> microseconds) {
  if (!microseconds || *microseconds < 0) return;
  Name(labels);
  Append(*microseconds / 1'000'000);
  if (const auto rest = *microseconds % 1'000'000; rest != 0) {
    auto fraction = std::to_string(1'000'000 + rest);
    fraction.front() = '.';
    while (fraction.back() == '0') fraction.pop_back();
    mText += fraction;
  }
  mText += '\n';
}

void MetricWriter::Time(std::string_view labels, std::optional<TimeValue> time) {
  if (time) Seconds(labels, time->seconds * 1'000'000 + time->microseconds);
}

std::string MetricWriter::Take() {
  if (mFormat == MetricFormat::kOpenMetrics) mText += "# EOF\n";
  return std::move(mText);
}

}  // namespace lurkwell
