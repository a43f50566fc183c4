#include "platform/linux/UserNames.h"

#include <pwd.h>

#include <array>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <map>
#include <utility>

#include "platform/Mutex.h"
#include "platform/QuietThread.h"

namespace lurkwell {
namespace {

constexpr auto kPatienceWithNames = std::chrono::milliseconds(20);

}  // namespace

std::string NameOfUser(::uid_t user) {
  std::array<char, 4096> room{};
  ::passwd entry{};
  ::passwd* found = nullptr;
  if (::getpwuid_r(user, &entry, room.data(), room.size(), &found) != 0 || found == nullptr)
    return std::to_string(user);
  return found->pw_name;
}

/// What the main thread and the one that looks up share; the last of them frees it.
struct UserNames::Mailbox {
  Mutex mutex;
  std::condition_variable news;
  /// Without a name while it is asked for.
  std::map<::uid_t, std::optional<std::string>> names LURKWELL_GUARDED_BY(mutex);
  std::deque<::uid_t> questions LURKWELL_GUARDED_BY(mutex);
  bool isServed LURKWELL_GUARDED_BY(mutex) = false;

  /// Until there is no question left.
  void Serve() {
    MutexLock lock(mutex);
    while (!questions.empty()) {
      const auto user = questions.front();
      lock.Unlock();
      auto name = NameOfUser(user);
      lock.Lock();
      names[user] = std::move(name);
      if (!questions.empty()) questions.pop_front();
    }
    isServed = false;
    news.notify_all();
  }
};

UserNames::UserNames() : mMailbox(std::make_shared<Mailbox>()) {}

UserNames::~UserNames() {
  const MutexLock lock(mMailbox->mutex);
  mMailbox->questions.clear();
}

std::optional<std::string> UserNames::NameOf(::uid_t user) {
  auto& box = *mMailbox;
  MutexLock lock(box.mutex);
  const auto [known, isNew] = box.names.try_emplace(user);
  if (known->second) return known->second;
  if (isNew) box.questions.push_back(user);
  if (!box.isServed) {
    auto server = StartWithoutSignals([box = mMailbox] { box->Serve(); });
    box.isServed = server.joinable();
    if (server.joinable()) server.detach();
  }
  const bool isAnswered =
      !mHasWaited && lock.WaitFor(box.news, kPatienceWithNames,
                                  [&]() LURKWELL_REQUIRES(box.mutex) { return !box.isServed; });
  mHasWaited |= !isAnswered;
  return known->second;
}

}  // namespace lurkwell
