#pragma once

#include <cstdint>
#include <unordered_map>

#include "main_window/RowDictionary.h"

namespace lurkwell {

/// What sorting compares for columns whose shown text does not sort: CPU shares, bytes, times. Kept
/// by process and key, apart from the rows, so that it outlives a closed window. Main thread only.
class InternalRepresentations {
 public:
  /// The values of one process, made when missing; they stay where they are until removed.
  RowValues& Of(std::int32_t pid) { return mByPid[pid]; }

  void Remove(std::int32_t pid) { mByPid.erase(pid); }

  /// Forgets every process for which `keep` is false.
  template <typename Predicate>
  void KeepOnly(Predicate keep) {
    std::erase_if(mByPid, [&](const auto& entry) { return !keep(entry.first); });
  }

 private:
  std::unordered_map<std::int32_t, RowValues> mByPid;
};

}  // namespace lurkwell
