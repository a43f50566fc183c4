#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace lurkwell {

/// A text file that grows by lines. Closed, and left where it is, with its object. Main thread.
class LogFile {
 public:
  virtual ~LogFile() = default;

  /// Where it was created.
  virtual const std::string& Path() const = 0;

  /// Appends a line and a newline; whole, or not at all. Empty when the file has it, else why not,
  /// in the system's words. A failed call may be followed by others.
  virtual std::string Append(std::string_view line) = 0;
};

/// Makes log files in a folder of the user's own data. Main thread.
class LogFiles {
 public:
  virtual ~LogFiles() = default;

  struct Creation {
    /// Null when there is a problem.
    std::unique_ptr<LogFile> file;
    /// Why not, in the system's words.
    std::string problem;
  };

  /// A new, empty file called `name` and ".tsv", with a number in between when there is one of that
  /// name. Never one that is there, through a link or otherwise; nobody but the user may read it.
  /// `name` has no slash.
  virtual Creation Create(std::string_view name) = 0;

  /// The file called `name` and ".tsv" that grows from one run to the next; a new one begins with
  /// the line `header`. Before it would become larger than `mostBytes` it becomes `name` and
  /// "-1.tsv", in the place of that, and a new one is begun. Only an ordinary file of the user's
  /// without other names, and never through a link; nobody but the user may read it. Several
  /// programs may write lines to it at a time. `name` has no slash.
  virtual Creation Continue(std::string_view name, std::string_view header,
                            std::int64_t mostBytes) = 0;
};

}  // namespace lurkwell
