#include "helper/OwnFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

#include "helper/Text.h"

namespace lurkwell::helper {

namespace {

bool OwnedByRootAlone(const struct stat& info, uid_t) {
  return S_ISREG(info.st_mode) && info.st_uid == 0 && IsOwnersAlone(info) && info.st_nlink == 1;
}

/// The folder is looked up by the program's path, so the path has to lead to the program again.
bool LiesInFolderOf(uid_t user, const struct stat& program) {
  char path[4096];
  const ssize_t size = readlink("/proc/self/exe", path, sizeof path - 1);
  if (size <= 0) return false;
  path[size] = '\0';
  char* const slash = std::strrchr(path, '/');
  if (slash == nullptr || slash == path) return false;
  *slash = '\0';
  const int folder = open(path, O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  struct stat info, entry;
  const bool lies = folder >= 0 && fstat(folder, &info) == 0 && info.st_uid == user &&
                    fstatat(folder, slash + 1, &entry, AT_SYMLINK_NOFOLLOW) == 0 &&
                    IsSameFile(entry, program);
  close(folder);
  return lies;
}

}  // namespace

int OpenChecked(int folder, const char* name, int flags, uid_t user,
                bool (*accepts)(const struct stat&, uid_t)) {
  const int handle = openat(folder, name, O_PATH | O_NOFOLLOW | O_CLOEXEC);
  if (handle < 0) return -1;
  struct stat info;
  int file = -1;
  if (fstat(handle, &info) == 0 && accepts(info, user)) {
    PathWriter path("/proc/self/fd/", handle);
    file = open(path.Terminated(), flags | O_CLOEXEC | O_NOCTTY);
  }
  close(handle);
  return file;
}

bool IsOwnersAlone(const struct stat& info) {
  return (info.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

bool IsSameFile(const struct stat& one, const struct stat& other) {
  return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool MayServe(uid_t user) {
  const int file = open("/proc/self/exe", O_RDONLY | O_CLOEXEC);
  struct stat info;
  bool may = file >= 0 && fstat(file, &info) == 0 && OwnedByRootAlone(info, user) &&
             LiesInFolderOf(user, info);
#ifdef LURKWELL_PACKAGED
  Digest::Value digest;
  may = may && DigestOfFile(file, digest) && FindVersion(digest) == Version::kServing;
#endif
  close(file);
  return may;
}

#ifdef LURKWELL_PACKAGED
namespace {

/// Looks for `line`, a digest with its newline, in a list: alone it may serve, behind "- " it is
/// withdrawn, whatever else is listed. False when there is no such list of root's.
bool LookUp(const char* path, std::string_view line, Version& version) {
  static char list[65536];
  const int file = OpenChecked(AT_FDCWD, path, O_RDONLY, 0, OwnedByRootAlone);
  if (file < 0) return false;
  const ssize_t size = read(file, list, sizeof list);
  close(file);
  std::string_view rest(list, size > 0 ? static_cast<std::size_t>(size) : 0);
  while (!rest.empty()) {
    const Version says = TakePrefix(rest, "- ") ? Version::kWithdrawn : Version::kServing;
    if (rest.starts_with(line)) version = std::max(version, says);
    rest.remove_prefix(std::min(rest.find('\n'), rest.size() - 1) + 1);
  }
  return true;
}

}  // namespace

Version FindVersion(const Digest::Value& digest) {
  char line[65];
  TextWriter writer(line, sizeof line);
  for (const std::uint8_t byte : digest) writer.Add(kHexDigits[byte >> 4], kHexDigits[byte & 15]);
  writer.Add('\n');
  Version version = Version::kUnknown;
  // Without the package's own list there is no package any more.
  if (LookUp(LURKWELL_DIGEST_LIST, writer.Text(), version))
    LookUp(LURKWELL_REPLACED_LIST, writer.Text(), version);
  return version;
}
#else
Version FindVersion(const Digest::Value&) {
  return Version::kUnknown;
}
#endif

}  // namespace lurkwell::helper
