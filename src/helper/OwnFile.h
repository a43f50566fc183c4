#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lurkwell::helper {

/// SHA-256 of bytes that come piece by piece.
class Digest {
 public:
  using Value = std::array<std::uint8_t, 32>;

  void Add(std::span<const std::uint8_t> bytes);
  /// Ends the sum; nothing may be added behind it.
  Value Finish();

 private:
  void AddBlock();

  std::uint32_t mState[8] = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                             0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
  std::uint8_t mBlock[64];
  std::uint64_t mSize = 0;
};

/// The digest of a plain file from its start; false when it cannot be read or has more than 16 MiB.
bool DigestOfFile(int file, Digest::Value& value);

/// The program's own file: who may run it with privilege, and which versions of it are known.

/// Opens a file in two steps, so that nothing but what was checked is ever opened: first a handle
/// without access, over no link, then through that handle the file it stands for. -1 when `accepts`
/// says no or the file cannot be opened.
int OpenChecked(int folder, const char* name, int flags, uid_t user,
                bool (*accepts)(const struct stat&, uid_t user));

/// Whether nobody but the owner may write.
bool IsOwnersAlone(const struct stat& info);

bool IsSameFile(const struct stat& one, const struct stat& other);

/// Whether the running file, started set-user-id by `user`, may use the rights this gave it: owned
/// by root, one link, in a folder of that user, and in a package still on the list of versions.
bool MayServe(uid_t user);

/// What the lists of a package say of a version, its own and the one of the helpers that it has
/// replaced: nothing, that it may serve, or that it is withdrawn and may only be replaced, which
/// outweighs the others. A build tree has no list and knows none.
enum class Version { kUnknown, kServing, kWithdrawn };
Version FindVersion(const Digest::Value& digest);

}  // namespace lurkwell::helper
