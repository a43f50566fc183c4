#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace lurkwell {

/// Finds remembered windows by the program that they follow, so that looking up many processes
/// walks the records once. Records without an identifier are left out: they could not be told from
/// new windows. Main thread only.
class RememberedPrograms {
 public:
  explicit RememberedPrograms(const char* arrayName) : mArrayName(arrayName) {}

  /// Reads the records anew.
  void Refresh();

  /// Whether a record's window followed a process of that pid last, as of the last Refresh.
  bool IsAnyOf(std::int32_t pid) const { return mPids.contains(pid); }

  /// Whether any record says whose processes come first, as of the last Refresh.
  bool HaveOwners() const { return mHaveOwners; }

  /// Whether one of the programs is missing among those that `running` names, by name and kind.
  using Program = std::pair<std::string, std::string>;
  bool IsOneMissing(const std::set<Program>& running);

  /// The first record at or after `startIndex` whose name and kind are these to the byte, -1 for
  /// none. As of the last Refresh, but never one that has become another.
  std::int32_t Find(const char* name, const char* kind, std::int32_t startIndex);

 private:
  std::int32_t Known(const std::string& program, std::int32_t startIndex) const;
  std::string ProgramAt(std::int32_t index) const;

  const char* mArrayName;
  std::int32_t mCount = -1;
  std::unordered_set<std::int32_t> mPids;
  bool mHaveOwners = false;
  /// Indices in ascending order, by name and kind.
  std::unordered_map<std::string, std::vector<std::int32_t>> mIndices;
};

}  // namespace lurkwell
