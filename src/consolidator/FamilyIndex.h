#pragma once

#include <cstdint>
#include <vector>

#include "consolidator/RecordStore.h"

namespace lurkwell {

/// Who is whose child. Made when it is asked for; while it is shared, as during a heartbeat's turn
/// of the clients, when no record changes, once for all who ask. Guarded by the consolidator's
/// region.
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
