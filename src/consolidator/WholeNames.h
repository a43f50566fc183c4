#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lurkwell {

/// The names that people see. The kernel keeps 15 characters of a name, and "meta_name" has few
/// more; what is missing stands in the process's arguments, or in what the desktop calls it. Main
/// thread.

/// "meta_name", whole as far as LearnWholeNames has found it out for that name; empty when there is
/// no such process.
std::string WholeNameOf(std::int32_t pid);

/// Whether the name may be longer than what is known of it.
bool MayNameGoOn(std::int32_t pid);

/// Finds the names of several processes out. Asks the machine once for all of them and waits for it
/// half a second at most; names that it does not tell stay as they are.
void LearnWholeNames(std::span<const std::int32_t> pids);

/// Processes whose names are to be found out by and by: a turn has an end however many are born at
/// once. Main thread only.
class NamesToLearn {
 public:
  /// Notes a process if its name may go on.
  void Add(std::int32_t pid);
  /// Finds some of the names out, of the latest ones first, and says whose.
  std::vector<std::int32_t> LearnSome();

 private:
  std::vector<std::int32_t> mPids;
};

/// What a name that was cut goes on with in a command line: the rest of the first of its words'
/// last components that begins with the name. The name itself when there is none. Pure.
std::string_view CompletedName(std::string_view name, std::string_view commandLine);

}  // namespace lurkwell
