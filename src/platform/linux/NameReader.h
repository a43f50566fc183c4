#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// Completes command names (see CommandName.h) and reads command lines on a thread of its own,
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
