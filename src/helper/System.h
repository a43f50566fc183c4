#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lurkwell::helper {

/// Everything the helper asks of the machine once it serves. Tests put a recording one in its
/// place. Each call returns a negative error number when it fails.
struct System {
  /// A descriptor that stands for the process itself, whichever process has its pid later.
  int (*openProcess)(std::int32_t pid);
  int (*signalProcess)(int process, int signal);
  /// Of all threads of the process. -ESTALE: done, but the number of one that ended meanwhile may
  /// have been another process's by then.
  int (*setNice)(std::int32_t pid, int nice);
  /// One read of a file below /proc; the number of bytes.
  std::ptrdiff_t (*readFile)(const char* path, char* buffer, std::size_t capacity);
  /// What openProcess gave.
  int (*close)(int process);
  /// One line for the system log, as CarryOut writes it; without effect where there is none.
  void (*log)(std::string_view line);
};

/// What stays the same while the helper serves.
struct Surroundings {
  /// The effective user id that the kernel gave the helper at its start.
  std::uint32_t startUser = 0;
  /// The user for whom it works.
  std::uint32_t user = 0;
  std::int32_t ownPid = 0;
  /// The application at the other end, or -1 when it is not known.
  std::int32_t peerPid = -1;
  std::uint32_t ticksPerSecond = 100;
  std::uint32_t pageSize = 4096;
};

/// The machine that the helper runs on.
extern const System kRealSystem;

/// Connects to the system log, for kRealSystem's log; to be called before the confinement.
void ConnectLog();

/// Says in the system log how many lines it has not taken, if any. kRealSystem's log does that
/// first; to be called at the end, too.
void TellLostLines();

}  // namespace lurkwell::helper
