#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "platform/ProcessFigures.h"
#include "recording/RecordedBeat.h"

namespace lurkwell {

/// What BeatEncoder and BeatDecoder agree upon.

inline constexpr std::uint8_t kBeatFormat = 1;

/// A value is a code for why there is none, or a number beyond them; one that has no room there
/// follows the escape.
inline constexpr std::uint64_t kEscapeCode = 3;
inline constexpr std::uint64_t kFirstPlainCode = 4;
inline constexpr std::uint64_t kLargestPlain =
    std::numeric_limits<std::uint64_t>::max() - kFirstPlainCode;

constexpr std::uint64_t CodeOfState(FigureState state) {
  return state == FigureState::kRefused ? 1 : state == FigureState::kUncounted ? 2 : 0;
}
constexpr FigureState StateOfCode(std::uint64_t code) {
  constexpr std::array kStates{FigureState::kUnread, FigureState::kRefused,
                               FigureState::kUncounted};
  return code < kStates.size() ? kStates[code] : FigureState::kKnown;
}

/// The differences of a column are written divided by the first of these that divides all of them:
/// sizes are whole pages, times whole ticks.
inline constexpr std::array<std::int64_t, 3> kScales{10'000, 4096, 1};

/// More columns than any file has.
inline constexpr std::size_t kMostColumns = 63;
static_assert(kNumberCount + kTextCount <= kMostColumns);

}  // namespace lurkwell
