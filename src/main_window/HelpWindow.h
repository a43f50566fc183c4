#pragma once

#include <QString>

class QWidget;

namespace lurkwell {

// The help page. Main thread.

/// The page's file in the language of the texts, else in English.
QString HelpPage();

/// The page with what it says about keys filled in: those of the table of commands, and the one of
/// the preferences that lays the animated view over the screen.
QString FillHelpPage(QString page);

/// Shows the page of that file, filled in, in the desktop's browser, and where there is none, or
/// none can be given a page, in a window of the program's own; at the section with that id, or
/// from its beginning for none. False when it cannot be read.
bool ShowHelp(const QString& file, const QString& section, QWidget& owner);

/// Shows a page in a window of the program's own. One window at a time, above its owner; closed, it
/// deletes itself.
void ShowHelpWindow(const QString& page, const QString& section, QWidget& owner);

}  // namespace lurkwell
