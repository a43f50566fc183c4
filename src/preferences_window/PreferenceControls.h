#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QLabel>
#include <QSlider>
#include <QWidget>
#include <cstdint>
#include <span>

#include "preferences_window/PreferenceCatalogue.h"

namespace lurkwell {

/// What a control of the preferences window looks like and how its value is stored.
enum class ControlKind : std::uint8_t {
  kMatrix,          ///< a box of radio buttons; the selected row
  kIntervalSlider,  ///< milliseconds, by the interval scale
  kFractionSlider,  ///< a real from 0 to 1
  kCheckBox,        ///< 0 or 1
  kColourWell,      ///< three components; the key is their common beginning
};

struct PreferenceControl {
  /// The control's name in the form.
  const char* name;
  ControlKind kind;
  const char* key;
  /// The name of the label that shows a slider's value; null without one.
  const char* text;
  /// Changes hold for windows that are opened afterwards, and the window says so.
  bool isForNewWindows;
};

/// All of them. Any thread.
std::span<const PreferenceControl> PreferenceControls();

/// The setting behind a control; a colour's red component.
const PreferenceEntry& EntryOf(const PreferenceControl& control);

// ---- Main thread only. Controls are found below `window`; a missing one is left alone.

/// Shows what is stored, or the default when nothing is. Nothing is stored by that, whatever there
/// is: a control shows the nearest that it can.
void LoadControl(const QWidget& window, const PreferenceControl& control);

/// A slider's text for the place where it is now.
void DescribeSlider(const QWidget& window, const PreferenceControl& control);

/// Stores what a control shows, and shows what else followed from it. Tells nobody.
void StoreControl(const QWidget& window, const PreferenceControl& control);

// ---- Colours.

/// The colour that a well shows, as a swatch and in figures.
void ShowColour(QAbstractButton& well, const QColor& colour);
QColor ShownColour(const QAbstractButton& well);

}  // namespace lurkwell
