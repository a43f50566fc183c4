#include "consolidator/PSColumns.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ctime>
#include <iterator>
#include <optional>
#include <utility>

#include "consolidator/MetaProcessInformation.h"
#include "consolidator/TextScan.h"
#include "platform/Assertion.h"
#include "platform/Machine.h"
#include "platform/Tools.h"

namespace lurkwell {

bool IsPSColumnName(std::string_view name) {
  constexpr std::string_view kOthers[] = {"meta_", "pid_", "carbonpsn_", "classicpsn_",
                                          "internal_"};
  return std::ranges::none_of(kOthers,
                              [name](std::string_view prefix) { return name.starts_with(prefix); });
}

namespace {

struct PSColumnType {
  std::string_view header;
  PropertyType type;
};

constexpr PSColumnType kPSColumnTypes[] = {
    {"ACFLG", kPropertyTypeInteger},   {"BLOCKED", kPropertyTypeInteger},
    {"CPU", kPropertyTypeInteger},     {"F", kPropertyTypeInteger},
    {"JOBC", kPropertyTypeInteger},    {"KTRACE", kPropertyTypeInteger},
    {"KTRACEP", kPropertyTypeInteger}, {"NI", kPropertyTypeInteger},
    {"WCHAN", kPropertyTypeInteger},   {"P_RU", kPropertyTypeInteger},
    {"PAGEIN", kPropertyTypeInteger},  {"PENDING", kPropertyTypeInteger},
    {"PGID", kPropertyTypeInteger},    {"PID", kPropertyTypeInteger},
    {"PPID", kPropertyTypeInteger},    {"PRI", kPropertyTypeInteger},
    {"RE", kPropertyTypeInteger},      {"RGID", kPropertyTypeInteger},
    {"RSS", kPropertyTypeInteger},     {"RUID", kPropertyTypeInteger},
    {"SL", kPropertyTypeInteger},      {"SVGID", kPropertyTypeInteger},
    {"SVUID", kPropertyTypeInteger},   {"TPGID", kPropertyTypeInteger},
    {"TSIZ", kPropertyTypeInteger},    {"UID", kPropertyTypeInteger},
    {"UPR", kPropertyTypeInteger},     {"XSTAT", kPropertyTypeInteger},
    {"RSZ", kPropertyTypeMemory},      {"VSZ", kPropertyTypeMemory},
    {"PADDR", kPropertyTypeHex},       {"SESS", kPropertyTypeHex},
    {"TSESS", kPropertyTypeHex},       {"%CPU", kPropertyTypeReal},
    {"%MEM", kPropertyTypeReal},
};

constexpr std::string_view kPSColumnsThatStay[] = {"PADDR", "PID", "PPID"};

PropertyType TypeOf(ToolColumn::Kind kind) {
  switch (kind) {
    case ToolColumn::Kind::kText:
      return kPropertyTypeString;
    case ToolColumn::Kind::kInteger:
      return kPropertyTypeInteger;
    case ToolColumn::Kind::kReal:
      return kPropertyTypeReal;
    case ToolColumn::Kind::kSize:
      return kPropertyTypeMemory;
    case ToolColumn::Kind::kClock:
      return kPropertyTypeClock;
    case ToolColumn::Kind::kDate:
      return kPropertyTypeDate;
  }
  return kPropertyTypeString;
}

/// With a point, whatever the user's language.
TypedValue ReadReal(std::string_view text) {
  double value = 0.0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return std::isfinite(value) ? value : 0.0;
}

/// Zeros in front make it no number: signal masks are texts.
bool IsDecimal(std::string_view digits) {
  return !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos &&
         (digits.size() == 1 || digits.front() != '0');
}

std::optional<TypedValue> ReadNumber(PropertyType type, std::int64_t unit, std::string_view text) {
  std::string_view digits = text.substr(text.starts_with('-') ? 1 : 0);
  if (type == kPropertyTypeReal) digits = digits.substr(0, digits.find('.'));
  if (!IsDecimal(digits)) return std::nullopt;
  if (type == kPropertyTypeReal) return ReadReal(text);
  std::int64_t value = 0;
  if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc{} ||
      __builtin_mul_overflow(value, unit, &value))
    return std::nullopt;
  return value;
}

/// Takes digits and what must stand behind them off the text, if they are there.
std::optional<std::int64_t> TakeNumber(std::string_view& text, char end) {
  std::int64_t value = 0;
  const auto [at, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const auto length = static_cast<std::size_t>(at - text.data());
  const bool isWhole =
      error == std::errc{} && value >= 0 && value < 1'000'000'000 &&
      (end == '\0' ? length == text.size() : length < text.size() && text[length] == end);
  if (!isWhole) return std::nullopt;
  text.remove_prefix(std::min(length + 1, text.size()));
  return value;
}

std::optional<TypedValue> ReadClock(std::string_view text) {
  const auto days = text.find('-') == std::string_view::npos ? 0 : TakeNumber(text, '-');
  const auto colons = std::ranges::count(text, ':');
  const auto hours = colons == 2 ? TakeNumber(text, ':') : 0;
  const auto minutes = TakeNumber(text, ':');
  const auto seconds = TakeNumber(text, '\0');
  if (!days || !hours || !minutes || !seconds) return std::nullopt;
  return TimeValue{((*days * 24 + *hours) * 60 + *minutes) * 60 + *seconds, 0};
}

/// "Sun Nov  1 12:34:56 2026", whatever the user's language.
std::optional<TypedValue> ReadDate(std::string_view text) {
  constexpr std::string_view kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                          "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  ScanWord(text);
  const auto* month = std::ranges::find(kMonths, ScanWord(text));
  const auto skipBlanks = [&text] {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  };
  std::array<std::optional<std::int64_t>, 5> numbers;
  constexpr std::array kEnds = {' ', ':', ':', ' ', '\0'};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    skipBlanks();
    numbers[i] = TakeNumber(text, kEnds[i]);
    if (!numbers[i]) return std::nullopt;
  }
  if (month == std::end(kMonths)) return std::nullopt;
  std::tm time{};
  time.tm_mon = static_cast<int>(month - std::begin(kMonths));
  time.tm_mday = static_cast<int>(*numbers[0]);
  time.tm_hour = static_cast<int>(*numbers[1]);
  time.tm_min = static_cast<int>(*numbers[2]);
  time.tm_sec = static_cast<int>(*numbers[3]);
  time.tm_year = static_cast<int>(*numbers[4] - 1900);
  time.tm_isdst = -1;
  const auto seconds = std::mktime(&time);
  if (seconds == -1) return std::nullopt;
  return TimeValue{seconds, 0};
}

std::optional<TypedValue> ReadAs(const PSColumnFacts& facts, std::string_view text) {
  switch (facts.type) {
    case kPropertyTypeInteger:
    case kPropertyTypeReal:
    case kPropertyTypeMemory:
      return ReadNumber(facts.type, facts.type == kPropertyTypeMemory ? facts.unit : 1, text);
    case kPropertyTypeClock:
      return ReadClock(text);
    case kPropertyTypeDate:
      return ReadDate(text);
    case kPropertyTypeString:
    case kPropertyTypeHex:
    case kPropertyTypeTime:
    case kPropertyTypeShare:
    case kPropertyTypeRate:
      break;
  }
  return std::nullopt;
}

}  // namespace

