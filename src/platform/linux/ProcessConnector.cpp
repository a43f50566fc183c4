#include "platform/linux/ProcessConnector.h"

#include <arpa/inet.h>
#include <linux/connector.h>
#include <linux/filter.h>
#include <linux/netlink.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <utility>

namespace lurkwell {
namespace {

/// A message is a netlink header, the connector's, and an event. The kernel's header for events has
/// changed its names, so the few that are needed stand here.
constexpr std::size_t kEventPlace = sizeof(nlmsghdr) + sizeof(cn_msg);
struct Event {
  std::uint32_t what;
  std::uint32_t processor;
  std::uint64_t time;
  std::uint32_t parentThread, parentProcess, thread, process;
};
constexpr std::uint32_t kAnswer = 0;
constexpr std::uint32_t kFork = 1;

/// Room for what begins in two seconds of a very busy machine.
constexpr int kBuffer = 16 << 20;
constexpr std::size_t kAtOnce = 64;
/// Of messages in one go, so that nothing waits without a bound.
constexpr std::size_t kMost = 1 << 17;

constexpr std::uint32_t PlaceOf(std::size_t member) {
  return static_cast<std::uint32_t>(kEventPlace + member);
}

}  // namespace

std::unique_ptr<ProcessConnector> ProcessConnector::Open() {
  FileDescriptor socket(
      ::socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_CONNECTOR));
  if (!socket.IsOpen()) return nullptr;
  if (::setsockopt(socket.Get(), SOL_SOCKET, SO_RCVBUFFORCE, &kBuffer, sizeof kBuffer) != 0)
    ::setsockopt(socket.Get(), SOL_SOCKET, SO_RCVBUF, &kBuffer, sizeof kBuffer);
  sockaddr_nl address{};
  address.nl_family = AF_NETLINK;
  address.nl_groups = CN_IDX_PROC;
  auto connector = std::unique_ptr<ProcessConnector>(new ProcessConnector(std::move(socket)));
  const auto* any = reinterpret_cast<const sockaddr*>(&address);
  const bool isHeard = connector->HearOfBirthsAlone() &&
                       ::bind(connector->mSocket.Get(), any, sizeof address) == 0 &&
                       connector->Send(Wish::kListen);
  return isHeard ? std::move(connector) : nullptr;
}

/// Kernels before 6.6 would go on making messages for nobody.
ProcessConnector::~ProcessConnector() {
  Send(Wish::kIgnore);
}

/// Has the kernel drop all else: threads, programs that are executed, ends.
bool ProcessConnector::HearOfBirthsAlone() const {
  std::array<sock_filter, 9> code{{
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, PlaceOf(offsetof(Event, what))),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, htonl(kAnswer), 6, 0),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, htonl(kFork), 0, 4),
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, PlaceOf(offsetof(Event, thread))),
      BPF_STMT(BPF_MISC | BPF_TAX, 0),
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, PlaceOf(offsetof(Event, process))),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_X, 0, 1, 0),
      BPF_STMT(BPF_RET | BPF_K, 0),
      BPF_STMT(BPF_RET | BPF_K, 0xFFFF),
  }};
  const sock_fprog program{code.size(), code.data()};
  return ::setsockopt(mSocket.Get(), SOL_SOCKET, SO_ATTACH_FILTER, &program, sizeof program) == 0;
}

bool ProcessConnector::Send(Wish wish) const {
  std::array<char, kEventPlace + sizeof wish> message{};
  nlmsghdr header{};
  header.nlmsg_len = message.size();
  header.nlmsg_type = NLMSG_DONE;
  cn_msg connector{};
  connector.id = {CN_IDX_PROC, CN_VAL_PROC};
  connector.len = sizeof wish;
  std::memcpy(message.data(), &header, sizeof header);
  std::memcpy(message.data() + sizeof header, &connector, sizeof connector);
  std::memcpy(message.data() + kEventPlace, &wish, sizeof wish);
  return ::send(mSocket.Get(), message.data(), message.size(), 0) >= 0;
}

std::optional<std::int64_t> ProcessConnector::Since() {
  std::array<std::array<char, 128>, kAtOnce> texts;
  std::array<iovec, kAtOnce> places{};
  std::array<mmsghdr, kAtOnce> messages{};
  for (std::size_t i = 0; i < kAtOnce; ++i) {
    places[i] = {texts[i].data(), texts[i].size()};
    messages[i].msg_hdr.msg_iov = &places[i];
    messages[i].msg_hdr.msg_iovlen = 1;
  }
  std::int64_t births = 0;
  bool isWhole = mIsTold;
  for (std::size_t heard = 0; heard < kMost;) {
    const int count = ::recvmmsg(mSocket.Get(), messages.data(), kAtOnce, MSG_DONTWAIT, nullptr);
    if (count <= 0) {
      if (count < 0 && errno == EINTR) continue;
      // Any other error means that messages were lost.
      if (errno == EAGAIN) return isWhole ? std::optional(births) : std::nullopt;
      isWhole = false;
      if (errno != ENOBUFS) return std::nullopt;
      continue;
    }
    heard += static_cast<std::size_t>(count);
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
      if (messages[i].msg_len < kEventPlace + sizeof(Event)) continue;
      Event event;
      std::memcpy(&event, texts[i].data() + kEventPlace, sizeof event);
      if (event.what == kFork) ++births;
      // An answer to somebody else's question means as much: births are told.
      if (event.what == kAnswer) mIsTold = true;
    }
  }
  return std::nullopt;
}

}  // namespace lurkwell
