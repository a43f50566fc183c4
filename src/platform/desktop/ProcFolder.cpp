#include "platform/desktop/ProcFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <climits>
#include <memory>

#include "platform/ProcStat.h"

namespace lurkwell {
namespace {

struct CloseFolder {
  void operator()(DIR* folder) const { ::closedir(folder); }
};

template <typename Number>
std::optional<Number> WholeNumber(std::string_view text) {
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return number;
}

/// The first 4095 bytes at most; nothing, and errno, when the file cannot be read.
std::optional<std::string> ReadStart(const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
  if (descriptor < 0) return {};
  std::array<char, 4095> buffer;
  const ssize_t bytes = ::read(descriptor, buffer.data(), buffer.size());
  const int error = errno;
  ::close(descriptor);
  errno = error;
  if (bytes < 0) return {};
  return std::string(buffer.data(), static_cast<std::size_t>(bytes));
}

}  // namespace

std::optional<std::string> ProcFolder::Read(std::int32_t pid, const char* file) const {
  return ReadStart(mRoot + '/' + std::to_string(pid) + '/' + file);
}

std::vector<std::int32_t> ProcFolder::Pids() const {
  std::vector<std::int32_t> pids;
  const std::unique_ptr<DIR, CloseFolder> folder(::opendir(mRoot.c_str()));
  if (!folder) return pids;
  while (const dirent* entry = ::readdir(folder.get())) {
    if (const auto pid = WholeNumber<std::int32_t>(entry->d_name); pid && *pid > 0) {
      pids.push_back(*pid);
    }
  }
  return pids;
}

bool ProcFolder::HasOwnPids() const {
  std::array<char, 16> self;
  const auto length = ::readlink((mRoot + "/self").c_str(), self.data(), self.size());
  return length > 0 && WholeNumber<std::int32_t>({self.data(), static_cast<std::size_t>(length)}) ==
                           static_cast<std::int32_t>(::getpid());
}

std::optional<std::int32_t> ProcFolder::LastPid() const {
  if (!HasOwnPids()) return {};
  auto text = ReadStart(mRoot + "/loadavg").value_or("");
  if (!text.ends_with('\n')) return {};
  text.pop_back();
  return WholeNumber<std::int32_t>(std::string_view(text).substr(text.rfind(' ') + 1));
}

std::optional<ProcessIdentity> ProcFolder::Identify(std::int32_t pid) const {
  const auto text = Read(pid, "stat").value_or("");
  const auto stat = ParseProcStat(text);
  if (!stat) return {};
  return ProcessIdentity{pid, stat->startStamp};
}

bool ProcFolder::IsThere(const ProcessIdentity& process) const {
  errno = 0;
  const auto text = Read(process.pid, "stat");
  if (!text) return errno != ENOENT && errno != ESRCH && errno != ENOTDIR;
  const auto stat = ParseProcStat(*text);
  return stat && stat->startStamp == process.startStamp;
}

FileDescriptor ProcFolder::Follow(const ProcessIdentity& process) const {
  struct statfs system {};
  const bool isKernelTree =
      ::statfs(mRoot.c_str(), &system) == 0 && system.f_type == PROC_SUPER_MAGIC;
  if (!isKernelTree || !HasOwnPids()) return {};
  auto handle = OpenProcessHandle(process.pid);
  // The pid may have passed to another process just before.
  if (handle.IsOpen() && !IsThere(process)) handle.Close();
  return handle;
}

std::string ProcFolder::CommandName(std::int32_t pid) const {
  std::string name = Read(pid, "comm").value_or("");
  if (name.ends_with('\n')) name.pop_back();
  return name;
}

std::string ProcFolder::Executable(std::int32_t pid) const {
  constexpr std::string_view kDeleted = " (deleted)";
  const std::string link = mRoot + '/' + std::to_string(pid) + "/exe";
  std::array<char, PATH_MAX> target;
  const ssize_t bytes = ::readlink(link.c_str(), target.data(), target.size());
  if (bytes <= 0) return {};
  std::string path(target.data(), static_cast<std::size_t>(bytes));
  if (path.ends_with(kDeleted)) path.resize(path.size() - kDeleted.size());
  return path;
}

std::optional<std::uint32_t> ProcFolder::User(std::int32_t pid) const {
  // Not the folder's owner, which is root for programs that hide their memory.
  constexpr std::string_view kLine = "\nUid:\t";
  const auto text = Read(pid, "status").value_or("");
  const auto line = text.find(kLine);
  if (line == std::string::npos) return {};
  auto words = std::string_view(text).substr(line + kLine.size());
  return WholeNumber<std::uint32_t>(words.substr(0, words.find('\t')));
}

std::string ProcFolder::ControlGroups(std::int32_t pid) const {
  return Read(pid, "cgroup").value_or("");
}

}  // namespace lurkwell
