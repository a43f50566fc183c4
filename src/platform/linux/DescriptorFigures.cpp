#include "platform/linux/DescriptorFigures.h"

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <utility>

#include "platform/linux/SocketLinks.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kDumpEvery = 1000;
constexpr std::int64_t kDumpRestFactor = 50;
constexpr std::int64_t kRestAfterFailure = 10'000;
constexpr std::int64_t kOthersStay = 10'000;

/// Nanoseconds.
std::int64_t ExactTime() {
  timespec time{};
  ::clock_gettime(CLOCK_MONOTONIC, &time);
  return time.tv_sec * std::int64_t{1'000'000'000} + time.tv_nsec;
}

void SetMoved(const NetworkUse& use, Figure received, Figure sent, ProcessFigures& figures) {
  if (use.isCounted) {
    figures.Set(received, static_cast<std::int64_t>(use.received));
    figures.Set(sent, static_cast<std::int64_t>(use.sent));
  } else {
    figures.SetMissing(received, FigureState::kUncounted);
    figures.SetMissing(sent, FigureState::kUncounted);
  }
}

std::string PortsInWords(const std::vector<std::uint16_t>& ports) {
  std::string text;
  for (const auto port : ports) text += (text.empty() ? "" : ", ") + std::to_string(port);
  return text;
}

}  // namespace

DescriptorFigures::DescriptorFigures(ProcFiles& files, const std::string& units,
                                     std::string devices)
    : mFiles(files), mUnits(units), mDevices(std::move(devices)) {}

