#include "platform/desktop/SessionBus.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string_view>
#include <thread>
#include <utility>

namespace lurkwell {
namespace {

/// It is not waited for; a sender that is not answered for stays unknown.
constexpr int kBusAnswers = 20'000;
/// Unique names are never given twice, so what is known stays true; only memory is bounded.
constexpr int kMostKnown = 256;
constexpr int kMostAsking = 8;

QDBusMessage BusMethod(const QString& method, const QString& argument) {
  auto message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                                QStringLiteral("/org/freedesktop/DBus"),
                                                QStringLiteral("org.freedesktop.DBus"), method);
  message << argument;
  return message;
}

}  // namespace

QDBusConnection ConnectToBus(const std::string& address, const QString& name) {
  if (!DoesBusAnswer(address)) return QDBusConnection(QStringLiteral("lurkwell-no-bus"));
  return QDBusConnection::connectToBus(QString::fromStdString(address), name);
}

ServiceOwner::ServiceOwner(const QDBusConnection& bus, const QString& service,
                           std::function<void()> changed)
    : mWatcher(service, bus, QDBusServiceWatcher::WatchForOwnerChange),
      mUsers(bus),
      mChanged(std::move(changed)) {
  connect(&mWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString&, const QString&, const QString& owner) {
            mHasHeard = true;
            SetOwner(owner);
          });
  if (bus.isConnected()) AskForOwner(bus, service);
}

void ServiceOwner::AskForOwner(const QDBusConnection& bus, const QString& service) {
  auto* watcher = new QDBusPendingCallWatcher(
      bus.asyncCall(BusMethod(QStringLiteral("GetNameOwner"), service), kBusAnswers), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    const QDBusPendingReply<QString> reply = *watcher;
    // What was heard meanwhile is newer.
    if (!mHasHeard && reply.isValid()) SetOwner(reply.value());
  });
}

void ServiceOwner::SetOwner(const QString& owner) {
  mOwner = owner;
  SetName({});
  if (!mOwner.isEmpty() && !mIsAsking) AskForUser();
}

/// One question at a time, however often the owner changes meanwhile.
void ServiceOwner::AskForUser() {
  mIsAsking = true;
  mUsers.Ask(mOwner, [this, asked = mOwner](bool isOurs) {
    mIsAsking = false;
    if (asked != mOwner) {
      if (!mOwner.isEmpty()) AskForUser();
    } else if (isOurs) {
      SetName(mOwner);
    }
  });
}

void ServiceOwner::SetName(const QString& name) {
  if (std::exchange(mName, name) != name && mChanged) mChanged();
}

bool BusUsers::Ask(const QString& connection, std::function<void(bool)> done) {
  if (const auto known = mKnown.constFind(connection); known != mKnown.constEnd()) {
    done(*known);
    return true;
  }
  if (mAsking >= kMostAsking) return false;
  ++mAsking;
  const auto call = BusMethod(QStringLiteral("GetConnectionUnixUser"), connection);
  auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(call, kBusAnswers), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this,
          [this, watcher, connection, done = std::move(done)] {
            watcher->deleteLater();
            --mAsking;
            const QDBusPendingReply<uint> reply = *watcher;
            const bool isOurs = reply.isValid() && reply.value() == ::geteuid();
            if (mKnown.size() >= kMostKnown) mKnown.clear();
            // No answer says nothing about the next time.
            if (reply.isValid()) mKnown.insert(connection, isOurs);
            done(isOurs);
          });
  return true;
}

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
