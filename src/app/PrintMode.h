#pragma once

#include "app/CommandLine.h"

namespace lurkwell {

/// Prints the processes once a second until the wanted number of updates, a signal, or a reader
/// that has gone. Starts the consolidator and the helper on the installed machine, and ends them.
/// Gives the exit status.
int RunPrintMode(const CommandLine& commandLine);

}  // namespace lurkwell
