// Lurkwell_permissions: what an administrator's consent runs as root, for a moment, so that a
// user's copy of the helper has its rights from then on.
#include <fcntl.h>
#include <stdio.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstring>

#include "helper/Launch.h"
#include "helper/OwnFile.h"
#include "helper/Text.h"

namespace lurkwell::helper {
namespace {

/// Why nothing was done: what the process ends with and what it says. No reason when it was done.
struct Refusal {
  int status;
  const char* reason;
};
constexpr int kBadCopy = 65, kNoHelper = 72, kCannotWrite = 73, kNotPermitted = 77, kBadFolder = 78;
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

Refusal Replace(int folder, int twin, gid_t group, const Digest::Value& digest) {
  unlinkat(folder, kFreshName, 0);
  const Descriptor fresh(
      openat(folder, kFreshName, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
  if (fresh < 0) return {kCannotWrite, "cannot write into the folder"};
  struct stat mine, there;
  if (!WriteFresh(twin, fresh, group, digest) || fstat(fresh, &mine) != 0 || mine.st_nlink != 1 ||
      renameat(folder, kFreshName, folder, kHelperName) != 0) {
    fchmod(fresh, 0);
    unlinkat(folder, kFreshName, 0);
    return {kCannotWrite, "cannot write the new file"};
  }
  fsync(folder);
  if (fstatat(folder, kHelperName, &there, AT_SYMLINK_NOFOLLOW) == 0 && IsSameFile(mine, there))
    return {};
  fchmod(fresh, 0);
  return {kCannotWrite, "the new file was exchanged on the way"};
}

/// What is asked of an administrator comes last: anybody may try it for himself, and learns whether
/// that is all that is missing.
Refusal Bless(uid_t user) {
  constexpr Refusal kNotAnAdministrator{kNotPermitted, "this needs an administrator's rights"};
  // Running a copy that has rights already makes no administrator.
  if (getuid() != geteuid()) return kNotAnAdministrator;
  const Descriptor twin(OpenTwin());
  struct stat own, info, copyInfo;
  if (fstat(twin, &own) != 0)
    return {kNoHelper, "there is no helper of root's alone beside this program"};
  const Descriptor folder(open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // A user able to move the copy into a folder of his own would be served there.
  if (fstat(folder, &info) != 0 || info.st_uid != user || !IsOwnersAlone(info) ||
      !IsSafelyReached(info))
    return {kBadFolder, "the folder is not the user's alone, or is reached over a link"};
  struct statvfs system;
  if (fstatvfs(folder, &system) != 0 || (system.f_flag & (ST_NOSUID | ST_RDONLY | ST_NOEXEC)) != 0)
    return {kBadFolder, "the folder's file system does not allow programs with other rights"};
  const Descriptor copy(OpenChecked(folder, kHelperName, O_RDONLY, user, IsPlainCopy));
  if (fstat(copy, &copyInfo) != 0)
    return {kBadCopy, "the copy is not a plain file of the user's or root's"};
  if (IsSameFile(copyInfo, own)) return {kBadFolder, "the copy cannot give rights to itself"};
  Digest::Value digest, copyDigest;
  if (!DigestOfFile(twin, digest) || !DigestOfFile(copy, copyDigest) ||
      (copyDigest != digest && FindVersion(copyDigest) == Version::kUnknown))
    return {kBadCopy, "the copy is no known version of the helper"};
  return getuid() == 0 ? Replace(folder, twin, info.st_gid, digest) : kNotAnAdministrator;
}

/// Puts a fresh file with the bytes of the helper that lies beside this program, owned by root and
/// set-user-id, in the place of the copy "Lurkwell_helper" in the current folder, which belongs to
/// `user`. To be run from a folder that the user cannot write. 0 when done; else a line on
/// standard error, the exit status, and nothing changed: 65 when the copy is no plain file or no
/// known version of the helper, 72 without a helper of root's to copy, 73 when the folder cannot be
/// written, 78 when the folder is not as it should be. Without root's rights it ends with 77 where
/// none of the first four stands in the way, so that nobody is asked for them in vain.
int SetPermissions(uid_t user) {
  const Refusal refusal = Bless(user);
  if (refusal.reason == nullptr) return 0;
  char buffer[160];
  TextWriter line(buffer, sizeof buffer);
  line.Add("Lurkwell_permissions: ", refusal.reason, '\n');
  const ssize_t written = write(STDERR_FILENO, line.Text().data(), line.Text().size());
  static_cast<void>(written);
  return refusal.status;
}

}  // namespace
}  // namespace lurkwell::helper

#if __USE_FORTIFY_LEVEL < 2 || !defined(__SSP_STRONG__) || !defined(__PIE__)
#error "The permission step is built with the helper's flags, see CMakeLists.txt."
#endif

int main(int argc, char** argv) {
  using namespace lurkwell::helper;
  constexpr int kExitUsage = 64, kExitSystem = 71;
  if (argc != 2 || std::strcmp(argv[1], "--set_permissions_appropriately") != 0) return kExitUsage;
  const uid_t user = TakeAskingUser();
  return ResetProcess(Output::kCallers) ? SetPermissions(user) : kExitSystem;
}
