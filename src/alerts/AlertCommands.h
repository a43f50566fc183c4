#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "alerts/AlertOccurrence.h"
#include "platform/Clock.h"
#include "platform/RunLoop.h"
#include "platform/Tools.h"

namespace lurkwell {

/// A command line's words: separated by blanks; what stands in quotation marks of either kind is
/// one, a backslash makes the next character an ordinary one, but not between single ones. Nothing
/// else has a meaning, as there is no shell. Nothing when a quotation mark has no second one. Pure.
std::optional<std::vector<std::string>> SplitCommand(std::string_view text);

/// What a command learns of its alert, as "NAME=VALUE".
std::vector<std::string> VariablesFor(const AlertOccurrence& occurrence);

/// Runs commands of rules: four at a time, 32 wait, a minute each. What is more is left out, and
/// what takes longer is ended. Main thread.
class AlertCommands {
 public:
  static constexpr std::size_t kMostRunning = 4;
  static constexpr std::size_t kMostWaiting = 32;
  static constexpr std::chrono::seconds kLongest{60};
  /// From being asked to end to being ended.
  static constexpr std::chrono::seconds kGrace{2};

  /// How a command went wrong.
  struct Failure {
    enum class Kind : std::uint8_t {
      kNotStarted,  ///< `words` says why, in the system's words
      kStatus,      ///< it ended with `status`, which is not 0
      kTooLong,
      kLeftOut,  ///< too many were running and waiting
    };
    Kind kind{};
    int status = 0;
    std::string words;
  };
  /// Of the command of a rule; nothing when it did what it was to do.
  using Done = std::function<void(std::uint64_t ruleId, const std::optional<Failure>& failure)>;

  explicit AlertCommands(Done done) : mDone(std::move(done)) {}

  void Run(std::uint64_t ruleId, std::vector<std::string> arguments,
           std::vector<std::string> variables);

  std::size_t Running() const { return mRunning.size(); }

 private:
  struct Waiting {
    std::uint64_t ruleId;
    std::vector<std::string> arguments;
    std::vector<std::string> variables;
  };
  struct Started {
    std::uint64_t ruleId;
    std::unique_ptr<RunningCommand> command;
    TimeValue began;
    bool wasAskedToEnd = false;
  };

  void StartWaiting();
  void Look();
  /// True once it has ended.
  bool LookAt(Started& run);

  Done mDone;
  std::deque<Waiting> mWaiting;
  std::list<Started> mRunning;
  /// Only while some run.
  std::unique_ptr<RunLoopTimer> mLooks;
};

}  // namespace lurkwell
