#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

#include "platform/Clock.h"

namespace lurkwell {

/// What a property's value is, for showing and for sorting. Values travel as text in any case.
enum PropertyType : int {
  kPropertyTypeString = 0,   ///< text; also every unknown name
  kPropertyTypeInteger = 1,  ///< decimal integer
  kPropertyTypeReal = 2,     ///< decimal fraction, percentages
  kPropertyTypeHex = 3,      ///< hexadecimal address
  kPropertyTypeMemory = 4,   ///< size in bytes (ps columns: in units, as ps prints them)
  kPropertyTypeTime = 5,     ///< span of time, seconds.microseconds
  kPropertyTypeDate = 6,     ///< point in time, seconds.microseconds since the epoch
  kPropertyTypeClock = 7,    ///< span of time as ps prints it: [[days-]hours:]minutes:seconds
  kPropertyTypeShare = 8,    ///< fraction, per cent of something
  kPropertyTypeRate = 9,     ///< bytes per second
};

/// The four sources that report into the records; each has its own generations.
enum InformationKind : int {
  kInformationKindPID = 0,         ///< the kernel's table and the helper
  kInformationKindCarbonPSN = 1,   ///< the desktop's applications
  kInformationKindClassicPSN = 2,  ///< applications of the Classic environment
  kInformationKindPS = 3,          ///< columns of ps
};
inline constexpr int kInformationKindCount = 4;

/// Why a process has no value for a property.
enum class Missing : std::uint8_t {
  kNone,         ///< there is nothing of the kind: a daemon's signature, an old process's ps line
  kNotYetKnown,  ///< it has not been read yet, or could not be this time
  kNotAllowed,   ///< the user may not read it of this process
  kNotCounted,   ///< this machine does not count it
};

/// A property's value as a value: numbers, sizes in bytes and fractions as numbers, times and dates
/// as times, all else as the process's own bytes, to be made printable before they are shown;
/// or why there is none.
using TypedValue = std::variant<Missing, std::int64_t, double, TimeValue, std::string>;

/// Whether there is a value.
inline bool IsKnown(const TypedValue& value) {
  return !std::holds_alternative<Missing>(value);
}

/// What is known of each built-in property of one process, by the property's place in the
/// catalogue; "not yet known" until something is set.
class ValueStates {
 public:
  static constexpr std::size_t kCapacity = 192;

  bool IsKnown(std::size_t property) const { return At(property) == kKnown; }
  /// For a property that is not known.
  Missing Why(std::size_t property) const {
    constexpr Missing kReasons[] = {Missing::kNotYetKnown, Missing::kNone, Missing::kNotAllowed,
                                    Missing::kNotCounted};
    return kReasons[At(property)];
  }

  /// Each gives true when the state was another one.
  bool SetKnown(std::size_t property) { return Set(property, kKnown); }
  /// Missing::kNone is taken for "not yet known".
  bool SetMissing(std::size_t property, Missing why) {
    return Set(property, why == Missing::kNotAllowed   ? kNotAllowed
                         : why == Missing::kNotCounted ? kNotCounted
                                                       : kNotYetKnown);
  }

 private:
  enum State : std::uint64_t { kNotYetKnown, kKnown, kNotAllowed, kNotCounted };
  static constexpr std::size_t kPerWord = 32;

  State At(std::size_t property) const {
    return static_cast<State>(mStates[property / kPerWord] >> Shift(property) & 3);
  }
  bool Set(std::size_t property, State state) {
    if (At(property) == state) return false;
    auto& word = mStates[property / kPerWord];
    word = (word & ~(std::uint64_t{3} << Shift(property))) | std::uint64_t{state}
                                                                 << Shift(property);
    return true;
  }
  static std::size_t Shift(std::size_t property) { return property % kPerWord * 2; }

  std::array<std::uint64_t, kCapacity / kPerWord> mStates{};
};

}  // namespace lurkwell
