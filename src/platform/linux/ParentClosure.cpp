#include "platform/linux/ParentClosure.h"

#include <bit>
#include <cstddef>
#include <limits>
#include <vector>

namespace lurkwell {
namespace {

constexpr auto kNone = std::numeric_limits<std::size_t>::max();

/// Where each pid stands: a table of twice the entries at least, searched onwards from a place that
/// the pid gives.
class PidIndex {
 public:
  explicit PidIndex(std::span<const ProcessTableEntry> entries)
      : mEntries(entries), mPlaces(std::bit_ceil(entries.size() * 2 + 1), kNone) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
      std::size_t& place = Place(entries[i].pid);
      if (place == kNone) place = i;
    }
  }

  std::size_t Find(std::int32_t pid) { return Place(pid); }

 private:
  std::size_t& Place(std::int32_t pid) {
    const std::size_t mask = mPlaces.size() - 1;
    // An odd factor spreads pids that were picked to fall together.
    const auto spread = static_cast<std::uint32_t>(pid) * 0x9E3779B1u;
    std::size_t at = (spread ^ (spread >> 15)) & mask;
    while (mPlaces[at] != kNone && mEntries[mPlaces[at]].pid != pid) at = (at + 1) & mask;
    return mPlaces[at];
  }

  std::span<const ProcessTableEntry> mEntries;
  std::vector<std::size_t> mPlaces;
};

class Closure {
 public:
  explicit Closure(std::span<ProcessTableEntry> entries)
      : mEntries(entries), mParents(entries.size(), kNone), mDepths(entries.size(), kUnknown) {
    PidIndex index(entries);
    for (std::size_t i = 0; i < entries.size(); ++i) FindParent(index, i);
  }

  /// Gives every entry its depth below its top, going up from each until something known comes.
  void Run() {
    std::vector<std::size_t> path;
    for (std::size_t i = 0; i < mEntries.size(); ++i) {
      std::size_t at = i;
      while (at != kNone && mDepths[at] == kUnknown) {
        mDepths[at] = kOnPath;
        path.push_back(at);
        at = mParents[at];
      }
      // A parent that lies on this very path would close a loop.
      if (at != kNone && mDepths[at] == kOnPath) Cut(path.back());
      for (; !path.empty(); path.pop_back()) SetDepth(path.back());
    }
  }

 private:
  static constexpr int kUnknown = -1;
  static constexpr int kOnPath = -2;

  void FindParent(PidIndex& index, std::size_t child) {
    const ProcessTableEntry& entry = mEntries[child];
    if (entry.pid == 0 && entry.parentPid == 0) return;
    const std::size_t parent = entry.parentPid < 0 ? kNone : index.Find(entry.parentPid);
    if (parent == kNone || mEntries[parent].startStamp > entry.startStamp) {
      Cut(child);
    } else {
      mParents[child] = parent;
    }
  }

  void SetDepth(std::size_t child) {
    const std::size_t parent = mParents[child];
    if (parent != kNone && mDepths[parent] >= kDeepestAncestry) Cut(child);
    mDepths[child] = mParents[child] == kNone ? 0 : mDepths[parent] + 1;
  }

  void Cut(std::size_t child) {
    mParents[child] = kNone;
    mEntries[child].parentPid = kInvalidPID;
  }

  std::span<ProcessTableEntry> mEntries;
  std::vector<std::size_t> mParents;
  std::vector<int> mDepths;
};

}  // namespace

void CloseParents(std::span<ProcessTableEntry> entries) {
  Closure(entries).Run();
}

}  // namespace lurkwell
