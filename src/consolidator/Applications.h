#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>

#include "consolidator/Region.h"
#include "platform/IconServices.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// The pid of an application: that of its record, else its kernel pid, else a made-up one of -2 or
/// below, which the same serial number keeps. Only the first 127 made-up pids are kept; an
/// application beyond them gets a fresh one at every call. Main thread, or inside the
/// consolidator's region.
std::int32_t PSN2PID(ProcessSerialNumber psn);

/// The serial number of a process, {0, 0} when it is no application. Same threads.
void PID2PSN(std::int32_t pid, ProcessSerialNumber* psn);

// ---- For the consolidator itself ----------------------------------------------------------------

/// Made-up pids for applications without a kernel pid, counting down from -2. None is handed out
/// that a record has.
class SyntheticPidTable {
 public:
  static constexpr std::int32_t kFirst = -2;

  explicit SyntheticPidTable(std::int32_t first = kFirst) : gCurrentFakePid(first) {}
  std::optional<std::int32_t> Find(ProcessSerialNumber psn) const;
  std::optional<ProcessSerialNumber> Find(std::int32_t pid) const;
  std::int32_t HandOut(ProcessSerialNumber psn) LURKWELL_IN_REGION;
  void Clear() { *this = SyntheticPidTable(); }

 private:
  struct Slot {
    ProcessSerialNumber psn;
    std::int32_t pid = 0;
    bool inUse = false;
  };

  static std::int32_t After(std::int32_t pid);

  std::array<Slot, 128> mSlots{};
  /// Never passes 127: the last slot is written again and again and never found.
  std::size_t mCount = 0;
  std::int32_t gCurrentFakePid;
};

/// The icons of applications, as square pictures `size` pixels wide. Main thread. The picture is
/// the caller's to keep; null stands for none: no application, gone, or without an icon.

/// The icon of the application itself.
std::shared_ptr<const Picture> GetApplicationIconRef(ProcessSerialNumber psn, int size);

/// The icon of the application that a process is; null for every other process. The two have one
/// source on this desktop: the first is for drawing into windows of one's own, the second for
/// tables.
std::shared_ptr<const Picture> GetProcessIcon(std::int32_t pid, int size);
std::shared_ptr<const Picture> ProcessIconImage(std::int32_t pid, int size);

}  // namespace lurkwell
