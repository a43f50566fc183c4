#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace lurkwell {

/// Pids that a client has yet to hear of; the latest comes out first. Taking a pid out of the
/// middle does not walk the stack.
class PidStack {
 public:
  bool Empty() const { return mPlaces.empty(); }
  bool Contains(std::int32_t pid) const { return mPlaces.contains(pid); }
  void Push(std::int32_t pid);
  /// The stack must not be empty.
  std::int32_t Pop();
  /// Removes every occurrence; true when there was one.
  bool Remove(std::int32_t pid);

 private:
  void TrimTop();

  /// Holes left by Remove read kInvalidPID.
  std::vector<std::int32_t> mPids;
  std::unordered_multimap<std::int32_t, std::size_t> mPlaces;
};

}  // namespace lurkwell
