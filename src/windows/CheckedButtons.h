#pragma once

class QButtonGroup;

namespace lurkwell {

/// Gives the checked ones of a group the colours of a selection: some styles show next to nothing
/// where they are dark. To be called after each change of what is checked, and of the palette.
void MarkChecked(const QButtonGroup& buttons);

}  // namespace lurkwell
