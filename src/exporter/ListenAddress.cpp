#include "exporter/ListenAddress.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>

#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

constexpr int kBacklog = 64;

std::optional<std::uint16_t> ReadPort(std::string_view text) {
  unsigned port = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
  if (error != std::errc() || end != text.data() + text.size() || port > 65'535)
    return std::nullopt;
  return static_cast<std::uint16_t>(port);
}

bool IsLoopback(const ::sockaddr_storage& storage) {
  if (storage.ss_family == AF_INET) {
    ::sockaddr_in address{};
    std::memcpy(&address, &storage, sizeof address);
    return ntohl(address.sin_addr.s_addr) >> 24 == IN_LOOPBACKNET;
  }
  ::sockaddr_in6 address{};
  std::memcpy(&address, &storage, sizeof address);
  constexpr std::array<std::uint8_t, 13> kMappedLoopback = {0, 0, 0, 0,    0,    0,  0,
                                                            0, 0, 0, 0xFF, 0xFF, 127};
  return std::memcmp(&address.sin6_addr, &::in6addr_loopback, sizeof(::in6_addr)) == 0 ||
         std::memcmp(&address.sin6_addr, kMappedLoopback.data(), kMappedLoopback.size()) == 0;
}

}  // namespace

std::string ListenAddress::Text() const {
  std::array<char, NI_MAXHOST> host{};
  std::array<char, NI_MAXSERV> port{};
  ::getnameinfo(std::bit_cast<const ::sockaddr*>(&storage), length, host.data(), host.size(),
                port.data(), port.size(), NI_NUMERICHOST | NI_NUMERICSERV);
  const std::string text(host.data());
  return (text.find(':') != std::string::npos ? '[' + text + ']' : text) + ':' + port.data();
}

std::variant<ListenAddress, ListenError> ReadListenAddress(std::string_view text) {
  const auto shown = "'" + PrintableText(text) + "'";
  const auto colon = text.rfind(':');
  const auto port = colon != std::string_view::npos ? ReadPort(text.substr(colon + 1))
                                                    : std::optional<std::uint16_t>();
  if (!port)
    return ListenError{shown +
                       " is no address: HOST:PORT is, such as 127.0.0.1:19256, with a "
                       "port up to 65535"};
  std::string host(text.substr(0, colon));
  const bool isInBrackets = host.starts_with('[') && host.ends_with(']');
  if (isInBrackets) host = host.substr(1, host.size() - 2);
  if (!isInBrackets && host.find(':') != std::string::npos)
    return ListenError{shown +
                       " is no address: a number of version 6 stands in brackets, such "
                       "as [::1]:19256"};
  if (host == "localhost") host = "127.0.0.1";
  ::addrinfo hints{};
  hints.ai_family = isInBrackets ? AF_INET6 : host.empty() ? AF_UNSPEC : AF_INET;
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = AI_PASSIVE | AI_NUMERICHOST | AI_NUMERICSERV;
  ::addrinfo* found = nullptr;
  const auto portText = std::to_string(*port);
  const int error =
      ::getaddrinfo(host.empty() ? "::" : host.c_str(), portText.c_str(), &hints, &found);
  const std::unique_ptr<::addrinfo, decltype(&::freeaddrinfo)> owner(found, &::freeaddrinfo);
  if (error != 0 || found == nullptr)
    return ListenError{shown + " is no address: the host is a number or localhost"};
  ListenAddress address;
  std::memcpy(&address.storage, found->ai_addr, found->ai_addrlen);
  address.length = found->ai_addrlen;
  address.isLoopback = IsLoopback(address.storage);
  return address;
}

std::variant<FileDescriptor, ListenError> Listen(const ListenAddress& address) {
  const auto failed = [&] {
    return ListenError{"cannot listen at " + address.Text() + ": " + std::strerror(errno)};
  };
  FileDescriptor socket(
      ::socket(address.storage.ss_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  if (!socket.IsOpen()) return failed();
  const int yes = 1;
  const int no = 0;
  ::setsockopt(socket.Get(), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
  // The one for all interfaces is for those of version 4, too.
  if (address.storage.ss_family == AF_INET6)
    ::setsockopt(socket.Get(), IPPROTO_IPV6, IPV6_V6ONLY, &no, sizeof no);
  if (::bind(socket.Get(), std::bit_cast<const ::sockaddr*>(&address.storage), address.length) !=
          0 ||
      ::listen(socket.Get(), kBacklog) != 0)
    return failed();
  return socket;
}

}  // namespace lurkwell
