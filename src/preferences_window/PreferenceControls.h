#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QLabel>
#include <QSlider>
#include <QWidget>
#include <cstdint>
#include <span>

#include "preferences/SettingTable.h"

namespace lurkwell {

/// What a control of the preferences window looks like, which follows from its setting's kind.
enum class ControlKind : std::uint8_t {
  kMatrix,          ///< a box of radio buttons; the selected row
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
