#pragma once

#include <QString>

class QWidget;

namespace lurkwell {

/// Shows the help page in a window of the program's own, for desktops without anything that shows
/// pages. One window at a time, above its owner; closed, it deletes itself. False when the page
/// cannot be read. Main thread.
bool ShowHelpWindow(const QString& page, QWidget& owner);

}  // namespace lurkwell
