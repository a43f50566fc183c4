#include "helper/OwnFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cstring>

#include "helper/Text.h"

namespace lurkwell::helper {

namespace {

constexpr std::uint32_t kRounds[64] = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

constexpr off_t kLargestFile = 16 << 20;

}  // namespace

void Digest::Add(std::span<const std::uint8_t> bytes) {
  for (const std::uint8_t byte : bytes) {
    mBlock[mSize % 64] = byte;
    if (++mSize % 64 == 0) AddBlock();
  }
}

void Digest::AddBlock() {
  std::uint32_t words[64];
  for (std::size_t i = 0; i < 16; ++i)
    words[i] = std::uint32_t{mBlock[4 * i]} << 24 | std::uint32_t{mBlock[4 * i + 1]} << 16 |
               std::uint32_t{mBlock[4 * i + 2]} << 8 | mBlock[4 * i + 3];
  for (unsigned i = 16; i < 64; ++i) {
    const std::uint32_t early = words[i - 15], late = words[i - 2];
    words[i] = words[i - 16] + (std::rotr(early, 7) ^ std::rotr(early, 18) ^ early >> 3) +
               words[i - 7] + (std::rotr(late, 17) ^ std::rotr(late, 19) ^ late >> 10);
  }
  auto s = std::to_array(mState);
  for (unsigned i = 0; i < 64; ++i) {
    const std::uint32_t first = s[7] +
                                (std::rotr(s[4], 6) ^ std::rotr(s[4], 11) ^ std::rotr(s[4], 25)) +
                                ((s[4] & s[5]) ^ (~s[4] & s[6])) + kRounds[i] + words[i];
    const std::uint32_t second = (std::rotr(s[0], 2) ^ std::rotr(s[0], 13) ^ std::rotr(s[0], 22)) +
                                 ((s[0] & s[1]) ^ (s[0] & s[2]) ^ (s[1] & s[2]));
    for (unsigned k = 7; k > 0; --k) s[k] = s[k - 1];
    s[4] += first;
    s[0] = first + second;
  }
  for (unsigned i = 0; i < 8; ++i) mState[i] += s[i];
}

Digest::Value Digest::Finish() {
  const std::uint64_t bits = mSize * 8;
  std::uint8_t byte = 0x80;
  do {
    Add({&byte, 1});
    byte = 0;
  } while (mSize % 64 != 56);
  for (unsigned i = 0; i < 8; ++i) {
    byte = static_cast<std::uint8_t>(bits >> (56 - 8 * i));
    Add({&byte, 1});
  }
  Value value;
  for (unsigned i = 0; i < 32; ++i)
    value[i] = static_cast<std::uint8_t>(mState[i / 4] >> (24 - i % 4 * 8));
  return value;
}

bool DigestOfFile(int file, Digest::Value& value) {
  static std::uint8_t bytes[16384];
  Digest digest;
  ssize_t size = 1;
  for (off_t place = 0; size > 0 && place <= kLargestFile; place += size) {
    size = pread(file, bytes, sizeof bytes, place);
    if (size > 0) digest.Add({bytes, static_cast<std::size_t>(size)});
  }
  value = digest.Finish();
  return size == 0;
}

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
  if (fstat(handle, &info) == 0 && accepts(info, user))
    file = open(PathWriter("/proc/self/fd/", handle).Terminated(), flags | O_CLOEXEC | O_NOCTTY);
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

/// Looks for `digest` in a list: alone on a line it may serve, and any other line that has it
/// withdraws it, however it is spelled. False when there is no such list of root's.
bool LookUp(const char* path, std::string_view digest, Version& version) {
  static char list[65536];
  const int file = OpenChecked(AT_FDCWD, path, O_RDONLY, 0, OwnedByRootAlone);
  if (file < 0) return false;
  const ssize_t size = read(file, list, sizeof list);
  close(file);
  std::string_view rest(list, size > 0 ? static_cast<std::size_t>(size) : 0);
  for (char& letter : std::span(list, rest.size()))
    letter |= letter >= 'A' && letter <= 'F' ? 0x20 : 0;
  while (!rest.empty()) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    if (line.find(digest) < line.size())
      version = std::max(version, line == digest ? Version::kServing : Version::kWithdrawn);
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
  }
  return true;
}

}  // namespace

Version FindVersion(const Digest::Value& digest) {
  char line[64];
  TextWriter writer(line, sizeof line);
  for (const std::uint8_t byte : digest) writer.Add(kHexDigits[byte >> 4], kHexDigits[byte & 15]);
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
