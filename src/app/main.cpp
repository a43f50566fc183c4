#include <csignal>
#include <cstdio>
#include <iostream>

#include "app/CommandLine.h"
#include "app/PrintMode.h"
#include "platform/Machine.h"
#include "platform/linux/DescriptorLimit.h"
#include "platform/linux/LinuxMachine.h"

int main(int argc, char** argv) {
  using namespace lurkwell;
  const auto commandLine = ReadCommandLine(
      {const_cast<const char* const*>(argv), static_cast<std::size_t>(argc)}, std::cerr);
  if (!commandLine) return kExitUsage;
  if (commandLine->action == CommandLine::Action::kHelp) {
    std::fputs(HelpText(), stdout);
    return kExitSuccess;
  }
  if (commandLine->action == CommandLine::Action::kVersion) {
    std::puts("lurkwell " LURKWELL_VERSION);
    return kExitSuccess;
  }
  // The helper's end of a pipe may go at any time; writing to it then is an error, not the end.
  std::signal(SIGPIPE, SIG_IGN);
  RaiseDescriptorLimit();
  LinuxMachine machine;
  const MachineInstallation installation(machine.services);
  if (commandLine->action == CommandLine::Action::kRun)
    std::fputs("lurkwell: this version has no window yet; printing the processes.\n", stderr);
  return RunPrintMode(*commandLine);
}
