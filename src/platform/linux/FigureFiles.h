#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileDescriptor.h"
#include "platform/ProcStat.h"
#include "platform/ProcessFigures.h"
#include "platform/linux/KnownProcess.h"
#include "platform/linux/ProcFiles.h"
#include "platform/linux/UnitFiles.h"
#include "platform/linux/UserNames.h"

namespace lurkwell {

/// Takes figures from the files in the folder of a process, and from what is known beside them. A
/// file that is missing, or may not be read, says so in the figures that stand there; one that
/// cannot be opened for want of descriptors leaves them as they are. Main thread.
class FigureFiles {
 public:
  /// `units` is where control groups are, see UnitFiles.
  FigureFiles(std::shared_ptr<ProcFiles> files, const std::string& units);

  void BeginPass();

  /// The figures of the stat file from its fields.
  void TakeStat(const ProcStatFields& fields, KnownProcess& known) const;

  /// Those of all sources that one reading brings: status brings what it says of users, too, and
  /// the other way round. Gives the sources that have been read.
  FigureSources Read(FigureSource source, const FileDescriptor& folder, KnownProcess& known);

  /// Others of the unit may have run. True when figures are others.
  bool TakeUnitFigures(KnownProcess& known);
  /// True when the names of users have come.
  bool TakeUserNames(KnownProcess& known);
  static void TakeAssignment(const std::optional<Assignment>& assignment, KnownProcess& known);

 private:
  void ReadNamed(FigureSources sources, const FileDescriptor& folder, const char* file,
                 KnownProcess& known);
  void TakeIdentity(const NamedFields& fields, KnownProcess& known);
  void ReadThreads(const FileDescriptor& folder, KnownProcess& known);
  void AddThread(std::string_view text);
  void ReadGroup(const FileDescriptor& folder, KnownProcess& known);
  void ReadExecutable(const FileDescriptor& folder, KnownProcess& known);
  void ReadNamespaces(const FileDescriptor& folder, KnownProcess& known);
  void ReadSingle(Figure figure, const FileDescriptor& folder, const char* file,
                  KnownProcess& known);
  /// Why there is nothing after a failed access; kUnread when that is no word on the figures.
  static FigureState WhyMissing(std::ptrdiff_t bytes);
  std::int64_t FigureOf(const FigureOrigin& origin, std::int64_t number) const;
  std::string_view BufferText(std::ptrdiff_t bytes) const;

  const std::shared_ptr<ProcFiles> mFiles;
  UnitFiles mUnits;
  UserNames mUsers;
  std::int64_t mTicksPerSecond;
  std::int64_t mPageSize;
  std::int64_t mPages;
  std::vector<std::int32_t> mThreads;
  /// Of the threads that have been read, by the figures' places.
  std::array<std::int64_t, kFigureCount> mThreadSums{};
  std::array<char, 8192> mBuffer{};
};

}  // namespace lurkwell
