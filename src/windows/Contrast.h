#pragma once

#include <QColor>
#include <QPalette>

namespace lurkwell {

/// What texts need to be read by people who see little, and what larger marks need to be seen; of
/// ContrastBetween.
inline constexpr double kTextContrast = 4.5;
inline constexpr double kMarkContrast = 3.0;

/// How much two opaque colours differ in lightness, as the web's accessibility guidelines count it:
/// from 1, not at all, to 21, black from white. Pure.
double ContrastBetween(const QColor& one, const QColor& other);

/// Black or white, whichever can be read better on that ground; always kTextContrast at least.
/// Pure.
QColor ReadableOn(const QColor& ground);

/// The colour for texts of less weight: between the text's own and the ground, and as far from both
/// as can still be read. Remembers the last answer, as a table asks for each of its cells. Main
/// thread.
QColor FaintOn(const QColor& text, const QColor& ground);

/// The colour for what shows that something has the keyboard: as near to the selection's as can be
/// seen, on that ground or on all that the palette's controls have. Pure.
QColor FocusColour(const QPalette& palette, const QColor& ground);
QColor FocusColour(const QPalette& palette);

/// Whether texts of the palette are lighter than what they stand on.
bool IsDark(const QPalette& palette);

/// The two grounds of a table's rows.
QColor EvenStripe(const QPalette& palette);
QColor OddStripe(const QPalette& palette);

}  // namespace lurkwell
