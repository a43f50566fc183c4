#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "platform/Machine.h"
#include "platform/linux/LinuxNamedPipes.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/LinuxServices.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/PolkitAuthorization.h"
#include "platform/linux/PollRunLoop.h"
#include "support/MachineOf.h"

namespace lurkwell {

/// Process control with real programs over real pipes, for an application below `prefix`.
template <typename Pipes>
class RealMachineWith {
 public:
  explicit RealMachineWith(const std::string& prefix)
      : bundle(prefix + "/bin/lurkwell"),
        authorization(bundle, PolkitAuthorization::Consent::kMayAsk, prefix + "/bin/pkexec") {}

  /// Puts the build's helper and its permission step into the application's folder.
  static void Install(const std::string& prefix) {
    const std::string resources = prefix + "/lib/lurkwell/Contents/Resources";
    std::filesystem::create_directories(resources);
    std::filesystem::copy_file(LURKWELL_TEST_HELPER, resources + "/Lurkwell_helper");
    std::filesystem::copy_file(LURKWELL_TEST_PERMISSIONS, resources + "/Lurkwell_permissions");
  }

  /// Runs the loop until that is so, for some seconds at most.
  void RunUntil(const std::function<bool()>& isSo, int seconds = 10) {
    constexpr double kStep = 0.01;
    int steps = 0;
    const auto timer = runLoop.AddTimer(0, kStep, [&] {
      if (isSo() || ++steps == seconds * 100) runLoop.Stop();
    });
    runLoop.Run();
  }

  SimulatedMachine simulated;
  LinuxClock clock;
  PollRunLoop runLoop{clock};
  LinuxTools tools;
  LinuxSignals signals;
  LinuxProcessTable processTable;
  Pipes namedPipes;
  LinuxBundle bundle;
  PolkitAuthorization authorization;
  TerminalAlerts alerts;
  Machine services = MachineOf(simulated, clock, runLoop, processTable, tools, signals, namedPipes,
                               authorization, bundle, alerts);
  MachineInstallation installation{services};
};
using RealMachine = RealMachineWith<LinuxNamedPipes>;

}  // namespace lurkwell
