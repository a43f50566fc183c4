#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
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

/// What connections have moved, as far as it was seen.
struct NetworkUse {
  /// Whether there ever was a connection: without one nothing is known of what was moved.
  bool isCounted = false;
  std::uint64_t received = 0;
  std::uint64_t sent = 0;
  std::int64_t connections = 0;
  /// In order, each once.
  std::vector<std::uint16_t> listeningPorts;
};

/// What one process, or the processes of one control group, have moved. A connection counts from
/// its beginning when it was there at the first look, or is younger than the last one; one that was
/// handed over by another process counts from then on. What has ended keeps its last figures.
class NetworkAccount {
 public:
  /// `firstSeen` tells, by cookie, when a dump first had each socket. Milliseconds.
  NetworkUse Update(std::span<const TcpSocket* const> sockets,
                    const std::unordered_map<std::uint64_t, std::int64_t>& firstSeen,
                    std::int64_t when);

 private:
  struct Moved {
    std::uint64_t received = 0;
    std::uint64_t sent = 0;
  };

  std::optional<std::int64_t> mLastLook;
  /// Of the connections that are held, by cookie.
  std::unordered_map<std::uint64_t, Moved> mHeld;
  NetworkUse mUse;
};

/// The connections of this network namespace as of the last dump, and whose they are. One thread at
/// a time.
class NetworkAccounts {
 public:
  /// A dump of all sockets. `when` is in milliseconds, and grows.
  void Take(std::vector<TcpSocket> sockets, std::int64_t when);
  std::optional<std::int64_t> LastTaken() const { return mWhen; }
  void Forget();

  /// Of the process that has descriptors of these sockets; each counts once.
  NetworkUse OfSockets(NetworkAccount& account, std::span<const std::uint64_t> inodes) const;

  /// Of all sockets that were made in a control group.
  NetworkUse OfGroup(NetworkAccount& account, std::uint64_t group) const;

 private:
  std::optional<std::int64_t> mWhen;
  std::vector<TcpSocket> mSockets;
  std::unordered_map<std::uint64_t, const TcpSocket*> mByInode;
  std::unordered_map<std::uint64_t, std::vector<const TcpSocket*>> mByGroup;
  /// By cookie.
  std::unordered_map<std::uint64_t, std::int64_t> mFirstSeen;
};

}  // namespace lurkwell
