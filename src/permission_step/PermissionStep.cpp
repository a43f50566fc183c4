#include "permission_step/PermissionStep.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstring>

#include "helper/OwnFile.h"
#include "helper/Text.h"

namespace lurkwell::helper {

namespace {

constexpr int kExitNotPermitted = 77;
constexpr char kHelperName[] = "Lurkwell_helper";
constexpr char kFreshName[] = ".Lurkwell_helper.new";

/// A descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int descriptor) : mDescriptor(descriptor) {}
  ~Descriptor() { close(mDescriptor); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  operator int() const { return mDescriptor; }

 private:
  int mDescriptor;
};

/// Whether nobody but root and the folder's user can exchange what lies in a folder of the path.
/// The user's own group may write above the folder, where the user has let it.
bool IsSafeOnPath(const struct stat& info, const struct stat& last) {
  if (info.st_uid != 0 && info.st_uid != last.st_uid) return false;
  const bool usersGroup = info.st_uid == last.st_uid && info.st_gid == last.st_gid;
  const mode_t others = info.st_mode & (usersGroup ? S_IWOTH : S_IWOTH | S_IWGRP);
  return others == 0 || (info.st_uid == 0 && (info.st_mode & S_ISVTX) != 0);
}

/// Walks from the root to the current folder over no link; the walk has to end in `folder` itself.
bool IsSafelyReached(const struct stat& folder) {
  char path[4096];
  const long size = syscall(SYS_getcwd, path, sizeof path);
  if (size < 2 || path[0] != '/') return false;
  int current = open("/", O_PATH | O_DIRECTORY | O_CLOEXEC);
  struct stat info;
  bool safe = fstat(current, &info) == 0 && IsSafeOnPath(info, folder);
  for (char* name = path + 1; safe && *name != '\0';) {
    char* const end = name + std::strcspn(name, "/");
    const bool more = *end != '\0';
    *end = '\0';
    const int next = openat(current, name, O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    close(current);
    current = next;
    safe = fstat(current, &info) == 0 && IsSafeOnPath(info, folder);
    name = end + (more ? 1 : 0);
  }
  close(current);
  return safe && IsSameFile(info, folder);
}

bool IsPlainCopy(const struct stat& info, uid_t user) {
  return S_ISREG(info.st_mode) && info.st_nlink == 1 && (info.st_uid == user || info.st_uid == 0);
}

/// The helper in this program's own folder, open for reading; negative when there is none, or, in a
/// package, when somebody else than root may change it.
int OpenTwin() {
  char path[4096];
  const ssize_t size = readlink("/proc/self/exe", path, sizeof path - 1);
  if (size <= 0) return -1;
  path[size] = '\0';
  char* const slash = std::strrchr(path, '/');
  if (slash == nullptr) return -1;
  slash[1] = '\0';
  const Descriptor folder(open(path, O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  return OpenChecked(folder, kHelperName, O_RDONLY, 0, [](const struct stat& info, uid_t) {
#ifdef LURKWELL_PACKAGED
    if (info.st_uid != 0 || !IsOwnersAlone(info)) return false;
#endif
    return S_ISREG(info.st_mode);
  });
}

/// Copies the helper into a new file, whose bytes have to come out as `digest`, and only then
/// gives it to root with the right to run as root.
bool WriteFresh(int twin, int fresh, gid_t group, const Digest::Value& digest) {
  static std::uint8_t bytes[65536];
  for (off_t place = 0;;) {
    const ssize_t size = pread(twin, bytes, sizeof bytes, place);
    if (size == 0) break;
    if (size < 0 || write(fresh, bytes, static_cast<std::size_t>(size)) != size) return false;
    place += size;
  }
  Digest::Value written;
  return DigestOfFile(fresh, written) && written == digest && fchown(fresh, 0, group) == 0 &&
         fchmod(fresh, 04750) == 0 && fsync(fresh) == 0;
}

const char* Replace(int folder, int twin, gid_t group, const Digest::Value& digest) {
  unlinkat(folder, kFreshName, 0);
  const Descriptor fresh(
      openat(folder, kFreshName, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
  if (fresh < 0) return "cannot write into the folder";
  struct stat mine, there;
  if (!WriteFresh(twin, fresh, group, digest) || fstat(fresh, &mine) != 0 || mine.st_nlink != 1 ||
      renameat(folder, kFreshName, folder, kHelperName) != 0) {
    fchmod(fresh, 0);
    unlinkat(folder, kFreshName, 0);
    return "cannot write the new file";
  }
  fsync(folder);
  if (fstatat(folder, kHelperName, &there, AT_SYMLINK_NOFOLLOW) == 0 && IsSameFile(mine, there))
    return nullptr;
  fchmod(fresh, 0);
  return "the new file was exchanged on the way";
}

/// Null when done, else why not.
const char* Bless(uid_t user) {
  // Whoever runs a copy that has rights already is not an administrator for that.
  if (getuid() != 0 || geteuid() != 0) return "this needs an administrator's rights";
  const Descriptor twin(OpenTwin());
  struct stat own, info, copyInfo;
  if (fstat(twin, &own) != 0) return "there is no helper of root's alone beside this program";
  const Descriptor folder(open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // Who could move the copy into a folder of his own would be served there.
  if (fstat(folder, &info) != 0 || info.st_uid != user || !IsOwnersAlone(info) ||
      !IsSafelyReached(info))
    return "the folder is not the user's alone, or is reached over a link";
  struct statvfs system;
  if (fstatvfs(folder, &system) != 0 || (system.f_flag & (ST_NOSUID | ST_RDONLY | ST_NOEXEC)) != 0)
    return "the folder's file system does not allow programs with other rights";
  const Descriptor copy(OpenChecked(folder, kHelperName, O_RDONLY, user, IsPlainCopy));
  if (fstat(copy, &copyInfo) != 0) return "the copy is not a plain file of the user's or root's";
  if (IsSameFile(copyInfo, own)) return "the copy cannot give rights to itself";
  Digest::Value digest, copyDigest;
  if (!DigestOfFile(twin, digest) || !DigestOfFile(copy, copyDigest) ||
      (copyDigest != digest && FindVersion(copyDigest) == Version::kUnknown))
    return "the copy is no known version of the helper";
  return Replace(folder, twin, info.st_gid, digest);
}

}  // namespace

int SetPermissions(uid_t user) {
  const char* const reason = Bless(user);
  if (reason == nullptr) return 0;
  char buffer[160];
  TextWriter line(buffer, sizeof buffer);
  line.Add("Lurkwell_permissions: ", reason, '\n');
  return write(STDERR_FILENO, line.Text().data(), line.Size()) < 0 ? kExitNotPermitted + 1
                                                                   : kExitNotPermitted;
}

}  // namespace lurkwell::helper
