#include "DiskLog.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <filesystem>
#include <map>
#include <optional>
#include <utility>

// What <fcntl.h> would declare: here it is defined.
extern "C" int open(const char* path, int flags, ...);

namespace lurkwell {
namespace {

using Kind = DiskCall::Kind;
constexpr int kCreateFlag = 0100;
constexpr int kTruncateFlag = 01000;

struct Log {
  std::string folder;
  std::vector<DiskCall> calls;
  std::map<std::string, int> files;
  int fileCount = 0;
};
std::optional<Log> gLog;

/// Of the file that a descriptor is open on; empty when it is none of the folder.
std::string NameOf(int descriptor) {
  const auto link = "/proc/self/fd/" + std::to_string(descriptor);
  char path[4096];
  const auto size = ::readlink(link.c_str(), path, sizeof path);
  return size > 0 ? std::string(path, static_cast<std::size_t>(size)) : std::string();
}

/// The name within the folder; nothing outside it and for shared memory.
std::optional<std::string> NameWithin(const std::string& path) {
  if (!gLog || !path.starts_with(gLog->folder + '/') || path.ends_with("-shm")) return {};
  return path.substr(gLog->folder.size() + 1);
}

int FileAt(int descriptor) {
  const auto name = NameWithin(NameOf(descriptor));
  if (!name) return -1;
  const auto found = gLog->files.find(*name);
  return found != gLog->files.end() ? found->second : -1;
}

DiskCall& Add(Kind kind, int file = -1, std::uint64_t at = 0) {
  return gLog->calls.emplace_back(DiskCall{kind, file, at, {}, {}, {}});
}

long Open(const char* path, int flags, int mode) {
  const auto name = NameWithin(path);
  const bool isNew = name && ::access(path, F_OK) != 0;
  const long descriptor = ::syscall(SYS_openat, -100, path, flags, mode);
  if (descriptor < 0 || !name) return descriptor;
  if (isNew && (flags & kCreateFlag) != 0) {
    gLog->files[*name] = gLog->fileCount;
    Add(Kind::kCreate, gLog->fileCount++).name = *name;
  } else if ((flags & kTruncateFlag) != 0) {
    Add(Kind::kTruncate, FileAt(static_cast<int>(descriptor)));
  }
  return descriptor;
}

void NoteWrite(int descriptor, const void* bytes, ssize_t size, off_t at) {
  if (size <= 0 || !gLog) return;
  const int file = FileAt(descriptor);
  if (file < 0) return;
  Add(Kind::kWrite, file, static_cast<std::uint64_t>(at)).bytes =
      std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(size));
}

int Sync(long call, int descriptor) {
  const long result = ::syscall(call, descriptor);
  if (result != 0 || !gLog) return static_cast<int>(result);
  if (NameOf(descriptor) == gLog->folder) {
    Add(Kind::kSyncFolder);
  } else if (const int file = FileAt(descriptor); file >= 0) {
    Add(Kind::kSyncFile, file);
  }
  return 0;
}

void NoteRename(const char* from, const char* to) {
  const auto name = NameWithin(from);
  const auto newName = NameWithin(to);
  if (!name || !newName) return;
  auto& call = Add(Kind::kRename);
  call.name = *name;
  call.newName = *newName;
  gLog->files[*newName] = gLog->files[*name];
  gLog->files.erase(*name);
}

void NoteUnlink(const std::string& path) {
  const auto name = NameWithin(path);
  if (!name) return;
  Add(Kind::kUnlink).name = *name;
  gLog->files.erase(*name);
}

}  // namespace

DiskLog::DiskLog(std::string folder) {
  gLog.emplace();
  gLog->folder = std::filesystem::canonical(folder);
}
DiskLog::~DiskLog() {
  gLog.reset();
}
void DiskLog::Mark(std::uint64_t number) {
  Add(Kind::kMark, -1, number);
}
const std::vector<DiskCall>& DiskLog::Calls() const {
  return gLog->calls;
}

}  // namespace lurkwell

// ---- In the places of the library's own ---------------------------------------------------------

extern "C" {

int open(const char* path, int flags, ...) {
  std::va_list rest;
  va_start(rest, flags);
  const int mode = (flags & lurkwell::kCreateFlag) != 0 ? va_arg(rest, int) : 0;
  va_end(rest);
  return static_cast<int>(lurkwell::Open(path, flags, mode));
}
int open64(const char* path, int flags, ...) __attribute__((alias("open")));

ssize_t write(int descriptor, const void* bytes, size_t size) {
  const off_t at = lurkwell::gLog ? ::lseek(descriptor, 0, SEEK_CUR) : 0;
  const ssize_t written = ::syscall(SYS_write, descriptor, bytes, size);
  lurkwell::NoteWrite(descriptor, bytes, written, at);
  return written;
}
ssize_t pwrite64(int descriptor, const void* bytes, size_t size, off64_t at) {
  const ssize_t written = ::syscall(SYS_pwrite64, descriptor, bytes, size, at);
  lurkwell::NoteWrite(descriptor, bytes, written, at);
  return written;
}
ssize_t pwrite(int descriptor, const void* bytes, size_t size, off_t at) {
  return pwrite64(descriptor, bytes, size, at);
}

int ftruncate64(int descriptor, off64_t size) noexcept {
  const long result = ::syscall(SYS_ftruncate, descriptor, size);
  if (result == 0 && lurkwell::gLog)
    if (const int file = lurkwell::FileAt(descriptor); file >= 0)
      lurkwell::Add(lurkwell::Kind::kTruncate, file, static_cast<std::uint64_t>(size));
  return static_cast<int>(result);
}
int ftruncate(int descriptor, off_t size) noexcept {
  return ftruncate64(descriptor, size);
}

int rename(const char* from, const char* to) noexcept {
  const long result = ::syscall(SYS_renameat2, -100, from, -100, to, 0);
  if (result == 0) lurkwell::NoteRename(from, to);
  return static_cast<int>(result);
}
int unlink(const char* path) noexcept {
  const long result = ::syscall(SYS_unlinkat, -100, path, 0);
  if (result == 0) lurkwell::NoteUnlink(path);
  return static_cast<int>(result);
}

int fsync(int descriptor) {
  return lurkwell::Sync(SYS_fsync, descriptor);
}
int fdatasync(int descriptor) {
  return lurkwell::Sync(SYS_fdatasync, descriptor);
}
}
