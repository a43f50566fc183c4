#include "alerts/AlertOccurrence.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <variant>

#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

std::string FractionInLine(double number) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.3f", number);
  return text.data();
}

std::string ValueInLine(const TypedValue& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
  if (const auto* number = std::get_if<double>(&value)) return FractionInLine(*number);
  if (const auto* time = std::get_if<TimeValue>(&value)) return FractionInLine(InSeconds(*time));
  if (const auto* text = std::get_if<std::string>(&value)) return PrintableText(*text);
  return {};
}

const char* WordFor(AlertOccurrence::Ending ending) {
  using enum AlertOccurrence::Ending;
  switch (ending) {
    case kNotYet:
      return "began";
    case kMetNoMore:
      return "ended";
    case kProcessEnded:
      return "process ended";
    case kRuleChanged:
      return "rule changed";
  }
  return "";
}

}  // namespace

const char* const kAlertLogHeader = "time\tevent\trule\tpid\tstart stamp\tname\tfigures\tseconds";

std::string FiguresInLine(const AlertSubject& subject) {
  std::string line;
  for (const auto& [property, value] : subject.figures)
    line += (line.empty() ? "" : " ") + property + '=' + ValueInLine(value);
  return line;
}

std::string TimeInLine(TimeValue calendar) {
  const std::time_t seconds = calendar.seconds;
  std::tm local{};
  if (::localtime_r(&seconds, &local) == nullptr) return {};
  const long minutes = local.tm_gmtoff / 60;
  std::array<char, 32> text{};
  std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &local);
  std::array<char, 32> zone{};
  std::snprintf(zone.data(), zone.size(), "%c%02ld:%02ld", minutes < 0 ? '-' : '+',
                std::labs(minutes) / 60, std::labs(minutes) % 60);
  return std::string(text.data()) + zone.data();
}

std::string AlertLogLine(const AlertOccurrence& occurrence, TimeValue calendar) {
  const auto& process = occurrence.subject.process;
  const bool isOfProcess = process.pid != kInvalidPID;
  const bool hasEnded = occurrence.ending != AlertOccurrence::Ending::kNotYet;
  std::string line = TimeInLine(calendar) + '\t' + WordFor(occurrence.ending) + '\t';
  line += PrintableText(occurrence.rule) + '\t';
  line += (isOfProcess ? std::to_string(process.pid) : "") + '\t';
  line += (isOfProcess ? std::to_string(process.startStamp) : "") + '\t';
  line += PrintableText(occurrence.subject.name) + '\t' + FiguresInLine(occurrence.subject) + '\t';
  if (hasEnded) line += FractionInLine(static_cast<double>(occurrence.lastedInMilliseconds) / 1000);
  return line;
}

}  // namespace lurkwell
