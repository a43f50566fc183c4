#pragma once

#include <QString>

namespace lurkwell {

/// The scale of every interval slider: positions 0 to 1000 for 100 milliseconds to an hour. Short
/// intervals come from a fixed menu, longer ones in steps that grow. The two directions are no
/// exact inverses: positions 180 to 199 mean a second, which is shown at 200. Any thread.

inline constexpr int kShortestInterval = 100;
inline constexpr int kLongestInterval = 3'600'000;
inline constexpr int kLastPosition = 1000;

/// The milliseconds that a position means; 0, and a line on standard error, for one that is none.
int givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq(int position);

/// The position of an interval. What the scale does not have fails with a line on standard error:
/// 1000 for values between those of the menu, the nearer end for those beyond the ends.
int givenLogicalValueCalcPhysicalValueForMainWindowUpdateControlFreq(int milliseconds);

/// An interval in words. Fails with a line on standard error below 100.
QString givenMillisecondsCalcStringDescriptionForMainWindowFreq(int milliseconds);

// ---- For intervals that come from a file, and may be any number: no failures.

/// The position that comes nearest.
int NearestPosition(int milliseconds);
/// What the program makes of the interval, in words.
QString DescriptionOfStored(int milliseconds);

}  // namespace lurkwell
