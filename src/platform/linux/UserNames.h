#pragma once

#include <sys/types.h>

#include <memory>
#include <optional>
#include <string>

namespace lurkwell {

/// A user's name, or his number when he has none. May take as long as a directory in the network
/// does. Any thread.
std::string NameOfUser(::uid_t user);

/// The names of users, each looked up once, on a thread of its own. Main thread.
class UserNames {
 public:
  UserNames();
  /// Waits for no look-up that hangs.
  ~UserNames();
  UserNames(const UserNames&) = delete;
  UserNames& operator=(const UserNames&) = delete;

  /// Nothing while it is being looked up. The first ones of a pass are waited for, 20 ms at most.
  std::optional<std::string> NameOf(::uid_t user);

  /// A pass begins.
  void BeginPass() { mHasWaited = false; }

 private:
  struct Mailbox;

  const std::shared_ptr<Mailbox> mMailbox;
  bool mHasWaited = false;
};

}  // namespace lurkwell
