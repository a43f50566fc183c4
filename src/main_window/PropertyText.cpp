#include "main_window/PropertyText.h"

#include <charconv>
#include <cmath>

#include "consolidator/TextScan.h"
#include "platform/PrintableText.h"
#include "process_control/DisplayFormats.h"

namespace lurkwell {
namespace {

/// With a point, whatever the user's language; what is no finite number counts as 0.
double ReadReal(std::string_view text) {
  SkipBlanks(text);
  double value = 0.0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return std::isfinite(value) ? value : 0.0;
}

}  // namespace

RowValue ReadValue(PropertyType type, std::string_view text) {
  switch (type) {
    case kPropertyTypeString:
      return std::string(WithoutNewline(text));
    case kPropertyTypeInteger:
    case kPropertyTypeMemory:
      return ScanInteger(text).value_or(0);
    case kPropertyTypeReal:
      return ReadReal(text);
    case kPropertyTypeTime:
    case kPropertyTypeDate:
      return ReadTime(text);
    case kPropertyTypeHex:
      break;
  }
  return {};
}

RowValue ReadPSValue(PropertyType type, std::string_view text) {
  const auto raw = WithoutNewline(text);
  std::string_view digits = raw.substr(raw.starts_with('-') ? 1 : 0);
  if (type == kPropertyTypeReal) digits = digits.substr(0, digits.find('.'));
  const bool isDecimal = !digits.empty() &&
                         digits.find_first_not_of("0123456789") == std::string_view::npos &&
                         (digits.size() == 1 || digits.front() != '0');
  return isDecimal ? ReadValue(type, raw) : ReadValue(kPropertyTypeString, raw);
}

QString TimeText(TimeValue time) {
  std::string text = TimeString(time);
  while (!text.empty() && text.back() == '0') text.pop_back();
  if (text.back() == '.') text += '0';
  if (text[text.size() - 2] == '.') text += '0';
  return QString::fromStdString(text);
}

QString PlainText(std::string_view text) {
  return QString::fromStdString(PrintableText(text));
}

QString DisplayText(PropertyType type, const RowValue& value, int width, std::int32_t pid) {
  if (std::holds_alternative<std::monostate>(value)) return {};
  if (const auto* text = std::get_if<std::string>(&value)) return PlainText(*text);
  switch (type) {
    case kPropertyTypeInteger:
      return QString::number(IntegerOf(value));
    case kPropertyTypeReal:
      return QString::number(NumberOf(value), 'g', 6);
    case kPropertyTypeMemory:
      return QString::fromStdString(MemoryString(IntegerOf(value)));
    case kPropertyTypeTime:
      if (const auto* time = std::get_if<TimeValue>(&value)) return TimeText(*time);
      break;
    case kPropertyTypeDate:
      if (const auto* time = std::get_if<TimeValue>(&value); time != nullptr && pid >= 0)
        return QString::fromStdString(DateString(*time, width)).trimmed();
      break;
    case kPropertyTypeString:
    case kPropertyTypeHex:
      break;
  }
  return {};
}

}  // namespace lurkwell
