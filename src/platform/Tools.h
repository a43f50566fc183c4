#pragma once

#include <chrono>
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

/// Programs of the system that run beside ours. Main thread only, but for starting one in the
/// background. Nothing passes through a shell, and every program gets the same fixed environment
/// and language.
class Tools {
 public:
  virtual ~Tools() = default;

  /// Runs all command lines at the same time and collects what they print; an answer each, in
  /// order. Returns when the last has ended, after `limit` at the latest; what still runs then is
  /// killed. A command that cannot be started answers with an empty, incomplete text. Only the ps
  /// command lines of the ps feeder are understood ("/bin/ps -Lww", "/bin/ps 0 -o KEYWORD",
  /// "/bin/ps -axww -o pid,KEYWORD").
  virtual std::vector<ToolOutput> Run(std::span<const std::string> commandLines,
                                      std::chrono::milliseconds limit) = 0;

  /// Starts a program that runs on by itself: it is nobody's waited-for child, keeps no descriptor
  /// of ours but the standard three, and ends when it likes. `arguments` starts with the program's
  /// path. False when it could not be started. Any thread; takes two seconds at most.
  virtual bool StartInBackground(const std::vector<std::string>& arguments) = 0;

  /// stat: 0 when there is such a file, -1 when not.
  virtual int Stat(const std::string& path) = 0;
};

}  // namespace lurkwell
