#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/ControlGroupPath.h"
#include "platform/ProcessIdentity.h"
#include "platform/desktop/ProcFolder.h"

namespace lurkwell {

/// The applications of a session as the session manager keeps them. Files are read once for each
/// new process, and again for a while because a process is moved to its group after its start; of
/// the others a few per second, in turn, so that none is wrong for ever. Nothing is listed while
/// no process was born. Other users' groups and processes are no applications of this session.
/// Main thread only.
class ApplicationScopes {
 public:
  struct Application {
    /// The one of the group that started first.
    ProcessIdentity process;
    ApplicationScope scope;
  };

  /// `user` is whose session it is.
  ApplicationScopes(const ProcFolder& processes, std::uint32_t user)
      : mFolder(processes), mUser(user) {}

  /// The present applications, first started first; one that has ended since a process was born
  /// may be among them.
  const std::vector<Application>& Refresh();

  /// The process of an application has ended: the next refresh lists.
  void NoteEnd(std::int32_t pid);

  /// The path of the group of a process as of the last refresh; "" for none.
  std::string PathOfScope(std::int32_t pid) const;

 private:
  using Clock = std::chrono::steady_clock;
  struct Process {
    ProcessIdentity identity;
    std::optional<ApplicationScope> scope;
    Clock::time_point settled;
  };

  void List(Clock::time_point now);
  void LookAtSomeKnown();
  void ReadThoseThatSettle(Clock::time_point now);
  void Read(Process& process, std::int32_t pid);
  std::optional<ApplicationScope> ScopeOf(std::int32_t pid) const;
  std::vector<Application> FirstOfEach() const;

  const ProcFolder& mFolder;
  std::uint32_t mUser;
  bool mHasLooked = false;
  std::optional<std::int32_t> mLastPid;
  Clock::time_point mNextLook;
  std::unordered_map<std::int32_t, Process> mProcesses;
  /// Those that are to be read with every refresh.
  std::vector<std::int32_t> mSettling;
  /// FirstOfEach of the processes as they were before mHaveChanged was set.
  std::vector<Application> mApplications;
  bool mHaveChanged = false;
  /// What is looked at next, from the back.
  std::vector<std::int32_t> mTurn;
};

}  // namespace lurkwell
