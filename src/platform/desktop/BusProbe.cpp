#include "platform/desktop/BusProbe.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string_view>
#include <thread>

namespace lurkwell {
namespace {

class Socket {
 public:
  Socket() : mDescriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {}
  ~Socket() {
    if (mDescriptor >= 0) ::close(mDescriptor);
  }
  Socket(const Socket&) = delete;
  Socket& operator=(const Socket&) = delete;
  int Get() const { return mDescriptor; }

 private:
  int mDescriptor;
};

std::string UnescapedAddress(const std::string& text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned value = 0;
    if (text[i] == '%' && std::sscanf(text.c_str() + i + 1, "%2x", &value) == 1) {
      plain += static_cast<char>(value);
      i += 2;
    } else {
      plain += text[i];
    }
  }
  return plain;
}

/// The value of "KEY=VALUE" among the parts of "unix:KEY=VALUE,KEY=VALUE".
std::optional<std::string> ValueOf(const std::string& address, const std::string& key) {
  std::size_t at = std::min(address.find(':'), address.size() - 1) + 1;
  while (at < address.size()) {
    const auto end = std::min(address.find(',', at), address.size());
    if (address.compare(at, key.size() + 1, key + '=') == 0)
      return UnescapedAddress(address.substr(at + key.size() + 1, end - at - key.size() - 1));
    at = end + 1;
  }
  return {};
}

using SteadyClock = std::chrono::steady_clock;

/// Waits for what `events` say, over interruptions; false when it is too late.
bool WaitFor(int descriptor, short events, SteadyClock::time_point end) {
  pollfd wait{descriptor, events, 0};
  for (;;) {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(end - SteadyClock::now()).count();
    const int ready = ::poll(&wait, 1, static_cast<int>(std::max<std::int64_t>(left, 0)));
    if (ready >= 0 || errno != EINTR) return ready > 0;
  }
}

/// A bus with a full queue of callers is asked again until it is too late.
bool Connect(int descriptor, const std::string& name, bool isAbstract,
             SteadyClock::time_point end) {
  constexpr std::chrono::milliseconds kPause{20};
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  const std::size_t begin = isAbstract ? 1 : 0;
  if (name.size() + begin >= sizeof place.sun_path) return false;
  std::memcpy(place.sun_path + begin, name.data(), name.size());
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + begin + name.size());
  while (::connect(descriptor, reinterpret_cast<const sockaddr*>(&place), length) != 0) {
    if ((errno != EAGAIN && errno != EINTR) || SteadyClock::now() >= end) return false;
    std::this_thread::sleep_for(kPause);
  }
  return true;
}

/// The beginning of every conversation with a bus; whichever answer comes is one.
bool Converse(int descriptor, SteadyClock::time_point end) {
  constexpr std::string_view kHello("\0AUTH\r\n", 7);
  // The first bytes on a connection never have to wait for room.
  if (::send(descriptor, kHello.data(), kHello.size(), MSG_NOSIGNAL) < 0) return false;
  char answer = 0;
  return WaitFor(descriptor, POLLIN, end) && ::recv(descriptor, &answer, 1, 0) == 1;
}

enum class Answer { kYes, kRefused, kSilent };

Answer Ask(const std::string& address, SteadyClock::time_point end) {
  if (!address.starts_with("unix:")) return Answer::kYes;
  const auto path = ValueOf(address, "path");
  const auto abstractName = ValueOf(address, "abstract");
  if (!path && !abstractName) return Answer::kYes;
  const Socket socket;
  if (!Connect(socket.Get(), path.value_or(abstractName.value_or("")), !path, end))
    return SteadyClock::now() < end ? Answer::kRefused : Answer::kSilent;
  return Converse(socket.Get(), end) ? Answer::kYes : Answer::kSilent;
}

}  // namespace

bool DoesBusAnswer(const std::string& addresses, std::chrono::milliseconds longest) {
  const auto end = SteadyClock::now() + longest;
  for (std::size_t at = 0; at < addresses.size();) {
    const auto next = std::min(addresses.find(';', at), addresses.size());
    const auto address = addresses.substr(at, next - at);
    // The library would wait for one that is silent, whatever stands behind it.
    if (const auto answer = address.empty() ? Answer::kRefused : Ask(address, end);
        answer != Answer::kRefused)
      return answer == Answer::kYes;
    at = next + 1;
  }
  return false;
}

}  // namespace lurkwell
