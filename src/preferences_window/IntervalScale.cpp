#include "preferences_window/IntervalScale.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "resources/Resources.h"
#include "windows/ControllerAssertion.h"

namespace lurkwell {
namespace {

constexpr const char* kToLogical =
    "PreferencesUI: givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq";
constexpr const char* kToPhysical =
    "PreferencesUI: givenLogicalValueCalcPhysicalValueForMainWindowUpdateControlFreq";
constexpr const char* kToDescription =
    "PreferencesUI: givenMillisecondsCalcStringDescriptionForMainWindowFreq";

/// What the engine serves when it is asked for less.
constexpr int kShortestServed = 20;
constexpr int kSecond = 1000;
constexpr int kMinute = 60 * kSecond;
constexpr int kHour = 60 * kMinute;

/// A second in whole parts, 20 positions each.
constexpr int kShort[] = {100, 111, 125, 142, 166, 200, 250, 333, 500, 1000};
constexpr int kPositionsOfShort = 20;

/// A hundred positions each, evenly from here to where the next begins.
struct Stretch {
  int position;
  int milliseconds;
  int step;
};
constexpr Stretch kStretches[] = {
    {200, 1000, 40},    {300, 5000, 50},     {400, 10000, 200},    {500, 30000, 300},
    {600, 60000, 2400}, {700, 300000, 3000}, {800, 600000, 12000}, {900, 1800000, 18000},
};

/// The last stretch that begins at or below the value.
template <typename Member>
const Stretch& StretchOf(int value, Member member) {
  const auto* after = std::upper_bound(
      std::begin(kStretches), std::end(kStretches), value,
      [member](int wanted, const Stretch& stretch) { return wanted < stretch.*member; });
  return *std::prev(after);
}

int ShortPosition(int milliseconds) {
  // A sixth of a second, rounded the other way.
  if (milliseconds == 167) milliseconds = 166;
  const auto* end = std::prev(std::end(kShort));
  const auto* at = std::find(std::begin(kShort), end, milliseconds);
  if (!Expect(at != end, kToPhysical, "Bad input value")) return kLastPosition;
  return static_cast<int>(at - std::begin(kShort)) * kPositionsOfShort;
}

QString Counted(const char* one, const char* several, int count) {
  return count == 1 ? LocalizedString(one) : LocalizedString(several).arg(count);
}

QString InWords(int milliseconds) {
  if (milliseconds < kSecond)
    return Counted("preferences_once_per_second", "preferences_times_per_second",
                   static_cast<int>(1000.0 / milliseconds));
  if (milliseconds < kMinute)
    return Counted("preferences_every_second", "preferences_every_seconds", milliseconds / kSecond);
  if (milliseconds != kHour)
    return Counted("preferences_every_minute", "preferences_every_minutes", milliseconds / kMinute);
  return LocalizedString("preferences_every_hour");
}

}  // namespace

int givenPhysicalValueCalcLogicalValueForMainWindowUpdateFreq(int position) {
  if (!Expect(position >= 0 && position <= kLastPosition, kToLogical,
              "invalid conversion to logical value"))
    return 0;
  if (position < kStretches[0].position) return kShort[position / kPositionsOfShort];
  const auto& stretch = StretchOf(position, &Stretch::position);
  const int milliseconds = (position - stretch.position) * stretch.step + stretch.milliseconds;
  Expect(milliseconds >= kShortestInterval && milliseconds <= kLongestInterval, kToLogical,
         "invalid conversion to logical value");
  return milliseconds;
}

int givenLogicalValueCalcPhysicalValueForMainWindowUpdateControlFreq(int milliseconds) {
  if (!Expect(milliseconds >= kShortestInterval, kToPhysical,
              "invalidly small logical value input"))
    return 0;
  if (!Expect(milliseconds <= kLongestInterval, kToPhysical, "invalidly large logical value input"))
    return kLastPosition;
  if (milliseconds < kSecond) return ShortPosition(milliseconds);
  const auto& stretch = StretchOf(milliseconds, &Stretch::milliseconds);
  const int position = (milliseconds - stretch.milliseconds) / stretch.step + stretch.position;
  Expect(position <= kLastPosition, kToPhysical, "invalid conversion to physical value");
  return position;
}

QString givenMillisecondsCalcStringDescriptionForMainWindowFreq(int milliseconds) {
  Expect(milliseconds >= kShortestInterval, kToDescription,
         "invalid (too small) millisecond input");
  if (milliseconds > kHour) return LocalizedString("preferences_interval_invalid");
  return InWords(milliseconds == 0 ? 1 : milliseconds);
}

int NearestPosition(int milliseconds) {
  milliseconds = std::clamp(milliseconds, kShortestInterval, kLongestInterval);
  if (milliseconds < kSecond) {
    const auto isNearer = [milliseconds](int one, int other) {
      return std::abs(one - milliseconds) < std::abs(other - milliseconds);
    };
    milliseconds = *std::min_element(std::begin(kShort), std::end(kShort), isNearer);
  }
  return givenLogicalValueCalcPhysicalValueForMainWindowUpdateControlFreq(milliseconds);
}

QString DescriptionOfStored(int milliseconds) {
  return InWords(std::max(milliseconds, kShortestServed));
}

}  // namespace lurkwell
