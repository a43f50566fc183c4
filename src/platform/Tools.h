#pragma once

#include <chrono>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace lurkwell {

/// What a tool printed on its standard output.
struct ToolOutput {
  std::string text;
  /// The tool ran to its end within its time; otherwise `text` is what came until then.
  bool complete = false;
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

  /// Serves them until all have ended, for `limit` at most.
  virtual void Await(std::span<RunningTool* const> tools, std::chrono::milliseconds limit) = 0;

  /// Starts a program that runs on by itself: it is nobody's waited-for child, keeps no descriptor
  /// of ours but the standard three, and ends when it likes. `arguments` starts with the program's
  /// path. False when it could not be started. Any thread; takes two seconds at most.
  virtual bool StartInBackground(const std::vector<std::string>& arguments) = 0;

  /// stat: 0 when there is such a file, -1 when not.
  virtual int Stat(const std::string& path) = 0;
};

}  // namespace lurkwell
