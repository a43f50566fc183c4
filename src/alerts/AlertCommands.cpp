#include "alerts/AlertCommands.h"

#include <utility>

#include "platform/Machine.h"
#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

constexpr double kSecondsBetweenLooks = 0.25;

bool IsBlankIn(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

}  // namespace

std::optional<std::vector<std::string>> SplitCommand(std::string_view text) {
  std::vector<std::string> words;
  bool isInWord = false;
  char quote = '\0';
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quote == '\0' && IsBlankIn(c)) {
      isInWord = false;
      continue;
    }
    if (!std::exchange(isInWord, true)) words.emplace_back();
    if (c == quote) {
      quote = '\0';
    } else if (quote == '\0' && (c == '"' || c == '\'')) {
      quote = c;
    } else if (c == '\\' && quote != '\'' && i + 1 < text.size()) {
      words.back() += text[++i];
    } else {
      words.back() += c;
    }
  }
  if (quote != '\0') return std::nullopt;
  return words;
}

std::vector<std::string> VariablesFor(const AlertOccurrence& occurrence) {
  const auto& subject = occurrence.subject;
  const bool isOfProcess = subject.process.pid != kInvalidPID;
  return {"LURKWELL_ALERT_RULE=" + PrintableText(occurrence.rule),
          "LURKWELL_ALERT_TIME=" + TimeInLine(occurrence.began),
          "LURKWELL_ALERT_PID=" + (isOfProcess ? std::to_string(subject.process.pid) : ""),
          "LURKWELL_ALERT_NAME=" + PrintableText(subject.name),
          "LURKWELL_ALERT_FIGURES=" + FiguresInLine(subject)};
}

void AlertCommands::Run(std::uint64_t ruleId, std::vector<std::string> arguments,
                        std::vector<std::string> variables) {
  if (mWaiting.size() >= kMostWaiting)
    return mDone(ruleId, Failure{Failure::Kind::kLeftOut, 0, {}});
  mWaiting.push_back({ruleId, std::move(arguments), std::move(variables)});
  StartWaiting();
}

void AlertCommands::StartWaiting() {
  auto& machine = TheMachine();
  while (!mWaiting.empty() && mRunning.size() < kMostRunning) {
    const auto next = std::move(mWaiting.front());
    mWaiting.pop_front();
    auto [command, problem] = machine.tools.StartCommand(next.arguments, next.variables);
    if (command != nullptr) {
      mRunning.push_back({next.ruleId, std::move(command), machine.clock.Now()});
    } else {
      mDone(next.ruleId, Failure{Failure::Kind::kNotStarted, 0, std::move(problem)});
    }
  }
  if (mRunning.empty()) {
    mLooks.reset();
  } else if (mLooks == nullptr) {
    mLooks = machine.runLoop.AddTimer(machine.clock.AbsoluteTime() + kSecondsBetweenLooks,
                                      kSecondsBetweenLooks, [this] { Look(); });
  }
}

void AlertCommands::Look() {
  mRunning.remove_if([this](Started& run) { return LookAt(run); });
  StartWaiting();
}

bool AlertCommands::LookAt(Started& run) {
  if (const auto status = run.command->Status()) {
    std::optional<Failure> failure;
    if (*status != 0) failure = Failure{Failure::Kind::kStatus, *status, {}};
    if (run.wasAskedToEnd) failure = Failure{Failure::Kind::kTooLong, 0, {}};
    mDone(run.ruleId, failure);
    return true;
  }
  const std::chrono::milliseconds lasted(MillisecondsBetween(run.began, TheMachine().clock.Now()));
  if (lasted >= kLongest + kGrace) {
    run.command->End(true);
  } else if (lasted >= kLongest && !std::exchange(run.wasAskedToEnd, true)) {
    run.command->End(false);
  }
  return false;
}

}  // namespace lurkwell
