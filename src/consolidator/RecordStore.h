#pragma once

#include <array>
#include <cstdint>
#include <forward_list>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "consolidator/MetaProcessInformation.h"

namespace lurkwell {

struct SerialNumberHash {
  std::size_t operator()(const ProcessSerialNumber& psn) const {
    return std::hash<std::uint64_t>{}(std::uint64_t{psn.high} << 32 | psn.low);
  }
};

/// All records, newest first, with an index by pid and one by serial number, so that no look-up
/// walks the list, and with marks that say whether a walk over all would find anything to announce.
/// Guarded by the consolidator's region.
class RecordStore {
 public:
  using List = std::forward_list<MetaProcessInformation>;

  List& Records() { return mRecords; }
  bool Empty() const { return mRecords.empty(); }
  std::size_t Size() const { return mByPid.size(); }
  /// How many of them are of applications without a kernel pid.
  std::size_t CountWithoutKernelPid() const { return mWithoutKernelPid; }
  /// The pid of the newest record, kInvalidPID without any.
  std::int32_t HeadPid() const;

  /// The record of `pid`, or null.
  MetaProcessInformation* GetExistingPIDInformation(std::int32_t pid);

  /// The record of `pid`; a missing one is made, valid and not changed, in front of all others and,
  /// for a kernel pid, with its per-pid block. The invalid pid is a fatal assertion.
  MetaProcessInformation& GetPIDInformation(std::int32_t pid);

  /// The record that carries `psn`, or null. {0, 0} is carried by none.
  MetaProcessInformation* FindBySerialNumber(ProcessSerialNumber psn);
  void SetSerialNumber(MetaProcessInformation& record, ProcessSerialNumber psn);

  /// Those that carry a serial number, in no order.
  const std::unordered_set<MetaProcessInformation*>& WithSerialNumber() const {
    return mWithSerialNumber;
  }

  /// Clients no longer see the record, and hear of its end in this heartbeat.
  void Invalidate(MetaProcessInformation& record);
  bool AreAnyInvalid() const { return mInvalid > 0; }

  /// Clients are told in this heartbeat that the record is not what it was.
  void NoteAppreciableChange(MetaProcessInformation& record) {
    record.changedAppreciably = mHaveAnyChanged = true;
  }
  bool HaveAnyChanged() const { return mHaveAnyChanged; }
  void ChangesAreAnnounced() { mHaveAnyChanged = false; }

  /// Deletes the record after `position`; gives what then follows `position`.
  List::iterator EraseAfter(List::iterator position);

  void Clear();

 private:
  List mRecords;
  std::size_t mWithoutKernelPid = 0;
  std::size_t mInvalid = 0;
  bool mHaveAnyChanged = false;
  std::unordered_map<std::int32_t, MetaProcessInformation*> mByPid;
  std::unordered_map<ProcessSerialNumber, MetaProcessInformation*, SerialNumberHash>
      mBySerialNumber;
  std::unordered_set<MetaProcessInformation*> mWithSerialNumber;
  /// The record of the last look-up: reports come in runs for one pid.
  MetaProcessInformation* mLastFound = nullptr;
};

/// Made-up pids for applications without a kernel pid, counting down from -2. None is handed out
/// that a record has. Guarded by the consolidator's region.
class SyntheticPidTable {
 public:
  static constexpr std::int32_t kFirst = -2;

  explicit SyntheticPidTable(std::int32_t first = kFirst) : gCurrentFakePid(first) {}
  std::optional<std::int32_t> Find(ProcessSerialNumber psn) const;
  std::optional<ProcessSerialNumber> Find(std::int32_t pid) const;
  std::int32_t HandOut(ProcessSerialNumber psn, RecordStore& records);
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

/// Which are whose children. Made when it is asked for; while it is shared, as during a heartbeat's
/// turn of the clients, when no record changes, once for all questions. Guarded by the
/// consolidator's region.
class FamilyIndex {
 public:
  /// Whether it may be kept from one question to the next. Either way it is made anew for the next.
  void Share(bool share) {
    mIsShared = share;
    mIsMade = false;
  }

  /// The valid processes of which `ancestor` is an ancestor, newest record first. The cost is that
  /// of the family, not of all records.
  std::vector<std::int32_t> Descendants(RecordStore& records, std::int32_t ancestor);

 private:
  struct Child {
    std::int32_t parent;
    std::int32_t pid;
    /// The place of its record.
    std::uint32_t place;
    bool valid;
  };

  void Make(RecordStore& records);

  bool mIsShared = false;
  bool mIsMade = false;
  /// By parent.
  std::vector<Child> mChildren;
  /// By place; set only while a question is answered.
  std::vector<bool> mIsTaken;
};

/// The parent of a known process, kInvalidPID when it has none that is another process.
std::int32_t ParentOf(const MetaProcessInformation& record);

}  // namespace lurkwell
