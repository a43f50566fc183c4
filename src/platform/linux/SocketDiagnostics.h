#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace lurkwell {

/// A TCP socket as the kernel's socket diagnostics tell of it, to everybody.
struct TcpSocket {
  /// Never used twice while the machine runs.
  std::uint64_t cookie = 0;
  /// Of its descriptors; 0 when no process has it open any more.
  std::uint64_t inode = 0;
  /// The control group that made it, by the number of its folder; 0 where the kernel does not tell.
  std::uint64_t group = 0;
  /// Bytes that have come in order, and those that the other end has acknowledged.
  std::uint64_t received = 0;
  std::uint64_t sent = 0;
  /// Its own.
  std::uint16_t port = 0;
  bool isListening = false;
};

/// All of this network namespace; nothing, and errno, when the kernel does not tell, or has more
/// than kMostSockets. Any thread; waits a second at most for the kernel.
std::optional<std::vector<TcpSocket>> ReadTcpSockets();

inline constexpr std::size_t kMostSockets = 65'536;

/// What follows in the kernel's answer.
enum class SocketDump { kGoesOn, kIsOver, kFailed };

/// Adds the sockets of one piece of the answer. Pure; bounds are kept whatever the bytes are.
SocketDump AddSockets(std::span<const std::byte> answer, std::vector<TcpSocket>& sockets);

}  // namespace lurkwell
