#pragma once

#include <functional>

#include "app/CommandLine.h"

namespace lurkwell {

/// Prints the processes once a second until the wanted number of updates, a signal, or a reader
/// that has gone. Starts the consolidator and the helper on the installed machine, and ends them.
/// Gives the exit status. `isPrinted`, if there is one, says of each update whether it counts.
int RunPrintMode(const CommandLine& commandLine, std::function<bool()> isPrinted = {});

}  // namespace lurkwell
