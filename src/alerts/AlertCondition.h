#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace lurkwell {

/// What a rule waits for, of one process or of the machine: from calm over pending to firing and
/// back. Time is what the turns tell; there is no clock in it.
class AlertCondition {
 public:
  enum class State : std::uint8_t { kCalm, kPending, kFiring };
  enum class Change : std::uint8_t { kNone, kBegan, kEnded };

  /// What a turn saw; nothing where it could not be told, which neither begins nor ends anything
  /// and does not count as time.
  struct Sight {
    std::optional<bool> isMet;
    /// Whether what ends an alert is met.
    std::optional<bool> isOver;
  };
  struct Spans {
    std::chrono::milliseconds hold;
    std::chrono::milliseconds calm;
  };

  /// `elapsed` since the turn before.
  Change Turn(Sight sight, std::chrono::milliseconds elapsed, const Spans& spans) {
    if (mState == State::kFiring) return TurnOfFiring(sight.isOver, elapsed, spans.calm);
    if (sight.isMet == false) mState = State::kCalm;
    if (sight.isMet != true) return Change::kNone;
    if (mState == State::kCalm) {
      mState = State::kPending;
      mHeld = {};
    } else {
      mHeld += elapsed;
    }
    if (mHeld < spans.hold) return Change::kNone;
    mState = State::kFiring;
    mIsEnding = false;
    return Change::kBegan;
  }

  State CurrentState() const { return mState; }
  /// While pending: for how long it has been met.
  std::chrono::milliseconds Held() const { return mHeld; }

 private:
  Change TurnOfFiring(std::optional<bool> isOver, std::chrono::milliseconds elapsed,
                      std::chrono::milliseconds calm) {
    if (isOver == false) mIsEnding = false;
    if (isOver != true) return Change::kNone;
    if (!mIsEnding) {
      mIsEnding = true;
      mHeld = {};
    } else {
      mHeld += elapsed;
    }
    if (mHeld < calm) return Change::kNone;
    mState = State::kCalm;
    return Change::kEnded;
  }

  State mState = State::kCalm;
  /// While firing: what would end it was met at the last turn that could tell.
  bool mIsEnding = false;
  /// For how long the condition, or while firing its end, has been met.
  std::chrono::milliseconds mHeld{0};
};

}  // namespace lurkwell
