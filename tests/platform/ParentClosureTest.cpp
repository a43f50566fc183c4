#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

#include "platform/linux/ParentClosure.h"

namespace lurkwell {
namespace {

ProcessTableEntry Entry(std::int32_t pid, std::int32_t parent, std::uint64_t stamp) {
  ProcessTableEntry entry;
  entry.pid = pid;
  entry.parentPid = parent;
  entry.startStamp = stamp;
  return entry;
}

/// Steps from an entry to its top by looking parents up by pid; -1 when that does not end or meets
/// a parent that is not there.
int StepsToTop(const std::map<std::int32_t, const ProcessTableEntry*>& byPid,
               const ProcessTableEntry& entry) {
  const ProcessTableEntry* at = &entry;
  for (int steps = 0; steps <= kDeepestAncestry; ++steps) {
    if (at->parentPid == kInvalidPID || at->parentPid == at->pid) return steps;
    const auto parent = byPid.find(at->parentPid);
    if (parent == byPid.end() || parent->second->startStamp > at->startStamp) return -1;
    at = parent->second;
  }
  return -1;
}

TEST(ParentClosure, KeepsWhatIsRightAndCutsWhatIsNot) {
  std::vector<ProcessTableEntry> entries = {
      Entry(1, 0, 2),    Entry(2, 0, 2),    Entry(10, 1, 50),  // started in the same tick:
      Entry(11, 10, 50), Entry(12, 99, 60),                    // hidden parent
      Entry(13, 14, 60), Entry(14, 1, 70),                     // parent younger than its child
      Entry(20, 21, 80), Entry(21, 22, 80), Entry(22, 20, 80), Entry(23, 21, 80),  // a loop
      Entry(30, 30, 90), Entry(31, -7, 90), Entry(0, 0, 0)};
  CloseParents(entries);
  std::vector<std::int32_t> parents;
  for (const auto& entry : entries) parents.push_back(entry.parentPid);
  EXPECT_EQ(parents,
            (std::vector<std::int32_t>{0, 0, 1, 10, -1, -1, 1, 21, 22, -1, 21, -1, -1, 0}));
}

TEST(ParentClosure, BoundsTheDepthOfAncestry) {
  std::vector<ProcessTableEntry> entries = {Entry(0, 0, 0)};
  for (std::int32_t pid = 1; pid < 3 * kDeepestAncestry; ++pid) {
    entries.push_back(Entry(pid, pid - 1, 5));
  }
  CloseParents(entries);
  std::map<std::int32_t, const ProcessTableEntry*> byPid;
  for (const auto& entry : entries) byPid.emplace(entry.pid, &entry);
  int cuts = 0;
  for (const auto& entry : entries) {
    ASSERT_GE(StepsToTop(byPid, entry), 0) << entry.pid;
    if (entry.parentPid == kInvalidPID) ++cuts;
  }
  EXPECT_EQ(cuts, 2);
}

TEST(ParentClosure, EndsEveryAncestryOfRandomGraphs) {
  std::mt19937 random(20261121);
  const auto upTo = [&random](std::int32_t most) {
    return std::uniform_int_distribution<std::int32_t>(0, most)(random);
  };
  for (int graph = 0; graph < 100'000; ++graph) {
    const std::int32_t count = 1 + upTo(12);
    // Few different stamps make loops among equals likely; pids come twice and are spread.
    const std::int32_t stamps = upTo(3);
    const std::int32_t factor = upTo(1) == 0 ? 1 : 1 << 16;
    std::vector<ProcessTableEntry> entries;
    for (std::int32_t i = 0; i < count; ++i) {
      entries.push_back(Entry(upTo(count) * factor, (upTo(count + 1) - 1) * factor,
                              static_cast<std::uint64_t>(upTo(stamps))));
    }
    const auto before = entries;
    CloseParents(entries);
    std::map<std::int32_t, const ProcessTableEntry*> byPid;
    for (const auto& entry : entries) byPid.emplace(entry.pid, &entry);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      ASSERT_GE(StepsToTop(byPid, entries[i]), 0) << "graph " << graph << ", entry " << i;
      if (entries[i].parentPid != kInvalidPID) {
        ASSERT_EQ(entries[i].parentPid, before[i].parentPid);
      }
    }
  }
}

}  // namespace
}  // namespace lurkwell
