#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace lurkwell {

/// A call that changes what a disk holds, or has it hold it for good.
struct DiskCall {
  enum class Kind : std::uint8_t {
    kCreate,      ///< `name` becomes an empty file
    kWrite,       ///< `bytes` at `at`
    kTruncate,    ///< to `at` bytes
    kRename,      ///< `name` to `newName`
    kUnlink,      ///< `name`
    kSyncFile,    ///< all that was written to the file is on the disk
    kSyncFolder,  ///< all names are
    kMark,        ///< no call: the program has returned from operation number `at`
  };
  Kind kind{};
  /// Which file, by its number in the log; files keep theirs when they are renamed.
  int file = -1;
  std::uint64_t at = 0;
  std::string bytes;
  std::string name;
  std::string newName;
};

/// Writes down the calls for files in one folder, while there is one of these. A program that has
/// DiskLog.cpp in it makes them through it, and so do the libraries that it loads: their calls of
/// open, write, pwrite, ftruncate, rename, unlink and fsync find the program's own. Memory that
/// libraries share through files ("-shm") is left out, since no disk keeps it. One thread.
class DiskLog {
 public:
  explicit DiskLog(std::string folder);
  ~DiskLog();
  DiskLog(const DiskLog&) = delete;
  DiskLog& operator=(const DiskLog&) = delete;

  void Mark(std::uint64_t number);
  const std::vector<DiskCall>& Calls() const;
};

}  // namespace lurkwell
