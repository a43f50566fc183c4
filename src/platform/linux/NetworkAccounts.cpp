#include "platform/linux/NetworkAccounts.h"

#include <linux/inet_diag.h>
#include <linux/netlink.h>
#include <linux/sock_diag.h>
#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/FileDescriptor.h"

namespace lurkwell {
namespace {

// The kernel's numbers of a connection's states.
constexpr unsigned kSynReceived = 3;
constexpr unsigned kTimeWait = 6;
constexpr unsigned kListening = 10;
constexpr unsigned kNewSynReceived = 12;
/// No process has those open.
constexpr std::uint32_t kStates =
    ~((1U << kSynReceived) | (1U << kTimeWait) | (1U << kNewSynReceived));

constexpr std::size_t kHeadLength = sizeof(nlattr);

/// Attributes and messages begin at multiples of four bytes.
std::size_t Aligned(std::size_t length) {
  return (length + 3) & ~std::size_t{3};
}

/// The object at the beginning of the bytes, as far as they go: newer kernels have longer ones.
template <typename T>
T BeginningAs(std::span<const std::byte> bytes) {
  T object{};
  std::memcpy(&object, bytes.data(), std::min(bytes.size(), sizeof object));
  return object;
}

/// Calls `take` with each attribute and the number of its kind.
template <typename Take>
void ForEachAttribute(std::span<const std::byte> bytes, Take take) {
  while (bytes.size() >= kHeadLength) {
    const auto head = BeginningAs<nlattr>(bytes);
    if (head.nla_len < kHeadLength || head.nla_len > bytes.size()) return;
    take(head.nla_type & NLA_TYPE_MASK, bytes.subspan(kHeadLength, head.nla_len - kHeadLength));
    bytes = bytes.subspan(std::min(Aligned(head.nla_len), bytes.size()));
  }
}

std::optional<TcpSocket> SocketOf(std::span<const std::byte> message) {
  if (message.size() < sizeof(inet_diag_msg)) return std::nullopt;
  const auto head = BeginningAs<inet_diag_msg>(message);
  TcpSocket socket;
  socket.inode = head.idiag_inode;
  socket.cookie = std::uint64_t{head.id.idiag_cookie[1]} << 32 | head.id.idiag_cookie[0];
  socket.port = ntohs(head.id.idiag_sport);
  socket.isListening = head.idiag_state == kListening;
  ForEachAttribute(message.subspan(sizeof head), [&](int kind, std::span<const std::byte> value) {
    if (kind == INET_DIAG_CGROUP_ID && value.size() >= sizeof socket.group)
      socket.group = BeginningAs<std::uint64_t>(value);
    // A listening socket has other figures in the same places.
    if (kind != INET_DIAG_INFO || socket.isListening) return;
    const auto info = BeginningAs<tcp_info>(value);
    socket.received = info.tcpi_bytes_received;
    socket.sent = info.tcpi_bytes_acked;
  });
  return socket;
}

bool AskForSockets(const FileDescriptor& link, std::uint8_t family) {
  struct {
    nlmsghdr head;
    inet_diag_req_v2 request;
  } message{};
  message.head.nlmsg_len = sizeof message;
  message.head.nlmsg_type = SOCK_DIAG_BY_FAMILY;
  message.head.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
  message.request.sdiag_family = family;
  message.request.sdiag_protocol = IPPROTO_TCP;
  message.request.idiag_ext = 1 << (INET_DIAG_INFO - 1);
  message.request.idiag_states = kStates;
  return ::send(link.Get(), &message, sizeof message, 0) == sizeof message;
}

bool AddSocketsOf(const FileDescriptor& link, std::uint8_t family, std::span<std::byte> buffer,
                  std::vector<TcpSocket>& sockets) {
  if (!AskForSockets(link, family)) return false;
  for (;;) {
    const auto bytes = ::recv(link.Get(), buffer.data(), buffer.size(), 0);
    if (bytes < 0 && errno == EINTR) continue;
    if (bytes <= 0) return false;
    switch (AddSockets(buffer.first(static_cast<std::size_t>(bytes)), sockets)) {
      case SocketDump::kIsOver:
        return true;
      case SocketDump::kFailed:
        return false;
      case SocketDump::kGoesOn:
        break;
    }
    if (sockets.size() > kMostSockets) {
      errno = E2BIG;
      return false;
    }
  }
}

}  // namespace

SocketDump AddSockets(std::span<const std::byte> answer, std::vector<TcpSocket>& sockets) {
  while (answer.size() >= sizeof(nlmsghdr)) {
    const auto head = BeginningAs<nlmsghdr>(answer);
    if (head.nlmsg_len < sizeof head || head.nlmsg_len > answer.size()) return SocketDump::kFailed;
    const auto message = answer.subspan(sizeof head, head.nlmsg_len - sizeof head);
    if (head.nlmsg_type == NLMSG_DONE) return SocketDump::kIsOver;
    if (head.nlmsg_type == NLMSG_ERROR) {
      errno = -BeginningAs<int>(message);
      return SocketDump::kFailed;
    }
    if (head.nlmsg_type == SOCK_DIAG_BY_FAMILY)
      if (const auto socket = SocketOf(message)) sockets.push_back(*socket);
    answer = answer.subspan(std::min(Aligned(head.nlmsg_len), answer.size()));
  }
  return SocketDump::kGoesOn;
}

std::optional<std::vector<TcpSocket>> ReadTcpSockets() {
  const FileDescriptor link(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_SOCK_DIAG));
  if (!link.IsOpen()) return std::nullopt;
  constexpr timeval kPatience{1, 0};
  ::setsockopt(link.Get(), SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
  std::vector<std::byte> buffer(65'536);
  std::vector<TcpSocket> sockets;
  if (!AddSocketsOf(link, AF_INET, buffer, sockets)) return std::nullopt;
  // A kernel without it has none of the newer kind.
  if (!AddSocketsOf(link, AF_INET6, buffer, sockets) && errno != ENOENT) return std::nullopt;
  return sockets;
}

namespace {

std::uint64_t Growth(std::uint64_t from, std::uint64_t to) {
  return to > from ? to - from : 0;
}

}  // namespace

NetworkUse NetworkAccount::Update(std::span<const TcpSocket* const> sockets,
                                  const std::unordered_map<std::uint64_t, std::int64_t>& firstSeen,
                                  std::int64_t when) {
  if (mLastLook == when) return mUse;
  mUse.connections = 0;
  mUse.listeningPorts.clear();
  std::unordered_map<std::uint64_t, Moved> held;
  for (const auto* socket : sockets) {
    if (socket->isListening) {
      mUse.listeningPorts.push_back(socket->port);
      continue;
    }
    const auto [place, isNew] = held.emplace(socket->cookie, Moved{socket->received, socket->sent});
    if (!isNew) continue;
    ++mUse.connections;
    mUse.isCounted = true;
    Moved counted;
    const auto known = mHeld.find(socket->cookie);
    if (known != mHeld.end()) {
      counted = known->second;
    } else if (mLastLook && firstSeen.at(socket->cookie) <= *mLastLook) {
      counted = place->second;
    }
    mUse.received += Growth(counted.received, socket->received);
    mUse.sent += Growth(counted.sent, socket->sent);
  }
  auto& ports = mUse.listeningPorts;
  std::ranges::sort(ports);
  ports.erase(std::unique(ports.begin(), ports.end()), ports.end());
  mHeld = std::move(held);
  mLastLook = when;
  return mUse;
}

void NetworkAccounts::Take(std::vector<TcpSocket> sockets, std::int64_t when) {
  mSockets = std::move(sockets);
  mWhen = when;
  mByInode.clear();
  mByGroup.clear();
  std::unordered_map<std::uint64_t, std::int64_t> firstSeen;
  for (const auto& socket : mSockets) {
    const auto known = mFirstSeen.find(socket.cookie);
    firstSeen[socket.cookie] = known != mFirstSeen.end() ? known->second : when;
    if (socket.inode != 0) mByInode[socket.inode] = &socket;
    if (socket.group != 0) mByGroup[socket.group].push_back(&socket);
  }
  mFirstSeen = std::move(firstSeen);
}

void NetworkAccounts::Forget() {
  *this = {};
}

NetworkUse NetworkAccounts::OfSockets(NetworkAccount& account,
                                      std::span<const std::uint64_t> inodes) const {
  std::vector<const TcpSocket*> sockets;
  for (const auto inode : inodes)
    if (const auto found = mByInode.find(inode); found != mByInode.end())
      sockets.push_back(found->second);
  return account.Update(sockets, mFirstSeen, mWhen.value_or(0));
}

NetworkUse NetworkAccounts::OfGroup(NetworkAccount& account, std::uint64_t group) const {
  const auto found = mByGroup.find(group);
  const std::span<const TcpSocket* const> none;
  return account.Update(found != mByGroup.end() ? std::span(found->second) : none, mFirstSeen,
                        mWhen.value_or(0));
}

}  // namespace lurkwell
