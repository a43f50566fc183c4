#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/ProcessFigures.h"
#include "platform/linux/GraphicsUsage.h"
#include "platform/linux/NetworkAccounts.h"
#include "platform/linux/ProcFiles.h"
#include "platform/linux/UnitFiles.h"

namespace lurkwell {

/// Figures that hang on what a process has open: TCP connections and graphics devices.
///
/// Connections are those of our own network namespace. Their counts come from one dump of all
/// sockets a second at most, and less often where it takes long; a process has those whose inodes
/// are among its descriptors, a control group those that were made in it.
///
/// Of a graphics device only the usage figures are read that the kernel keeps with each of its
/// descriptors; no device is opened, so that one that sleeps goes on sleeping. A descriptor that
/// was found to be something else is not looked at again for ten seconds, since its number may be
/// given to another file meanwhile.
///
/// A process with more than 65,536 descriptors is not counted. One thread at a time.
class DescriptorFigures {
 public:
  /// What is remembered of one process.
  struct Known {
    NetworkAccount network;
    GraphicsAccount graphics;
    std::shared_ptr<NetworkAccount> group;
    /// Numbers of descriptors, in order, that are none of graphics devices, and until when.
    std::vector<std::int32_t> others;
    std::int64_t othersUntil = 0;
  };

  /// `units` as in UnitFiles; `devices` is the folder of the graphics devices.
  DescriptorFigures(ProcFiles& files, const std::string& units, std::string devices);

  /// A round of readings begins; what was learnt of the machine may be another thing by now.
  void BeginRound();

  /// Each reads what its source says of the process whose folder is open. kUnread with errno when
  /// that failed.
  FigureState ReadSockets(int folder, Known& known, ProcessFigures& figures);
  FigureState ReadSocketsOfUnit(int folder, Known& known, ProcessFigures& figures);
  FigureState ReadGraphics(int folder, Known& known, ProcessFigures& figures);

  /// When the sockets were dumped of which the last two of these told, in milliseconds.
  std::int64_t SocketsAreOf() const { return mAccounts.LastTaken().value_or(0); }

 private:
  bool EnsureDump();
  std::string LinkIn(int folder, const char* name);
  bool ListDescriptors(int folder);

  ProcFiles& mFiles;
  UnitFiles mUnits;
  const std::string mDevices;
  NetworkAccounts mAccounts;
  std::int64_t mNextDump = 0;
  std::string mOurNetwork;
  bool mHasDevices = false;
  std::unordered_map<std::uint64_t, std::weak_ptr<NetworkAccount>> mGroups;
  std::vector<std::int32_t> mNumbers;
  std::array<char, 8192> mBuffer{};
};

}  // namespace lurkwell
