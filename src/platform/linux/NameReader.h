#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// How much of a name the kernel keeps, and how much the process table shows.
inline constexpr std::size_t kKernelNameLength = 15;
inline constexpr std::size_t kCommandNameLength = 16;

/// The character that follows a kernel name of full length in the name a process was started by
/// (`commandLine`, the whole argument text) or in its executable (`executable`, a path): that of
/// the first of the two whose last component begins with the name and goes on; NUL when neither
/// does. Pure.
char FollowingCharacter(std::string_view name, std::string_view commandLine,
                        std::string_view executable);

/// The same for a process; NUL also when the process with that start is gone or may not be looked
/// at. Never takes anything from another process that has got the pid meanwhile.
char ReadFollowingCharacter(ProcFiles& files, std::int32_t pid, std::uint64_t startStamp,
                            std::string_view name);

/// The arguments of that process with blanks between them, any bytes, at most some 4,000 of them;
/// empty for a part of the kernel, too.
std::string ReadCommandLine(ProcFiles& files, std::int32_t pid, std::uint64_t startStamp);

/// Completes command names (see FollowingCharacter) and reads command lines on a thread of its own,
/// because a command line is the process's memory, which a hostile process can have mapped from a
/// file that never answers; see ReplaceableThread. Main thread.
class NameReader {
 public:
  explicit NameReader(std::shared_ptr<ProcFiles> files);
  /// Waits for no reader that hangs.
  ~NameReader();
  NameReader(const NameReader&) = delete;
  NameReader& operator=(const NameReader&) = delete;

  /// Asks for the character behind the kernel's name of a process, unless it has been asked for.
  /// False when there will be no answer for now.
  bool Ask(std::int32_t pid, std::uint64_t startStamp, std::string_view name);

  /// The same for its whole command line.
  bool AskForCommandLine(std::int32_t pid, std::uint64_t startStamp);

  /// Gives the answers a moment to come: 20 ms, and nothing while a reader hangs.
  void WaitBriefly();

  /// The answer, as ReadFollowingCharacter gives it, if it has come.
  std::optional<char> Take(std::int32_t pid, std::uint64_t startStamp, std::string_view name);

  /// As ReadCommandLine gives it.
  std::optional<std::string> TakeCommandLine(std::int32_t pid, std::uint64_t startStamp);

  /// Forgets answers that were not taken.
  void DropAnswers();

 private:
  struct Mailbox;
  struct Question;

  bool Ask(Question question);
  std::optional<std::string> Take(const Question& question);

  std::shared_ptr<Mailbox> mMailbox;
};

}  // namespace lurkwell
