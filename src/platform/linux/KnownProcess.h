#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "platform/FigureSources.h"
#include "platform/FileDescriptor.h"
#include "platform/ProcessFigures.h"
#include "platform/ProcessIdentity.h"
#include "platform/linux/NameReader.h"
#include "platform/linux/ProcFiles.h"
#include "platform/linux/UnitFiles.h"

namespace lurkwell {

/// What is remembered of a process beside its entry.
struct KnownProcess {
  /// When a file was last read.
  struct Reading {
    /// The time on processors before that; nothing when it must be read anew.
    std::optional<std::uint64_t> runTime;
    /// It is read again then, in milliseconds.
    std::int64_t due = 0;
  };

  /// Its stat file, if it is kept open.
  FileDescriptor stat;
  std::uint64_t folder = 0;
  /// As the kernel has it, whether or not that one is in the table.
  std::int32_t parentPid = kInvalidPID;
  /// Another process may have the pid by now.
  bool isInDoubt = true;
  /// Of the sources that were ever read; few are for most processes.
  class Readings {
   public:
    const Reading& operator[](FigureSource source) const {
      static const Reading kUnread;
      const auto place = Placed(source);
      return place < mReadings.size() ? mReadings[place] : kUnread;
    }
    Reading& operator[](FigureSource source) {
      const auto place = Placed(source);
      if (place >= mReadings.size()) mReadings.resize(place + 1);
      return mReadings[place];
    }

   private:
    /// That of stat is the first.
    static std::size_t Placed(FigureSource source) {
      return static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(source)));
    }

    std::vector<Reading> mReadings;
  };
  Readings readings;
  /// Nothing of these sources is stale until then, in milliseconds, unless it has run since.
  struct Rest {
    FigureSources sources = 0;
    std::uint64_t runTime = 0;
    std::int64_t until = 0;
  };
  Rest rest;
  /// What was resident when the longer description was read.
  std::int64_t describedMemory = 0;
  /// Tells one program from the next that the process becomes, as of the last reading of what
  /// seldom changes; 0 before.
  std::uint64_t program = 0;
  std::shared_ptr<ControlGroup> unit;
  /// Which of the unit's figures are among the process's; see ControlGroup.
  std::uint64_t unitStamp = 0;
  std::optional<Scheduling> scheduling;
  /// Real and effective, once they are known; their names may be missing yet.
  std::optional<std::array<std::uint32_t, 2>> users;
  bool areUsersNamed = false;
  /// It has a pid of its own in another namespace.
  bool isInside = false;
  ProcessFigures figures;
  std::array<char, kKernelNameLength> kernelName{};
  char following = '\0';
  std::uint8_t namings = 0;
};

}  // namespace lurkwell
