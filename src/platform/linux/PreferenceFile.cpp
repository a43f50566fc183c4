#include "platform/linux/PreferenceFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <random>
#include <string_view>
#include <vector>

#include "platform/linux/PropertyListDocument.h"

namespace lurkwell {
namespace {

constexpr int kMaximumLinks = 16;
constexpr std::string_view kStagedSuffix = ".new";
constexpr std::size_t kStagedDigits = 16;

template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

FileDescriptor Open(const std::string& path, int flags, mode_t mode = 0) {
  return FileDescriptor(
      Uninterrupted([&] { return open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode); }));
}

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string NameOf(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

bool IsSameVersion(const struct stat& a, const struct stat& b) {
  const auto same = [](const timespec& x, const timespec& y) {
    return x.tv_sec == y.tv_sec && x.tv_nsec == y.tv_nsec;
  };
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size &&
         same(a.st_mtim, b.st_mtim);
}

// Hidden, so that a folder view does not flicker while the file is replaced.
std::string StagedPrefix(const std::string& target) {
  return "." + NameOf(target) + ".";
}

bool IsStagedName(std::string_view name, std::string_view prefix) {
  if (name.size() != prefix.size() + kStagedDigits + kStagedSuffix.size()) return false;
  if (!name.starts_with(prefix) || !name.ends_with(kStagedSuffix)) return false;
  return name.substr(prefix.size(), kStagedDigits).find_first_not_of("0123456789abcdef") ==
         std::string_view::npos;
}

std::string FreshStagedPath(const std::string& target) {
  std::random_device entropy;
  std::array<char, kStagedDigits + 1> digits{};
  std::snprintf(digits.data(), digits.size(), "%08x%08x", entropy(), entropy());
  return FolderOf(target) + '/' + StagedPrefix(target) + digits.data() + std::string(kStagedSuffix);
}

bool WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = Uninterrupted([&] { return write(file, bytes.data(), bytes.size()); });
    if (written < 0) return false;
    if (written == 0) {
      errno = EIO;
      return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool SyncFolder(const std::string& folder) {
  const FileDescriptor descriptor = Open(folder, O_RDONLY | O_DIRECTORY);
  if (!descriptor.IsOpen()) return false;
  if (Uninterrupted([&] { return fsync(descriptor.Get()); }) == 0) return true;
  return errno == EINVAL;  // a file system without such a thing
}

std::vector<std::string> Strays(const std::string& target) {
  struct Closer {
    void operator()(DIR* folder) const { closedir(folder); }
  };
  std::vector<std::string> strays;
  const std::unique_ptr<DIR, Closer> folder(opendir(FolderOf(target).c_str()));
  if (!folder) return strays;
  const std::string prefix = StagedPrefix(target);
  while (const dirent* entry = readdir(folder.get()))
    if (IsStagedName(entry->d_name, prefix))
      strays.push_back(FolderOf(target) + '/' + entry->d_name);
  return strays;
}

// A fault of the file itself, which keeping it aside cures, against one of the machine.
bool IsClosedToUser(int code) {
  return code == EACCES || code == EPERM || code == ELOOP;
}

std::string DatedSuffix(int attempt) {
  const time_t now = time(nullptr);
  struct tm date {};
  gmtime_r(&now, &date);
  std::array<char, 64> text{};
  strftime(text.data(), text.size(), ".damaged-%Y%m%dT%H%M%SZ", &date);
  return attempt == 0 ? text.data() : text.data() + ("-" + std::to_string(attempt + 1));
}

}  // namespace

PreferenceFile::PreferenceFile(std::string folder, std::string name)
    : mPath(std::move(folder) + '/' + std::move(name)), mLastTarget(mPath) {}

std::string PreferenceFile::Target() const {
  std::string path = mPath;
  std::array<char, PATH_MAX> text{};
  for (int links = 0; links < kMaximumLinks; ++links) {
    const ssize_t length = readlink(path.c_str(), text.data(), text.size());
    if (length <= 0) {
      // Only "no link" and "nothing there" are answers; else a link might be taken for a file.
      if (errno == EINVAL || errno == ENOENT || errno == ENOTDIR) mLastTarget = path;
      return mLastTarget;
    }
    const std::string_view link(text.data(), static_cast<std::size_t>(length));
    path = link.starts_with('/') ? std::string() : FolderOf(path) + '/';
    path += link;
  }
  return mPath;  // the links go round in a circle
}

std::string PreferenceFile::LockPath() const {
  return Target() + ".lock";
}

std::optional<FileFault> PreferenceFile::EnsureFolder() const {
  const std::string folder = FolderOf(Target());
  struct stat status {};
  if (stat(folder.c_str(), &status) == 0) return std::nullopt;
  for (std::size_t end = folder.find('/', 1);; end = folder.find('/', end + 1)) {
    const std::string part = folder.substr(0, end);
    if (mkdir(part.c_str(), 0700) == 0)
      SyncFolder(FolderOf(part));
    else if (errno != EEXIST && stat(part.c_str(), &status) != 0)
      return FileFault{"making its folder", errno};
    if (end == std::string::npos) return std::nullopt;
  }
}

PreferenceFile::Reading PreferenceFile::ReadIfChanged(std::string& bytes, FileFault& fault) {
  const std::string target = Target();
  struct stat status {};
  if (mKnown.IsOpen() && stat(target.c_str(), &status) == 0 && IsSameVersion(status, mKnownStatus))
    return Reading::kUnchanged;

  FileDescriptor file = Open(target, O_RDONLY | O_NONBLOCK);
  if (!file.IsOpen()) {
    fault = {"opening it", errno};
    if (errno == ENOENT || errno == ENOTDIR) return Reading::kMissing;
    return IsClosedToUser(errno) ? Reading::kUnfit : Reading::kFailed;
  }
  if (Uninterrupted([&] { return fstat(file.Get(), &status); }) != 0) {
    fault = {"examining it", errno};
    return Reading::kFailed;
  }
  if (!S_ISREG(status.st_mode)) {
    fault = {"it is no regular file", 0};
    return Reading::kUnfit;
  }
  bytes.clear();
  std::array<char, 16384> block{};
  while (bytes.size() <= kMaximumPropertyListSize) {
    const ssize_t got = Uninterrupted([&] { return read(file.Get(), block.data(), block.size()); });
    if (got < 0) {
      fault = {"reading it", errno};
      return Reading::kFailed;
    }
    if (got == 0) {
      mKnown = std::move(file);
      mKnownStatus = status;
      return Reading::kRead;
    }
    bytes.append(block.data(), static_cast<std::size_t>(got));
  }
  fault = {"it is larger than 4 MiB", 0};
  return Reading::kUnfit;
}

bool PreferenceFile::HasChanged() const {
  struct stat status {};
  if (stat(Target().c_str(), &status) != 0) return false;
  return !mKnown.IsOpen() || !IsSameVersion(status, mKnownStatus);
}

PreferenceFile::Staged::~Staged() {
  if (mFile.IsOpen()) unlink(mPath.c_str());
}

std::optional<PreferenceFile::Staged> PreferenceFile::Stage(std::string_view bytes,
                                                            FileFault& fault) const {
  const std::string target = Target();
  const std::string path = FreshStagedPath(target);
  FileDescriptor file = Open(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, 0600);
  if (!file.IsOpen()) {
    fault = {"making a new file", errno};
    return std::nullopt;
  }
  Staged staged(target, path, std::move(file));
  if (!WriteAll(staged.mFile.Get(), bytes)) {
    fault = {"writing it", errno};
    return std::nullopt;
  }
  if (Uninterrupted([&] { return fsync(staged.mFile.Get()); }) != 0) {
    fault = {"bringing it to disk", errno};
    return std::nullopt;
  }
  return staged;
}

std::optional<FileFault> PreferenceFile::Commit(Staged staged) {
  struct stat status {};
  if (Uninterrupted([&] { return fstat(staged.mFile.Get(), &status); }) != 0)
    return FileFault{"examining it", errno};
  if (Uninterrupted([&] { return rename(staged.mPath.c_str(), staged.mTarget.c_str()); }) != 0)
    return FileFault{"putting it in place", errno};
  mKnown = std::move(staged.mFile);
  mKnownStatus = status;
  if (!SyncFolder(FolderOf(staged.mTarget))) return FileFault{"bringing its name to disk", errno};
  return std::nullopt;
}

std::optional<FileFault> PreferenceFile::MoveAside(std::string& newPath) const {
  std::string path = Target();
  struct stat status {};
  if (stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) path = mPath;
  constexpr int kAttempts = 100;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    newPath = path + DatedSuffix(attempt);
    int result = renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, newPath.c_str(), RENAME_NOREPLACE);
    if (result != 0 && (errno == EINVAL || errno == ENOSYS)) {  // a file system without the flag
      errno = EEXIST;
      if (lstat(newPath.c_str(), &status) != 0) result = rename(path.c_str(), newPath.c_str());
    }
    if (result == 0) {
      SyncFolder(FolderOf(path));
      return std::nullopt;
    }
    if (errno != EEXIST && errno != EINTR) break;
  }
  return FileFault{"moving it aside", errno};
}

bool PreferenceFile::HasStrays() const {
  return !Strays(Target()).empty();
}

void PreferenceFile::RemoveStrays() const {
  for (const std::string& stray : Strays(Target())) unlink(stray.c_str());
}

}  // namespace lurkwell
