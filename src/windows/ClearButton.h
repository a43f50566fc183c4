#pragma once

class QLineEdit;

namespace lurkwell {

/// Gives a field the button that empties it, with a name for those who do not see its picture.
void AddClearButton(QLineEdit& field);

}  // namespace lurkwell
