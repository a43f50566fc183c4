#include "platform/desktop/BusProbe.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <optional>

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

std::string Unescaped(const std::string& text) {
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
      return Unescaped(address.substr(at + key.size() + 1, end - at - key.size() - 1));
    at = end + 1;
  }
  return {};
}

bool Connect(int descriptor, const std::string& name, bool isAbstract) {
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  const std::size_t begin = isAbstract ? 1 : 0;
  if (name.size() + begin >= sizeof place.sun_path) return false;
  std::memcpy(place.sun_path + begin, name.data(), name.size());
  const auto length = offsetof(sockaddr_un, sun_path) + begin + name.size();
  return ::connect(descriptor, reinterpret_cast<const sockaddr*>(&place),
                   static_cast<socklen_t>(length)) == 0;
}

}  // namespace

bool DoesBusAnswer(const std::string& address, std::chrono::milliseconds longest) {
  const std::string first = address.substr(0, address.find(';'));
  if (first.empty()) return false;
  if (!first.starts_with("unix:")) return true;
  const auto path = ValueOf(first, "path");
  const auto abstractName = ValueOf(first, "abstract");
  if (!path && !abstractName) return true;
  const Socket socket;
  if (!Connect(socket.Get(), path.value_or(abstractName.value_or("")), !path)) return false;
  // The beginning of every conversation with a bus; whichever answer comes is one.
  constexpr char kHello[] = "\0AUTH\r\n";
  if (::send(socket.Get(), kHello, sizeof kHello - 1, MSG_NOSIGNAL) < 0) return false;
  pollfd wait{socket.Get(), POLLIN, 0};
  char answer = 0;
  return ::poll(&wait, 1, static_cast<int>(longest.count())) > 0 &&
         ::recv(socket.Get(), &answer, 1, 0) == 1;
}

}  // namespace lurkwell