void DescriptorFigures::BeginRound() {
  mUnits.BeginPass();
  std::erase_if(mGroups, [](const auto& group) { return group.second.expired(); });
  std::error_code error;
  mHasDevices = !std::filesystem::is_empty(mDevices, error) && !error;
  std::array<char, 64> link;
  const auto length = ::readlink("/proc/thread-self/ns/net", link.data(), link.size());
  mOurNetwork.assign(link.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
}

bool DescriptorFigures::EnsureDump() {
  const auto now = mFiles.Milliseconds();
  if (now < mNextDump) return mAccounts.LastTaken().has_value();
  auto sockets = ReadTcpSockets();
  const auto ended = mFiles.Milliseconds();
  if (!sockets) {
    mAccounts.Forget();
    mNextDump = ended + kRestAfterFailure;
    return false;
  }
  mAccounts.Take(std::move(*sockets), ended);
  mNextDump = ended + std::max(kDumpEvery, (ended - now) * kDumpRestFactor);
  return true;
}

std::string DescriptorFigures::LinkIn(int folder, const char* name) {
  const auto length = mFiles.ReadLinkIn(folder, name, mBuffer);
  return {mBuffer.data(), length > 0 ? static_cast<std::size_t>(length) : 0};
}

bool DescriptorFigures::ListDescriptors(int folder) {
  if (!mFiles.ListNumbers(folder, "fd", mNumbers)) return false;
  std::ranges::sort(mNumbers);
  return true;
}

FigureState DescriptorFigures::ReadSockets(int folder, Known& known, ProcessFigures& figures) {
  const auto network = LinkIn(folder, "ns/net");
  // A process that has ended, but for its parent's word, has none.
  if (network.empty()) return errno == ENOENT ? FigureState::kUncounted : FigureState::kUnread;
  if (network != mOurNetwork) return FigureState::kUncounted;
  if (!ListDescriptors(folder)) return FigureState::kUnread;
  if (mNumbers.size() > kMostDescriptors) return FigureState::kUncounted;
  if (!EnsureDump()) return FigureState::kUncounted;
  std::vector<std::uint64_t> inodes;
  for (const auto number : mNumbers)
    if (const auto inode = InodeOfSocket(LinkIn(folder, ("fd/" + std::to_string(number)).c_str())))
      inodes.push_back(*inode);
  std::ranges::sort(inodes);
  inodes.erase(std::unique(inodes.begin(), inodes.end()), inodes.end());
  const auto use = mAccounts.OfSockets(known.network, inodes);
  SetMoved(use, FigureCalled("pid_net_received"), FigureCalled("pid_net_sent"), figures);
  figures.Set(FigureCalled("pid_connections"), use.connections);
  figures.SetText(FigureCalled("pid_listening_ports"), PortsInWords(use.listeningPorts));
  return FigureState::kKnown;
}

FigureState DescriptorFigures::ReadSocketsOfUnit(int folder, Known& known,
                                                 ProcessFigures& figures) {
  const auto bytes = mFiles.ReadIn(folder, "cgroup", mBuffer);
  if (bytes <= 0) return errno == ENOENT ? FigureState::kUncounted : FigureState::kUnread;
  const auto group = mUnits.Find({mBuffer.data(), static_cast<std::size_t>(bytes)});
  const auto number = group != nullptr ? mUnits.NumberOf(*group) : std::nullopt;
  if (!number || !EnsureDump()) return FigureState::kUncounted;
  auto& account = mGroups[*number];
  known.group = account.lock();
  if (known.group == nullptr) account = known.group = std::make_shared<NetworkAccount>();
  SetMoved(mAccounts.OfGroup(*known.group, *number), FigureCalled("pid_unit_net_received"),
           FigureCalled("pid_unit_net_sent"), figures);
  return FigureState::kKnown;
}

FigureState DescriptorFigures::ReadGraphics(int folder, Known& known, ProcessFigures& figures) {
  if (!mHasDevices) return FigureState::kUncounted;
  if (!ListDescriptors(folder)) return FigureState::kUnread;
  if (mNumbers.size() > kMostDescriptors) return FigureState::kUncounted;
  const auto now = mFiles.Milliseconds();
  if (now >= known.othersUntil) {
    known.others.clear();
    known.othersUntil = now + kOthersStay;
  }
  std::vector<GraphicsClient> clients;
  std::vector<std::int32_t> others;
  bool isSilent = false;
  for (const auto number : mNumbers) {
    const auto name = std::to_string(number);
    const bool isOther = std::ranges::binary_search(known.others, number);
    const auto link = isOther ? std::string() : LinkIn(folder, ("fd/" + name).c_str());
    // A driver of its own, which counts nothing for others.
    isSilent |= link.starts_with("/dev/nvidia");
    if (!link.starts_with(mDevices + '/')) {
      if (!link.starts_with("/dev/nvidia")) others.push_back(number);
      continue;
    }
    const auto bytes = mFiles.ReadIn(folder, ("fdinfo/" + name).c_str(), mBuffer);
    const auto client =
        ParseGraphicsClient({mBuffer.data(), bytes > 0 ? static_cast<std::size_t>(bytes) : 0});
    if (client) {
      clients.push_back(*client);
    } else {
      isSilent = true;
    }
  }
  known.others = std::move(others);
  if (clients.empty() && isSilent) return FigureState::kUncounted;
  const auto use = known.graphics.Update(clients, ExactTime());
  constexpr Figure kShareFigure = FigureCalled("pid_gpu_share");
  constexpr Figure kMemoryFigure = FigureCalled("pid_gpu_memory");
  const bool isCounting = std::ranges::any_of(
      clients, [](const GraphicsClient& client) { return !client.engines.empty(); });
  // A process that has no device open uses none.
  if (clients.empty() || use.share) {
    figures.Set(kShareFigure, use.share.value_or(0));
    figures.SetText(FigureCalled("pid_gpu_engine"), use.engine);
  } else if (!isCounting) {
    figures.SetMissing(kShareFigure, FigureState::kUncounted);
    figures.SetMissing(FigureCalled("pid_gpu_engine"), FigureState::kUncounted);
  }
  if (clients.empty() || use.memory) {
    figures.Set(kMemoryFigure, static_cast<std::int64_t>(use.memory.value_or(0)));
  } else {
    figures.SetMissing(kMemoryFigure, FigureState::kUncounted);
  }
  return FigureState::kKnown;
}

}  // namespace lurkwell
