#pragma once

#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>

namespace lurkwell::helper {

/// Calls `visit` with each name in a folder until it says true.
template <typename Visit>
bool AnyName(int folder, Visit visit) {
  alignas(8) char entries[4096];
  for (;;) {
    const long size = syscall(SYS_getdents64, folder, entries, sizeof entries);
    if (size <= 0) return false;
    for (long place = 0; place < size;) {
      // Each entry: inode, offset, its own length, type, name.
      std::uint16_t length = 0;
      std::memcpy(&length, entries + place + 16, sizeof length);
      if (visit(entries + place + 19)) return true;
      place += length;
    }
  }
}

}  // namespace lurkwell::helper
