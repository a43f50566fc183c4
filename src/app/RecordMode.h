#pragma once

namespace lurkwell {

struct CommandLine;

/// Records the processes of the installed machine until its run loop is stopped; gives the exit
/// status. Says at the end, on standard error, what was recorded and what was missed.
int RunRecordMode(const CommandLine& commandLine);

}  // namespace lurkwell
