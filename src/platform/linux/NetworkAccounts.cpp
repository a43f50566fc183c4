#include "platform/linux/NetworkAccounts.h"

#include <algorithm>
#include <utility>

namespace lurkwell {
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
    const auto [place, isNew] = held.try_emplace(socket->cookie, socket->received, socket->sent);
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
  std::ranges::sort(mUse.listeningPorts);
  const auto doubled = std::ranges::unique(mUse.listeningPorts);
  mUse.listeningPorts.erase(doubled.begin(), doubled.end());
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
