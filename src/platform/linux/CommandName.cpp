#include "platform/linux/CommandName.h"

#include <algorithm>
#include <array>
#include <span>

#include "platform/ProcStat.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {
namespace {

// Longer than any path.
using Buffer = std::array<char, 4352>;

std::string_view TextOf(const Buffer& buffer, std::ptrdiff_t bytes) {
  return {buffer.data(), bytes > 0 ? static_cast<std::size_t>(bytes) : 0};
}

/// That of this very process, which fails once it has ended; not open when it is gone.
FileDescriptor FolderOf(ProcFiles& files, std::int32_t pid, std::uint64_t startStamp,
                        Buffer& buffer) {
  FileDescriptor folder = files.OpenFolder(pid);
  if (!folder.IsOpen()) return folder;
  const auto stat = ParseProcStat(TextOf(buffer, files.ReadIn(folder.Get(), "stat", buffer)));
  if (!stat || stat->pid != pid || stat->startStamp != startStamp) folder.Close();
  return folder;
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
  Buffer commandLine;
  const auto folder = FolderOf(files, pid, startStamp, commandLine);
  if (!folder.IsOpen()) return '\0';
  const auto arguments = TextOf(commandLine, files.ReadIn(folder.Get(), "cmdline", commandLine));
  Buffer executable;
  return FollowingCharacter(name, arguments,
                            TextOf(executable, files.ReadLinkIn(folder.Get(), "exe", executable)));
}

std::string ReadCommandLine(ProcFiles& files, std::int32_t pid, std::uint64_t startStamp) {
  Buffer buffer;
  const auto folder = FolderOf(files, pid, startStamp, buffer);
  if (!folder.IsOpen()) return {};
  std::string text(TextOf(buffer, files.ReadIn(folder.Get(), "cmdline", buffer)));
  text.resize(text.find_last_not_of('\0') + 1);
  std::ranges::replace(text, '\0', ' ');
  return text;
}

}  // namespace lurkwell
