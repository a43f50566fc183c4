#include "platform/linux/CommandName.h"

#include <array>
#include <span>

#include "platform/linux/ProcFiles.h"
#include "platform/linux/ProcStat.h"

namespace lurkwell {
namespace {

// Longer than any path.
using Buffer = std::array<char, 4352>;

std::string_view TextOf(const Buffer& buffer, std::ptrdiff_t bytes) {
  return {buffer.data(), bytes > 0 ? static_cast<std::size_t>(bytes) : 0};
}

char Following(std::string_view name, std::string_view path) {
  // Without a slash npos + 1 is the beginning.
  const auto last = path.substr(path.rfind('/') + 1);
  return last.size() > name.size() && last.starts_with(name) ? last[name.size()] : '\0';
}

}  // namespace

char FollowingCharacter(std::string_view name, std::string_view commandLine,
                        std::string_view executable) {
  const char following = Following(name, commandLine.substr(0, commandLine.find('\0')));
  if (following != '\0') return following;
  constexpr std::string_view kDeleted = " (deleted)";
  if (executable.ends_with(kDeleted)) executable.remove_suffix(kDeleted.size());
  return Following(name, executable);
}

char ReadFollowingCharacter(ProcFiles& files, std::int32_t pid, std::uint64_t startStamp,
                            std::string_view name) {
  // The folder is that of one process, and fails once that has ended.
  const FileDescriptor folder = files.OpenFolder(pid);
  if (!folder.IsOpen()) return '\0';
  Buffer commandLine;
  const auto stat =
      ParseProcStat(TextOf(commandLine, files.ReadIn(folder.Get(), "stat", commandLine)));
  if (!stat || stat->pid != pid || stat->startStamp != startStamp) return '\0';
  const auto arguments = TextOf(commandLine, files.ReadIn(folder.Get(), "cmdline", commandLine));
  Buffer executable;
  return FollowingCharacter(name, arguments,
                            TextOf(executable, files.ReadLinkIn(folder.Get(), "exe", executable)));
}

}  // namespace lurkwell
