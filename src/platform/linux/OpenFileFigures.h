#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/ProcessFigures.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// Which ports and files a process has to do with, by its descriptors, for those who look for a
/// process by one.
///
/// Ports come from the kernel's tables of TCP and UDP sockets, those of the process's own network;
/// a table is read once a second at most, and less often where that takes long. A process with more
/// than 65,536 descriptors, or a MiB of names, is not counted. One thread at a time.
class OpenFileFigures {
 public:
  explicit OpenFileFigures(ProcFiles& files) : mFiles(files) {}

  /// Forgets networks that nobody was asked about for a minute.
  void BeginRound();

  /// Each reads what its source says of the process whose folder is open. kUnread with errno when
  /// that failed.
  FigureState ReadPorts(int folder, ProcessFigures& figures);
  FigureState ReadFiles(int folder, ProcessFigures& figures);

 private:
  /// A socket's own port and the other end's, 0 for none.
  struct Ports {
    std::uint16_t own = 0;
    std::uint16_t other = 0;
  };
  struct Network {
    std::unordered_map<std::uint64_t, Ports> byInode;
    std::int64_t asked = 0;
    std::int64_t nextReading = 0;
  };

  const Network& NetworkOf(int folder, const std::string& name);
  void AddSockets(int folder, const char* table, Network& network);
  /// Empty, and errno, where there is none.
  std::string LinkIn(int folder, const char* name);
  /// False, and errno, when they cannot be listed.
  bool ListDescriptors(int folder);

  ProcFiles& mFiles;
  /// By the name of the namespace.
  std::unordered_map<std::string, Network> mNetworks;
  std::vector<std::int32_t> mNumbers;
  std::array<char, 8192> mBuffer{};
};

}  // namespace lurkwell
