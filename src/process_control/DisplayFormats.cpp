#include "process_control/DisplayFormats.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <limits>
#include <string>

#include "platform/Assertion.h"
#include "platform/Diagnostics.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

/// The source that its assertions name.
constexpr char kFormatsUnit[] = "ProcessActions";

enum class MemoryUnit : std::int32_t { kBytes = 1, kKilobytes, kMegabytes, kGigabytes };

MemoryUnit UnitByMagnitude(std::int64_t value) {
  const auto within = [value](std::int64_t bound) { return -bound < value && value < bound; };
  constexpr std::int64_t kKilobyte = 1024;
  if (within(5 * kKilobyte)) return MemoryUnit::kBytes;
  if (within(kKilobyte * kKilobyte)) return MemoryUnit::kKilobytes;
  if (within(kKilobyte * kKilobyte * kKilobyte)) return MemoryUnit::kMegabytes;
  return MemoryUnit::kGigabytes;
}

MemoryUnit UnitFor(std::int64_t value) {
  const std::int32_t preferred = ReadInt("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT");
  const bool isUnit = preferred >= static_cast<std::int32_t>(MemoryUnit::kBytes) &&
                      preferred <= static_cast<std::int32_t>(MemoryUnit::kGigabytes);
  return isUnit ? static_cast<MemoryUnit>(preferred) : UnitByMagnitude(value);
}

/// In 32 bits the lowest value has no negative; it stays what it is there, and here too.
std::int64_t Negated(std::int64_t value) {
  const bool hasNone = value == std::numeric_limits<std::int32_t>::min() ||
                       value == std::numeric_limits<std::int64_t>::min();
  return hasNone ? value : -value;
}

/// A part of the value, as a number that shows no more than single precision has.
double InUnits(std::int64_t value, double unit) {
  return static_cast<double>(static_cast<float>(static_cast<double>(value) * (1.0 / unit)));
}

int Write(char* out, std::size_t size, const char* prefix, std::int64_t value) {
  const auto whole = [](std::int64_t number) { return static_cast<long long>(number); };
  constexpr std::int64_t kHalf = 512;
  constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max() - kHalf;
  switch (UnitFor(value)) {
    case MemoryUnit::kBytes:
      return std::snprintf(out, size, "%s%lld", prefix, whole(value));
    case MemoryUnit::kKilobytes:
      return std::snprintf(out, size, "%s%lld K", prefix,
                           whole((std::min(value, kMost) + kHalf) / 1024));
    case MemoryUnit::kMegabytes:
      return std::snprintf(out, size, "%s%.1f M", prefix, InUnits(value, 1048576));
    case MemoryUnit::kGigabytes:
      return std::snprintf(out, size, "%s%.2f G", prefix, InUnits(value, 1073741824));
  }
  FailAssertion(kFormatsUnit, __LINE__, "false");
}

/// Weekday, month, day, time of day, year and a newline: 25 characters until the year 9999.
std::string CalendarText(std::int64_t seconds) {
  const std::time_t time = seconds;
  std::tm local{};
  if (::localtime_r(&time, &local) == nullptr) return std::to_string(seconds) + '\n';
  constexpr const char* kDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                     "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  char text[64];
  std::snprintf(text, sizeof text, "%s %s %2d %02d:%02d:%02d %lld\n", kDays[local.tm_wday],
                kMonths[local.tm_mon], local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec,
                1900LL + local.tm_year);
  return text;
}

std::string CutCalendarText(const std::string& text, std::int32_t width) {
  constexpr std::size_t kMonth = 4, kEndOfTime = 19, kEnd = 24;
  if (width <= 0 || text.size() < kEnd) return text;
  const auto size = static_cast<std::size_t>(width);
  if (size <= kEndOfTime - kMonth) return text.substr(kEndOfTime - size, size);
  if (size <= kEnd - kMonth) return text.substr(kMonth, size);
  return text.substr(size <= kEnd ? kEnd - size : 0, std::min(size, kEnd));
}

std::string PreciseText(TimeValue time, std::int32_t width) {
  const auto text = TimeString(time);
  const bool fits = width <= 0 || text.size() <= static_cast<std::size_t>(width);
  return fits ? text : std::to_string(time.seconds);
}

}  // namespace

std::int32_t FormatMemoryString(std::int64_t value, char* out, std::int32_t maxlen, bool withSign) {
  Require(maxlen > 20, kFormatsUnit, "maxlen > 20");
  const char* prefix = "";
  if (withSign) prefix = value > 0 ? "+ " : value < 0 ? "- " : "  ";
  if (withSign && value < 0) value = Negated(value);
  return std::min(Write(out, static_cast<std::size_t>(maxlen), prefix, value), maxlen - 1);
}

std::int32_t FormatMemoryString(std::int32_t value, char* out, std::int32_t maxlen, bool withSign) {
  return FormatMemoryString(std::int64_t{value}, out, maxlen, withSign);
}

void FormatDateString(char* out, std::int32_t maxlen, std::int64_t seconds,
                      std::int32_t microseconds, std::int32_t width) {
  Require(maxlen >= 26, kFormatsUnit, "maxlen >= 26");
  const std::int32_t format = ReadInt("GENERAL_PREFERRED_DATE_DISPLAY_FORMAT");
  std::string text;
  if (format == 1) {
    text = std::to_string(seconds);
  } else if (format == 2) {
    text = PreciseText({seconds, microseconds}, width);
  } else {
    if (format != 0) DiagnoseVerbatim("BAD preferred date format preference! %d", format);
    text = CutCalendarText(CalendarText(seconds), width);
  }
  const std::size_t length = std::min(text.size(), static_cast<std::size_t>(maxlen) - 1);
  std::memcpy(out, text.data(), length);
  out[length] = '\0';
}

std::string MemoryString(std::int64_t bytes, bool withSign) {
  char text[64];
  FormatMemoryString(bytes, text, sizeof text, withSign);
  return text;
}

std::string DateString(TimeValue time, std::int32_t width) {
  char text[64];
  FormatDateString(text, sizeof text, time.seconds, time.microseconds, width);
  return text;
}

std::string TimeString(TimeValue time) {
  char text[48];
  std::snprintf(text, sizeof text, "%lld.%06d", static_cast<long long>(time.seconds),
                time.microseconds);
  return text;
}

}  // namespace lurkwell
