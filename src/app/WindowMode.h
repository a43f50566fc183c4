#pragma once

#include "app/CommandLine.h"

namespace lurkwell {

/// Runs the program with its windows until the user quits, on the installed machine, whose run loop
/// must be Qt's; or, for a picture, shows the wanted window, waits for two updates of the table,
/// writes the file and ends. A QApplication exists. Gives the exit status.
int RunWindowMode(const CommandLine& commandLine);

/// Makes the program's windows light or dark, whatever the desktop has; nothing for kSystem.
void ApplyTheme(CommandLine::Theme theme);

}  // namespace lurkwell
