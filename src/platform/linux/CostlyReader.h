#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/CostlyFigures.h"
#include "platform/FileDescriptor.h"
#include "platform/linux/DescriptorFigures.h"
#include "platform/linux/OpenFileFigures.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// Reads the costly figures of one process at a time, and remembers when each is worth another
/// reading: a source that took long rests for fifty times as long, a minute at most, one that is
/// refused for ten seconds. What hardly changes unless the process runs rests ten seconds more
/// while it sleeps, and five minutes out of sight. One thread at a time.
class CostlyReader {
 public:
  /// As in ProcFiles and DescriptorFigures.
  CostlyReader(const std::string& root, const std::string& units, const std::string& devices);

  /// All that is asked for from now on: of other processes everything is forgotten.
  void Keep(std::span<const CostlyWish> wishes);

  /// Those of the wish's sources that may be read now, and whether one of them never was.
  struct Due {
    FigureSources sources = 0;
    bool hasNeverBeenRead = false;
    /// When the oldest of them was read, in milliseconds.
    std::int64_t oldest = 0;
  };
  Due DueOf(const CostlyWish& wish, std::int64_t now) const;

  /// Reads these sources, one reading for each, whose age is that at the end of all of them;
  /// nothing when the process is not there any more.
  std::vector<CostlyReading> Read(ProcessIdentity process, FigureSources sources);

  /// Milliseconds of the steady clock.
  std::int64_t Now() const { return mFiles.Milliseconds(); }

 private:
  struct Known {
    std::uint64_t startStamp = 0;
    struct Source {
      bool isRead = false;
      std::int64_t readAt = 0;
      std::int64_t due = 0;
      /// As in CostlyWish, when it was read; nothing unless that succeeded.
      std::optional<std::uint64_t> activity;
    };
    std::array<Source, kCostlySourceCount> sources;
    DescriptorFigures::Known open;
    std::optional<std::uint64_t> activity;
    std::uint64_t round = 0;
  };

  /// Whether the open folder is that process's; errno is ESRCH where it is another's.
  bool IsOf(ProcessIdentity process, int folder);
  FigureState ReadSource(FigureSource source, int folder, Known& known, ProcessFigures& figures);
  FigureState ReadMemoryMap(int folder, ProcessFigures& figures);
  FigureState ReadDescriptorCount(int folder, ProcessFigures& figures);

  ProcFiles mFiles;
  DescriptorFigures mDescriptors;
  OpenFileFigures mOpenFiles;
  std::unordered_map<std::int32_t, Known> mKnown;
  std::uint64_t mRound = 0;
  /// Whether the process that is read has memory of its own, as the kernel's threads have not.
  bool mHasMemory = true;
  std::vector<std::int32_t> mNumbers;
  std::array<char, 8192> mBuffer{};
};

}  // namespace lurkwell
