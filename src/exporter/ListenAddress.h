#pragma once

#include <sys/socket.h>

#include <string>
#include <string_view>
#include <variant>

#include "platform/FileDescriptor.h"

namespace lurkwell {

/// Where to listen.
struct ListenAddress {
  ::sockaddr_storage storage{};
  ::socklen_t length = 0;
  /// Nobody but this machine can reach it.
  bool isLoopback = false;

  /// As a URL has it, with the port.
  std::string Text() const;
};

/// What is wrong, in a sentence.
struct ListenError {
  std::string words;
};

/// "HOST:PORT": a number of version 4, one of version 6 in brackets, "localhost", or nothing for
/// all interfaces. Asks no name server. Pure.
std::variant<ListenAddress, ListenError> ReadListenAddress(std::string_view text);

/// A socket that listens there.
std::variant<FileDescriptor, ListenError> Listen(const ListenAddress& address);

}  // namespace lurkwell
