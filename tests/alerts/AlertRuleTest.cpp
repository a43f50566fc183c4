#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <variant>

#include "alerts/AlertCondition.h"
#include "alerts/AlertRule.h"

namespace lurkwell {
namespace {

using namespace std::chrono_literals;
using Scope = AlertRule::Scope;

AlertRule Rule(const char* text) {
  auto rule = AlertRule::Read(text);
  if (const auto* error = std::get_if<AlertRuleError>(&rule)) {
    ADD_FAILURE() << text << ": " << static_cast<int>(error->kind) << " at " << error->position;
    return {};
  }
  return std::move(std::get<AlertRule>(rule));
}

TEST(AlertRule, IsACondition) {
  struct Case {
    const char* text;
    Scope scope;
    std::chrono::milliseconds hold, calm;
    std::size_t properties;
  };
  for (const auto& [text, scope, hold, calm, properties] :
       {Case{"name:postgres mem>4G for 5m", Scope::kEach, 5min, 30s, 2},
        {"any cpu>90% for 10m", Scope::kAny, 10min, 30s, 1},
        {"unit:backup.service absent for 1h", Scope::kAbsent, 1h, 30s, 1},
        {"unit:backup.service for 1h30m absent", Scope::kAbsent, 90min, 30s, 1},
        {"cpu>90 for 10m until cpu<70 for 1.5m", Scope::kEach, 10min, 90s, 1},
        {"cpu>90 until mem<1G | cpu<5", Scope::kEach, 0s, 0s, 2},
        {"cpu>90 until cpu<70 for 10 for 1m", Scope::kEach, 1min, 10s, 1},
        {"total mem>8G", Scope::kTotal, 0s, 30s, 1},
        {"total mem>8G name:firefox | name:chrome until mem<6G", Scope::kTotal, 0s, 0s, 2},
        // In quotation marks they are texts like any other.
        {"\"for\" \"until\" \"absent\"", Scope::kEach, 0s, 30s, 0},
        {"\"any\" for 2d", Scope::kEach, 48h, 30s, 0},
        {"name:/a for 5m/ for 5s", Scope::kEach, 5s, 30s, 1}}) {
    SCOPED_TRACE(text);
    const auto rule = Rule(text);
    EXPECT_EQ(rule.scope, scope);
    EXPECT_EQ(rule.hold, hold);
    EXPECT_EQ(rule.calm, calm);
    EXPECT_EQ(rule.Properties().size(), properties);
  }
  EXPECT_EQ(Rule("total mem>8G").totalProperty, "pid_rsz");
}

TEST(AlertRule, SaysWhatIsWrongAndWhere) {
  using Kind = AlertRuleError::Kind;
  struct Mistake {
    const char* text;
    Kind kind;
    std::size_t position, length;
  };
  for (const auto& [text, kind, position, length] :
       {Mistake{"", Kind::kNoCondition, 0, 0},
        {"any for 5m", Kind::kNoCondition, 0, 0},
        {"any cpu>lots for 5m", Kind::kQuery, 8, 4},
        {"cpu>1 until nmae:x", Kind::kQuery, 12, 4},
        {"cpu>1 for", Kind::kNoSpan, 6, 3},
        {"cpu>1 for ever", Kind::kNoSpan, 10, 4},
        {"cpu>1 for 1h30", Kind::kNoSpan, 10, 4},
        {"cpu>1 for -5m", Kind::kNoSpan, 10, 3},
        {"cpu>1 for nan", Kind::kNoSpan, 10, 3},
        {"cpu>1 for 999d", Kind::kTooLong, 10, 4},
        {"cpu>1 for 5m for 6m", Kind::kTwice, 13, 3},
        {"a absent absent", Kind::kTwice, 9, 6},
        {"cpu>1 until cpu<1 until cpu<2", Kind::kTwice, 18, 5},
        {"any a absent", Kind::kDoesNotFit, 6, 6},
        {"a absent until b", Kind::kDoesNotFit, 9, 5},
        {"cpu>1 for 5m soon", Kind::kUnknownWord, 13, 4},
        {"cpu>1 until", Kind::kNoCondition, 6, 5},
        {"total name:a", Kind::kNoTotal, 6, 6},
        {"total", Kind::kNoTotal, 5, 0},
        {"total pid>5", Kind::kNoTotal, 6, 5},
        {"total mem>5G until cpu<3", Kind::kOtherTotal, 19, 5}}) {
    SCOPED_TRACE(text);
    const auto rule = AlertRule::Read(text);
    const auto* error = std::get_if<AlertRuleError>(&rule);
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->kind, kind) << static_cast<int>(error->kind);
    EXPECT_EQ(error->position, position);
    EXPECT_EQ(error->length, length);
    EXPECT_EQ(error->kind == Kind::kQuery, error->query.has_value());
  }
  const auto large = AlertRule::Read(std::string(kLongestAlertRule + 1, 'a'));
  EXPECT_EQ(std::get<AlertRuleError>(large).kind, Kind::kTextIsTooLarge);
}

TEST(AlertCondition, HoldsBeforeItBeginsAndBeforeItEnds) {
  using enum AlertCondition::Change;
  using State = AlertCondition::State;
  AlertCondition condition;
  const AlertCondition::Spans spans{10s, 4s};
  const auto turn = [&](std::optional<bool> met) {
    return condition.Turn({met, met ? std::optional(!*met) : std::nullopt}, 2s, spans);
  };
  for (int i = 0; i < 5; ++i) EXPECT_EQ(turn(true), kNone);
  // A break begins anew; a turn that could not tell stops the clock alone.
  EXPECT_EQ(turn(false), kNone);
  EXPECT_EQ(condition.CurrentState(), State::kCalm);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(turn(true), kNone);
  for (int i = 0; i < 9; ++i) EXPECT_EQ(turn(std::nullopt), kNone);
  EXPECT_EQ(condition.CurrentState(), State::kPending);
  EXPECT_EQ(turn(true), kBegan);
  // Once, however long it goes on.
  for (int i = 0; i < 20; ++i) EXPECT_EQ(turn(true), kNone);
  EXPECT_EQ(turn(false), kNone);
  EXPECT_EQ(turn(false), kNone);
  EXPECT_EQ(turn(true), kNone);
  EXPECT_EQ(turn(false), kNone);
  EXPECT_EQ(turn(std::nullopt), kNone);
  EXPECT_EQ(turn(false), kNone);
  EXPECT_EQ(turn(false), kEnded);
  EXPECT_EQ(condition.CurrentState(), State::kCalm);
}

}  // namespace
}  // namespace lurkwell
