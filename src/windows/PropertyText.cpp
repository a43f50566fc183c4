#include "windows/PropertyText.h"

#include <span>
#include <string>

#include "consolidator/WholeNames.h"
#include "platform/Machine.h"
#include "platform/PrintableText.h"
#include "platform/ProcessTable.h"
#include "preferences/Settings.h"
#include "process_control/DisplayFormats.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"

namespace lurkwell {
namespace {

QString MarkOf(Missing why) {
  switch (why) {
    case Missing::kNotYetKnown:
      return QStringLiteral("…");
    case Missing::kNotAllowed:
      return QStringLiteral("×");
    case Missing::kNotCounted:
      return QStringLiteral("–");
    case Missing::kNone:
      break;
  }
  return {};
}

/// Digits alone, which are bytes, stand in groups.
QString SizeText(std::int64_t bytes) {
  const auto text = QString::fromStdString(MemoryString(bytes));
  bool isNumber = false;
  const auto number = text.toLongLong(&isNumber);
  return isNumber ? LocalNumber(qint64{number}) : LocalFigure(text);
}

const char* IdOfMissing(const TypedValue& value) {
  const auto* why = std::get_if<Missing>(&value);
  if (why == nullptr) return nullptr;
  switch (*why) {
    case Missing::kNotYetKnown:
      return "value_not_yet_known";
    case Missing::kNotAllowed:
      return "value_not_allowed";
    case Missing::kNotCounted:
      return "value_not_counted";
    case Missing::kNone:
      break;
  }
  return nullptr;
}

}  // namespace

double NumberOf(const TypedValue& value) {
  if (const auto* integer = std::get_if<std::int64_t>(&value)) return static_cast<double>(*integer);
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* time = std::get_if<TimeValue>(&value)) return InSeconds(*time);
  return 0.0;
}

std::int64_t IntegerOf(const TypedValue& value) {
  if (const auto* integer = std::get_if<std::int64_t>(&value)) return *integer;
  return 0;
}

QString MissingText(const TypedValue& value) {
  const auto* id = IdOfMissing(value);
  return id != nullptr ? LocalizedString(id) : QString();
}

QString MissingTip(std::string_view key, const TypedValue& value) {
  const auto* id = IdOfMissing(value);
  if (id == nullptr) return {};
  // Some have their own reasons: "value_not_allowed_pid_disk_read_tip".
  const auto its = id + ('_' + std::string(key)) + "_tip";
  const auto usual = std::string(id) + "_tip";
  return LocalizedString(HasLocalizedString(its.c_str()) ? its.c_str() : usual.c_str());
}

QString TimeText(TimeValue time) {
  std::string text = TimeString(time);
  while (!text.empty() && text.back() == '0') text.pop_back();
  if (text.back() == '.') text += '0';
  if (text[text.size() - 2] == '.') text += '0';
  return LocalFigure(QString::fromStdString(text));
}

QString DateText(TimeValue time, int width) {
  const bool isCalendar = ReadInt("GENERAL_PREFERRED_DATE_DISPLAY_FORMAT") == 0;
  if (isCalendar && HasOwnDates()) return LocalMoment(time.seconds, width);
  const auto text = QString::fromStdString(DateString(time, width));
  return isCalendar ? text : LocalFigure(text);
}

QString ClockText(TimeValue time) {
  const auto part = [](std::int64_t number) {
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
  };
  const auto days = time.seconds / 86'400;
  const auto clock = part(time.seconds / 3600 % 24) + QLatin1Char(':') +
                     part(time.seconds / 60 % 60) + QLatin1Char(':') + part(time.seconds % 60);
  return days > 0 ? QString::number(days) + QLatin1Char('-') + clock : clock;
}

QString PlainText(std::string_view text) {
  return QString::fromStdString(PrintableText(text));
}

QString DisplayText(PropertyType type, const TypedValue& value, int width, std::int32_t pid) {
  if (const auto* why = std::get_if<Missing>(&value)) return MarkOf(*why);
  if (const auto* text = std::get_if<std::string>(&value)) return PlainText(*text);
  switch (type) {
    case kPropertyTypeInteger:
      return QString::number(IntegerOf(value));
    case kPropertyTypeReal:
      return LocalNumber(NumberOf(value), 'g', 6);
    case kPropertyTypeMemory:
      return SizeText(IntegerOf(value));
    case kPropertyTypeRate:
      return SizeText(IntegerOf(value)) + QLatin1String("/s");
    case kPropertyTypeShare:
      return LocalNumber(NumberOf(value), 'f', 1);
    case kPropertyTypeTime:
      if (const auto* time = std::get_if<TimeValue>(&value)) return TimeText(*time);
      break;
    case kPropertyTypeDate:
      if (const auto* time = std::get_if<TimeValue>(&value); time != nullptr && pid >= 0)
        return DateText(*time, width).trimmed();
      break;
    case kPropertyTypeClock:
      if (const auto* time = std::get_if<TimeValue>(&value)) return ClockText(*time);
      break;
    case kPropertyTypeString:
    case kPropertyTypeHex:
      break;
  }
  return {};
}

FollowedProcess DescribeFollowed(std::int32_t pid) {
  const auto described = TheMachine().processTable.Describe(std::span(&pid, 1));
  if (described.empty()) return {};
  const auto& process = described.front();
  return {process.owner, PlainText(process.owner), PlainText(process.commandLine)};
}

QString FollowedName(std::int32_t pid) {
  if (MayNameGoOn(pid)) LearnWholeNames(std::span(&pid, 1));
  return PlainText(WholeNameOf(pid));
}

}  // namespace lurkwell
