#include "platform/linux/PipeFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

namespace lurkwell {
namespace {

// The helper takes paths of up to 1,023 bytes; this leaves room for a folder and a pipe below it.
constexpr std::size_t kLongestParent = 960;
constexpr std::string_view kPattern = "lurkwell-XXXXXX";
constexpr mode_t kMode = 0700;

/// Whether a folder of ours in there can be exchanged by root and ourselves alone.
bool IsSafeParent(const std::string& path) {
  struct stat info {};
  if (path.empty() || path[0] != '/' || path.size() > kLongestParent) return false;
  if (::stat(path.c_str(), &info) != 0 || !S_ISDIR(info.st_mode)) return false;
  if (info.st_uid != 0 && info.st_uid != ::geteuid()) return false;
  return (info.st_mode & (S_IWGRP | S_IWOTH)) == 0 || (info.st_mode & S_ISVTX) != 0;
}

/// An open folder of the user's alone that nobody else has locked, or none.
FileDescriptor Lock(int parent, const std::string& name) {
  FileDescriptor folder(
      ::openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  struct stat info {};
  if (::fstat(folder.Get(), &info) != 0 || info.st_uid != ::geteuid() ||
      (info.st_mode & 07777) != kMode || ::flock(folder.Get(), LOCK_EX | LOCK_NB) != 0)
    folder.Close();
  return folder;
}

std::vector<std::string> NamesIn(int folder) {
  std::vector<std::string> names;
  const int again = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(::fdopendir(again), ::closedir);
  while (const dirent* entry = listing == nullptr ? nullptr : ::readdir(listing.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") names.emplace_back(name);
  }
  return names;
}

void RemoveIfLeft(int parent, const std::string& name) {
  const FileDescriptor folder = Lock(parent, name);
  if (!folder.IsOpen()) return;
  const auto pipes = NamesIn(folder.Get());
  const auto isPipe = [&](const std::string& pipe) {
    struct stat info {};
    return ::fstatat(folder.Get(), pipe.c_str(), &info, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISFIFO(info.st_mode);
  };
  // An empty one may have been made just now, and not been locked yet.
  if (pipes.empty() || !std::ranges::all_of(pipes, isPipe)) return;
  for (const auto& pipe : pipes) ::unlinkat(folder.Get(), pipe.c_str(), 0);
  ::unlinkat(parent, name.c_str(), AT_REMOVEDIR);
}

void RemoveLeftFolders(const char* path) {
  const FileDescriptor parent(::open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  const auto prefix = kPattern.substr(0, kPattern.find('X'));
  for (const auto& name : NamesIn(parent.Get()))
    if (name.size() == kPattern.size() && name.starts_with(prefix))
      RemoveIfLeft(parent.Get(), name);
}

std::string MakePrivateFolder() {
  for (const char* variable : {"XDG_RUNTIME_DIR", "TMPDIR", ""}) {
    const char* value = *variable == '\0' ? "/tmp" : ::getenv(variable);
    if (value == nullptr || !IsSafeParent(value)) continue;
    RemoveLeftFolders(value);
    std::string path = std::string(value) + '/' + std::string(kPattern);
    // Made with mode 0700.
    if (::mkdtemp(path.data()) != nullptr) return path;
  }
  return {};
}

}  // namespace

bool PipeFolder::Make() {
  if (!mPath.empty() && ::access(mPath.c_str(), W_OK | X_OK) == 0) return true;
  mPath = MakePrivateFolder();
  mLock = mPath.empty() ? FileDescriptor() : Lock(AT_FDCWD, mPath);
  return !mPath.empty();
}

void PipeFolder::RemoveIfEmpty() {
  if (mPath.empty() || ::rmdir(mPath.c_str()) != 0) return;
  mPath.clear();
  mLock.Close();
}

}  // namespace lurkwell
