#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "exporter/GroupRules.h"
#include "exporter/GroupSums.h"

namespace lurkwell {

/// A group of one kind. Belongs to its book.
struct Group {
  std::string name;
  GroupSums sums;
  bool isAdmitted = false;
  /// Its figures are its own; else they are among those of "other".
  bool hasPlace = false;
  bool hasEverHadPlace = false;
  /// Of this pass: how many processes it has, and how much they have used.
  std::int64_t members = 0;
  std::int64_t weight = 0;
  /// When it last had any, in milliseconds.
  std::int64_t lastAlive = 0;
};

/// The groups of one kind. A group that has got a place keeps it as long as it has processes, and
/// an hour longer; what it has counted is kept even then, for when it comes back, as long as there
/// are not too many such groups. One thread.
class GroupBook {
 public:
  static constexpr std::int64_t kShownWithoutProcesses = 3'600'000;
  /// After that it gives its place to another one, so that nobody's rates break off.
  static constexpr std::int64_t kKeptWithoutProcesses = 600'000;
  /// How many times as many groups are remembered as have a place.
  static constexpr std::size_t kRememberedFactor = 8;

  GroupBook(const GroupRules::OfKind& rules, std::size_t limit);

  void BeginPass();

  /// The group of that name, which stays where it is as long as it has a member.
  Group& Find(std::string_view name);

  /// After all members of the pass are known, and before they are counted. Milliseconds.
  void GivePlaces(std::int64_t now);

  /// Where the figures of the group's members go.
  GroupSums& SumsFor(Group& group) { return group.hasPlace ? group.sums : mOther; }

  /// In order of names.
  KindFigures Figures() const;

 private:
  void TakeBack(std::int64_t now);
  std::size_t FreePlaces(std::size_t wanted, std::int64_t now);
  void ForgetSome();

  const GroupRules::OfKind mRules;
  const std::size_t mLimit;
  std::unordered_map<std::string, Group> mGroups;
  GroupSums mOther;
};

}  // namespace lurkwell
