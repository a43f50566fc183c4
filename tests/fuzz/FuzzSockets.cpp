// Any bytes as what the kernel's socket diagnostics answer: they are read within their bounds, and
// what they say can be accounted for.
#include <cstdint>
#include <span>
#include <vector>

#include "platform/linux/NetworkAccounts.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lurkwell;
  std::vector<TcpSocket> sockets;
  AddSockets(std::as_bytes(std::span(data, size)), sockets);
  std::vector<std::uint64_t> inodes;
  for (const auto& socket : sockets) inodes.push_back(socket.inode);
  NetworkAccounts accounts;
  NetworkAccount account;
  accounts.Take(sockets, 1000);
  const auto before = accounts.OfSockets(account, inodes);
  accounts.Take(sockets, 3000);
  const auto after = accounts.OfSockets(account, inodes);
  if (before.received != after.received || before.sent != after.sent) __builtin_trap();
  return 0;
}
