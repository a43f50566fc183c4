#pragma once

#include <poll.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/FileDescriptor.h"
#include "platform/ProcessIdentity.h"
#include "platform/ProcessManager.h"
#include "platform/desktop/DesktopEntries.h"
#include "platform/desktop/ProcFolder.h"

namespace lurkwell {

/// One application as the desktop knows it.
struct KnownApplication {
  ProcessSerialNumber psn;
  ProcessIdentity process;
  /// Readable once it has ended; none where that has to be looked for.
  FileDescriptor end;
  ApplicationInformation information;
  /// Null when there is none.
  DesktopEntries::Entry entry;
  /// The entry's id as the session manager says; "" when it does not.
  std::string scopeEntryId;
  /// What its first ordinary window says; kept when its windows have gone.
  std::string windowClass;
  std::string instance;
  std::string title;
  /// Its present windows, those that stand for it or are dialogs.
  std::vector<xcb_window_t> windows;
  std::vector<xcb_window_t> iconified;
  /// What of these has been hidden by us.
  std::vector<xcb_window_t> hidden;
  /// Another number whenever its windows' icons may be others.
  std::uint64_t iconRevision = 0;
};

/// The applications, those that were seen first come first. A process that is in stays until it has
/// ended. Main thread only.
class KnownApplications {
 public:
  /// Adds a process, which must not be in.
  KnownApplication& Add(const ProcessIdentity& process, const ProcFolder& processes);

  /// Takes out those that have ended and been reaped. One call to the kernel for all that have not.
  void DropEnded(const ProcFolder& processes);

  /// Null when there is none. Valid until the next one is added or dropped.
  KnownApplication* Find(ProcessSerialNumber psn);
  KnownApplication* FindPid(std::int32_t pid);
  /// The one after `previous`, the first one after none.
  const KnownApplication* After(ProcessSerialNumber previous) const;

  const std::vector<std::unique_ptr<KnownApplication>>& All() const { return mOrder; }

 private:
  std::vector<std::unique_ptr<KnownApplication>> mOrder;
  std::unordered_map<std::int32_t, std::size_t> mPlaces;
  /// What the kernel is asked about them, at the same places.
  std::vector<pollfd> mEnds;
};

}  // namespace lurkwell
