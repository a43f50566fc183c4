#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lurkwell {

/// What a tool printed on its standard output.
struct ToolOutput {
  std::string text;
  /// The tool ran to its end within its time; otherwise `text` is what came until then.
  bool complete = false;
};

/// What a column of the system's ps holds.
struct ToolColumn {
  enum class Kind {
    kText,
    kInteger,
    kReal,
    kSize,   ///< a number of units
    kClock,  ///< a span of time: [[days-]hours:]minutes:seconds
    kDate,   ///< a point in time, such as "Sun Nov  1 12:34:56 2026"
  };
  Kind kind = Kind::kText;
  /// Of a size: bytes.
  std::int64_t unit = 1;
  /// Of a process that it may not look into, ps prints 0 or "-" there.
  bool isPrivate = false;
};

/// A program that was started for what it prints. Destroying it kills it. Main thread only.
class RunningTool {
 public:
  virtual ~RunningTool() = default;

  /// Takes in what it has printed, without waiting; true once it has ended.
  virtual bool HasEnded() = 0;

  /// What it has printed so far; once.
  virtual ToolOutput TakeOutput() = 0;
};

/// A command of the user's that was started. Destroying it kills it, and what it has started.
/// Main thread only.
class RunningCommand {
 public:
  virtual ~RunningCommand() = default;

  /// Its exit status, or 128 and the number of the signal that has ended it; nothing while it runs.
  /// Does not wait.
  virtual std::optional<int> Status() = 0;

  /// Asks it to end, and what it has started; or ends it.
  virtual void End(bool atOnce) = 0;
};

/// Programs of the system that run beside ours. Main thread only, but for starting one in the
/// background. Nothing passes through a shell, and every program gets the same fixed environment
/// and language.
class Tools {
 public:
  virtual ~Tools() = default;

  /// Starts a command line and does not wait for it; null when the system has no process or
  /// descriptor to spare at present. Only the ps command lines of the ps feeder are understood
  /// ("/bin/ps -Lww", "/bin/ps 0 -o KEYWORD", "/bin/ps -axww -o pid,KEYWORD"); any other ends with
  /// an incomplete answer. What is started here is destroyed before this.
  virtual std::unique_ptr<RunningTool> Start(const std::string& commandLine) = 0;

  /// What is known of a column of ps under this header, which the header's line gives; nothing when
  /// it is nothing, or when ps prints what the properties' own table says. Any thread.
  virtual std::optional<ToolColumn> ColumnNamed(std::string_view) const { return std::nullopt; }

  /// Whether ps may look into the process. Any thread.
  virtual bool MayLookInto(std::int32_t) const { return true; }

  /// Serves them until all have ended, for `limit` at most.
  virtual void Await(std::span<RunningTool* const> tools, std::chrono::milliseconds limit) = 0;

  /// Starts a program that runs on by itself: it is no child to be waited for, keeps no descriptor
  /// of ours but the standard three, and ends when it likes. `arguments` starts with the program's
  /// path. False when it could not be started. Any thread; takes two seconds at most.
  virtual bool StartInBackground(const std::vector<std::string>& arguments) = 0;

  struct CommandStart {
    /// Null when there is a problem.
    std::unique_ptr<RunningCommand> command;
    /// Why not, in the system's words.
    std::string problem;
  };

  /// Starts a command of the user's, with the user's rights and environment, to which `variables`
  /// ("NAME=VALUE") are added, in the folder "/"; its input is empty, and nobody reads what it
  /// prints. `arguments` starts with the program's path, or its name, which is looked for where the
  /// user's PATH says. Does not wait for it. Main thread.
  virtual CommandStart StartCommand(const std::vector<std::string>& arguments,
                                    const std::vector<std::string>& variables) = 0;

  /// stat: 0 when there is such a file, -1 when not.
  virtual int Stat(const std::string& path) = 0;
};

}  // namespace lurkwell
