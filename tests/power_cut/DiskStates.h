#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <random>
#include <span>
#include <string>

#include "DiskLog.h"

namespace lurkwell {

/// What a disk holds, by names.
using DiskContents = std::map<std::string, std::string>;

/// What may be on the disk when the power goes after the first `made` calls. What was synced is
/// there. Of everything later any part may be: each 512 bytes of a write by themselves, each change
/// of a size and each change of a name, whatever came of those before it.
class DiskStates {
 public:
  explicit DiskStates(std::span<const DiskCall> calls) : mCalls(calls) {}

  /// One of the possible states. Besides mixed ones, each with the same chance: all that is not
  /// synced is lost, all of it is there, and all up to some moment.
  DiskContents At(std::size_t made, std::mt19937& random) const;

 private:
  using Keeps = std::function<bool()>;
  std::map<int, std::string> Files(std::span<const DiskCall> made, const Keeps& keeps) const;

  std::span<const DiskCall> mCalls;
};

}  // namespace lurkwell
