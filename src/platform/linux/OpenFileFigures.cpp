#include "platform/linux/OpenFileFigures.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstddef>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "platform/linux/DetailsFiles.h"
#include "platform/linux/SocketLinks.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kReadEvery = 1000;
constexpr std::int64_t kTableRestFactor = 50;
constexpr std::int64_t kNetworkStays = 60'000;
constexpr std::size_t kMostInTables = 262'144;
constexpr std::size_t kLongestNames = 1 << 20;

/// The number behind the colon of "0100007F:1F90".
std::optional<std::uint16_t> PortIn(std::string_view address) {
  const auto colon = address.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const auto digits = address.substr(colon + 1);
  std::uint16_t port = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), port, 16);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return port;
}

}  // namespace

void OpenFileFigures::BeginRound() {
  const auto now = mFiles.Milliseconds();
  std::erase_if(mNetworks,
                [now](const auto& network) { return now > network.second.asked + kNetworkStays; });
}

std::string OpenFileFigures::LinkIn(int folder, const char* name) {
  const auto length = mFiles.ReadLinkIn(folder, name, mBuffer);
  return {mBuffer.data(), length > 0 ? static_cast<std::size_t>(length) : 0};
}

bool OpenFileFigures::ListDescriptors(int folder) {
  return mFiles.ListNumbers(folder, "fd", mNumbers);
}

void OpenFileFigures::AddSockets(int folder, const char* table, Network& network) {
  ReadLines(folder, table, [&](std::string_view line) {
    // "0: OWN OTHER STATE QUEUES TIMER RETRIES UID TIMEOUT INODE ..."
    TakeWord(line);
    const auto own = PortIn(TakeWord(line));
    const auto other = PortIn(TakeWord(line));
    for (int i = 0; i < 6; ++i) TakeWord(line);
    const auto word = TakeWord(line);
    std::uint64_t inode = 0;
    std::from_chars(word.data(), word.data() + word.size(), inode);
    // The heading has neither.
    if (own && other && inode != 0) network.byInode[inode] = {*own, *other};
    return network.byInode.size() < kMostInTables;
  });
}

const OpenFileFigures::Network& OpenFileFigures::NetworkOf(int folder, const std::string& name) {
  auto& network = mNetworks[name];
  const auto begun = mFiles.Milliseconds();
  network.asked = begun;
  if (begun < network.nextReading) return network;
  network.byInode.clear();
  for (const char* table : {"net/tcp", "net/tcp6", "net/udp", "net/udp6"})
    AddSockets(folder, table, network);
  const auto ended = mFiles.Milliseconds();
  network.nextReading = ended + std::max(kReadEvery, (ended - begun) * kTableRestFactor);
  return network;
}

FigureState OpenFileFigures::ReadPorts(int folder, ProcessFigures& figures) {
  const auto name = LinkIn(folder, "ns/net");
  // A process that has ended, but for its parent's word, has no network.
  const bool hasEnded = name.empty() && errno == ENOENT;
  if ((name.empty() && !hasEnded) || !ListDescriptors(folder)) return FigureState::kUnread;
  if (hasEnded) mNumbers.clear();
  if (mNumbers.size() > kMostDescriptors) return FigureState::kUncounted;
  static const Network kNone;
  const auto& network = hasEnded ? kNone : NetworkOf(folder, name);
  std::set<std::uint16_t> ports;
  for (const auto number : mNumbers) {
    const auto inode = InodeOfSocket(LinkIn(folder, ("fd/" + std::to_string(number)).c_str()));
    const auto found = inode ? network.byInode.find(*inode) : network.byInode.end();
    if (found == network.byInode.end()) continue;
    for (const auto port : {found->second.own, found->second.other})
      if (port != 0) ports.insert(port);
  }
  std::string text;
  for (const auto port : ports) text += (text.empty() ? "" : ", ") + std::to_string(port);
  figures.SetText(FigureCalled("pid_ports"), text);
  return FigureState::kKnown;
}

FigureState OpenFileFigures::ReadFiles(int folder, ProcessFigures& figures) {
  if (!ListDescriptors(folder)) return FigureState::kUnread;
  if (mNumbers.size() > kMostDescriptors) return FigureState::kUncounted;
  std::set<std::string> names;
  const auto add = [&](const char* link) {
    // Sockets and pipes have no path.
    auto name = LinkIn(folder, link);
    if (name.starts_with('/')) names.insert(std::move(name));
  };
  add("cwd");
  for (const auto number : mNumbers) add(("fd/" + std::to_string(number)).c_str());
  std::string text;
  for (const auto& name : names) {
    text += (text.empty() ? "" : "\n") + name;
    if (text.size() > kLongestNames) return FigureState::kUncounted;
  }
  figures.SetText(FigureCalled("pid_open_files"), text);
  return FigureState::kKnown;
}

}  // namespace lurkwell
