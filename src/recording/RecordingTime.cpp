#include "recording/RecordingTime.h"

#include <time.h>

#include <charconv>
#include <cstdlib>
#include <optional>

#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kSecond = 1'000'000;
constexpr std::int64_t kSecondsInDay = 86'400;

/// Whole seconds; those before the epoch, too.
std::int64_t SecondsOf(std::int64_t wall) {
  return (wall - ((wall % kSecond) + kSecond) % kSecond) / kSecond;
}

/// "2h", "1h30m".
std::optional<std::int64_t> SpanInSeconds(std::string_view text) {
  constexpr std::int64_t kLongest = 100'000 * kSecondsInDay;
  if (text.empty()) return std::nullopt;
  std::int64_t seconds = 0;
  while (!text.empty()) {
    std::int64_t number = 0;
    const auto [at, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || number < 0 || number > kLongest || at == text.data() + text.size())
      return std::nullopt;
    const char unit = *at;
    const std::int64_t factor = unit == 'd'   ? kSecondsInDay
                                : unit == 'h' ? 3600
                                : unit == 'm' ? 60
                                : unit == 's' ? 1
                                              : 0;
    if (factor == 0) return std::nullopt;
    seconds += number * factor;
    text.remove_prefix(static_cast<std::size_t>(at + 1 - text.data()));
  }
  return seconds;
}

/// What is left behind what the format takes; null when it does not fit.
const char* Scan(const std::string& text, const char* format, tm& parts) {
  return ::strptime(text.c_str(), format, &parts);
}

/// Seconds east of Greenwich: "Z" or "+HH:MM".
std::optional<std::int64_t> ZoneOf(std::string_view text) {
  if (text == "Z") return 0;
  int hours = 0;
  int minutes = 0;
  if (text.size() != 6 || (text[0] != '+' && text[0] != '-') || text[3] != ':') return std::nullopt;
  const auto number = [](std::string_view digits, int& result) {
    const auto [at, error] = std::from_chars(digits.data(), digits.data() + digits.size(), result);
    return error == std::errc{} && at == digits.data() + digits.size() && result >= 0;
  };
  if (!number(text.substr(1, 2), hours) || !number(text.substr(4, 2), minutes) || hours > 14 ||
      minutes > 59)
    return std::nullopt;
  return (text[0] == '-' ? -1 : 1) * (hours * 3600 + minutes * 60);
}

std::optional<std::int64_t> DateInSeconds(const std::string& text) {
  for (const char* format :
       {"%Y-%m-%dT%H:%M:%S", "%Y-%m-%d %H:%M:%S", "%Y-%m-%dT%H:%M", "%Y-%m-%d %H:%M", "%Y-%m-%d"}) {
    tm parts{};
    const char* rest = Scan(text, format, parts);
    if (rest == nullptr) continue;
    parts.tm_isdst = -1;
    if (*rest == '\0') return std::mktime(&parts);
    if (const auto zone = ZoneOf(rest)) return ::timegm(&parts) - *zone;
  }
  return std::nullopt;
}

std::optional<std::int64_t> TimeOfDayInSeconds(const std::string& text, std::int64_t last) {
  for (const char* format : {"%H:%M:%S", "%H:%M"}) {
    tm parts{};
    const char* rest = Scan(text, format, parts);
    if (rest == nullptr || *rest != '\0') continue;
    const std::time_t end = SecondsOf(last);
    tm day{};
    ::localtime_r(&end, &day);
    for (int back = 0; back < 2; ++back) {
      tm moment = day;
      moment.tm_mday -= back;
      moment.tm_hour = parts.tm_hour;
      moment.tm_min = parts.tm_min;
      moment.tm_sec = parts.tm_sec;
      moment.tm_isdst = -1;
      const auto seconds = std::mktime(&moment);
      if (seconds <= end) return seconds;
    }
  }
  return std::nullopt;
}

}  // namespace

std::string RecordedMomentText(std::int64_t wall) {
  const std::time_t seconds = SecondsOf(wall);
  tm parts{};
  if (::localtime_r(&seconds, &parts) == nullptr) return "a time beyond the calendar";
  char text[64];
  return {text, std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts)};
}

std::variant<std::int64_t, std::string> ReadMoment(std::string_view text, std::int64_t last) {
  const std::string words(text);
  if (text.starts_with('-')) {
    if (const auto span = SpanInSeconds(text.substr(1))) return last - *span * kSecond;
  } else if (const auto date = DateInSeconds(words)) {
    return *date * kSecond;
  } else if (const auto time = TimeOfDayInSeconds(words, last)) {
    return *time * kSecond;
  }
  return "'" + PrintableText(words) +
         "' is no time; there are '03:12', '2026-11-22T03:12:00' and '-2h'";
}

}  // namespace lurkwell
