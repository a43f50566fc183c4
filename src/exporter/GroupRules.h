#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lurkwell {

/// What processes are put together by.
enum class GroupKind : std::uint8_t { kProgram, kUnit, kContainer, kUser };
inline constexpr std::size_t kGroupKinds = 4;
/// By kind, as labels and in the configuration.
inline constexpr std::array<std::string_view, kGroupKinds> kGroupKindNames = {"program", "unit",
                                                                              "container", "user"};
/// The group of all that have none of their own.
inline constexpr std::string_view kOtherGroup = "other";

/// Which groups there are to be. Plain value.
struct GroupRules {
  struct OfKind {
    bool isWanted = true;
    /// Shell patterns, one of which the name of a group has to match; empty for all.
    std::vector<std::string> patterns;

    /// Whether a group of that name may have a place of its own.
    bool Admits(const std::string& name) const;
  };

  const OfKind& operator[](GroupKind kind) const { return kinds[static_cast<std::size_t>(kind)]; }

  std::array<OfKind, kGroupKinds> kinds;
  /// How many groups of one kind have a place; from 1 to kMostGroups.
  std::size_t limit = 500;
  static constexpr std::size_t kMostGroups = 10'000;

  /// What takes long to read.
  bool countsOpenFiles = true;
  bool readsProportionalMemory = true;
  enum class Network : std::uint8_t {
    kNone,
    /// Of control groups.
    kUnits,
    /// Of processes, too, by all of their descriptors.
    kProcesses,
  };
  Network network = Network::kUnits;
};

}  // namespace lurkwell
