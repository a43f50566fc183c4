#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "platform/Clock.h"
#include "platform/IconServices.h"
#include "platform/ThreadSafety.h"

namespace lurkwell {

/// One process of the animated view. Positions lie in the unit square, y upwards: a coordinate v is
/// drawn at 2 * (v - 0.5).
struct QuintessentialInformationProcessInfo {
  static constexpr std::size_t kNameSize = 64;

  std::int32_t pid = -1;
  std::int32_t parentPid = -1;  ///< -1 until known
  double x = 0.5;
  double y = 0.5;
  /// The charge in the force law and the factor of the icon's size; eases towards targetWeight.
  double weight = 0.4;
  double targetWeight = 0.6;
  /// CPU time at the previous reading.
  std::optional<TimeValue> lastActive;
  /// Where the step under way takes it; 0 between steps.
  double nextX = -1.0;
  double nextY = -1.0;
  /// It has been given its place. Only then does it push others.
  bool locationInitialized = false;
  char name[kNameSize] = "";

  // ---- For the drawing alone

  /// The textures show these pictures. Cleared here, set by the drawing.
  bool texturesReady = false;
  std::shared_ptr<const Picture> iconImage;  ///< null draws no icon
  std::uint32_t iconTexture = 0;             ///< 0 for none
  bool usesDefaultIcon = false;              ///< iconImage is everybody's "qvdefault"
  std::shared_ptr<const Picture> labelImage;
  std::uint32_t labelTexture = 0;
  /// Where the label was last drawn, in whole pixels; the start makes the first frame find out.
  float labelX = 2.0F;
  float labelY = 2.0F;
  /// In a crowd a label that is there stays before another takes its place.
  bool labelIsShown = true;
};

/// Records in a fixed order, found by pid without a walk. Records keep their addresses, also when
/// they move from one list to another. A pid may occur more than once.
class QipiList {
 public:
  using Info = QuintessentialInformationProcessInfo;
  using iterator = std::list<Info>::iterator;
  using const_iterator = std::list<Info>::const_iterator;

  iterator begin() { return mRecords.begin(); }
  iterator end() { return mRecords.end(); }
  const_iterator begin() const { return mRecords.begin(); }
  const_iterator end() const { return mRecords.end(); }
  bool empty() const { return mRecords.empty(); }
  std::size_t size() const { return mRecords.size(); }
  Info& front() { return mRecords.front(); }

  Info& PushFront(Info&& info);
  Info& PushBack(Info&& info);
  /// Moves one record of `from` to the end of this list; gives the record of `from` behind it.
  iterator Take(QipiList& from, iterator record);
  void Clear();

  /// A record of that pid, or null.
  Info* Find(std::int32_t pid);
  const Info* Find(std::int32_t pid) const;

  /// Code that may look into the list may call `visit`, which can require the list's lock.
  template <typename Visit>
  void ForEach(std::int32_t pid, Visit visit) LURKWELL_UNCHECKED_LOCKING {
    auto [first, last] = mByPid.equal_range(pid);
    for (; first != last; ++first) visit(*first->second);
  }

  /// Destroys the records of that pid, each after `cleanUp(record)`.
  template <typename CleanUp>
  void Remove(std::int32_t pid, CleanUp cleanUp) {
    auto [first, last] = mByPid.equal_range(pid);
    for (; first != last; first = mByPid.erase(first)) {
      cleanUp(*first->second);
      mRecords.erase(first->second);
    }
  }

 private:
  std::list<Info> mRecords;
  std::unordered_multimap<std::int32_t, iterator> mByPid;
};

}  // namespace lurkwell