PSColumnFacts FactsOfPSColumn(std::string_view name) {
  if (const auto column = TheMachine().tools.ColumnNamed(name))
    return {TypeOf(column->kind), true, column->unit, column->isPrivate};
  const auto* known = std::ranges::find(kPSColumnTypes, name, &PSColumnType::header);
  const bool stays =
      std::ranges::find(kPSColumnsThatStay, name) != std::ranges::end(kPSColumnsThatStay);
  return {known != std::end(kPSColumnTypes) ? known->type : kPropertyTypeString, !stays};
}

TypedValue ReadPSValue(const PSColumnFacts& facts, std::string_view text) {
  if (text.ends_with('\n')) text.remove_suffix(1);
  auto value = ReadAs(facts, text);
  return value ? std::move(*value) : TypedValue(std::string(text));
}

ProcessInformationPSHeader* PSHeaderRegistry::Find(std::string_view keyword) {
  const auto found = mByKeyword.find(keyword);
  return found == mByKeyword.end() ? nullptr : found->second;
}

ProcessInformationPSHeader& PSHeaderRegistry::Nth(int index) {
  Require(index >= 0 && index < Count(), kUnit, "pipsh");
  return mHeaders[static_cast<std::size_t>(index)];
}

ProcessInformationPSHeader& PSHeaderRegistry::Add(std::string_view keyword) {
  auto& header = mHeaders.emplace_back();
  header.keyword = keyword;
  header.index = Count() - 1;
  mByKeyword.emplace(header.keyword, &header);
  return header;
}

void PSHeaderRegistry::Clear() {
  mByKeyword.clear();
  mHeaders.clear();
}

}  // namespace lurkwell
