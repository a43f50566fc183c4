#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QLabel>
#include <QSlider>
#include <QString>
#include <QWidget>
#include <cstdint>
#include <span>

#include "preferences/SettingTable.h"

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

/// What a control of the preferences window looks like, which follows from its setting's kind.
enum class ControlKind : std::uint8_t {
  kMatrix,          ///< a box of radio buttons, or a list; the selected row
  kIntervalSlider,  ///< milliseconds, by the interval scale
  kFractionSlider,  ///< a real from 0 to 1
  kCheckBox,        ///< 0 or 1
  kColourWell,      ///< three components; the setting is the first
};

ControlKind ControlKindOf(const Setting& setting);

/// Those that the window's pages show, in the table's order. Any thread.
std::span<const Setting* const> SettingsWithControls();

// ---- Main thread only. Controls are found below `window`; a missing one is left alone.

/// Shows what is stored, or the default when nothing is. Nothing is stored by that, whatever there
/// is: a control shows the nearest that it can.
void LoadControl(const QWidget& window, const Setting& setting);

/// A slider's text for the place where it is now.
void DescribeSlider(const QWidget& window, const Setting& setting);

/// Stores what a control shows, and shows what else followed from it. Tells no client.
void StoreControl(const QWidget& window, const Setting& setting);

// ---- Colours.

/// The colour that a well shows, as a swatch and in figures.
void ShowColour(QAbstractButton& well, const QColor& colour);
QColor ShownColour(const QAbstractButton& well);

}  // namespace lurkwell
