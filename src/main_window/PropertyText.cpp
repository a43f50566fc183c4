#include "main_window/PropertyText.h"

#include <cstdlib>

#include "consolidator/TextScan.h"
#include "platform/PrintableText.h"
#include "process_control/DisplayFormats.h"

namespace lurkwell {
namespace {

QString MemoryText(std::int64_t bytes) {
  char text[64];
  FormatMemoryString(bytes, text, sizeof text, false);
  return QString::fromLatin1(text);
}

QString DateText(TimeValue time, int width) {
  char text[64];
  FormatDateString(text, sizeof text, time.seconds, time.microseconds, width);
  return QString::fromUtf8(text).trimmed();
}

}  // namespace

TimeValue ReadTime(std::string_view text) {
  TimeValue time;
  time.seconds = ScanInteger(text).value_or(0);
  if (!text.starts_with('.')) return time;
  text.remove_prefix(1);
  time.microseconds = static_cast<std::int32_t>(ScanInteger(text).value_or(0));
  return time;
}

RowValue ReadValue(PropertyType type, std::string_view text) {
  switch (type) {
    case kPropertyTypeString:
      return std::string(WithoutNewline(text));
    case kPropertyTypeInteger:
    case kPropertyTypeMemory:
      return ScanInteger(text).value_or(0);
    case kPropertyTypeReal:
      SkipBlanks(text);
      return std::strtod(std::string(text).c_str(), nullptr);
    case kPropertyTypeTime:
    case kPropertyTypeDate:
      return ReadTime(text);
    case kPropertyTypeHex:
      break;
  }
  return {};
}

QString TimeText(TimeValue time) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "%lld.%06d", static_cast<long long>(time.seconds),
                time.microseconds);
  std::string text = digits;
  while (!text.empty() && text.back() == '0') text.pop_back();
  if (text.back() == '.') text += '0';
  if (text[text.size() - 2] == '.') text += '0';
  return QString::fromLatin1(text.c_str());
}

QString PlainText(std::string_view text) {
  return QString::fromStdString(PrintableText(text));
}

QString DisplayText(PropertyType type, const RowValue& value, int width, std::int32_t pid) {
  if (std::holds_alternative<std::monostate>(value)) return {};
  switch (type) {
    case kPropertyTypeString:
      if (const auto* text = std::get_if<std::string>(&value)) return PlainText(*text);
      break;
    case kPropertyTypeInteger:
      return QString::number(IntegerOf(value));
    case kPropertyTypeReal:
      return QString::number(NumberOf(value), 'g', 6);
    case kPropertyTypeMemory:
      return MemoryText(IntegerOf(value));
    case kPropertyTypeTime:
      if (const auto* time = std::get_if<TimeValue>(&value)) return TimeText(*time);
      break;
    case kPropertyTypeDate:
      if (const auto* time = std::get_if<TimeValue>(&value); time != nullptr && pid >= 0)
        return DateText(*time, width);
      break;
    case kPropertyTypeHex:
      break;
  }
  return {};
}

}  // namespace lurkwell
