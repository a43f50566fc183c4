#pragma once

namespace lurkwell {

class Alerts;
class Authorization;
class Bundle;
class Clock;
class CostlyFigures;
class EventBus;
class HostStatistics;
class HotKeys;
class IconServices;
class LogFiles;
class NamedPipes;
class Notifications;
class PreferenceDomain;
class ProcessDetails;
class ProcessManager;
class ProcessTable;
class RunLoop;
class Scheduler;
class Screen;
class Signals;
class Tools;

/// The machine the program runs on, one service each. Owns nothing: the builder of a machine keeps
/// its services alive as long as it is installed.
struct Machine {
  Clock& clock;
  RunLoop& runLoop;
  PreferenceDomain& preferenceDomain;
  ProcessTable& processTable;
  ProcessManager& processManager;
  IconServices& iconServices;
  HostStatistics& hostStatistics;
  Tools& tools;
  Signals& signals;
  NamedPipes& namedPipes;
  Authorization& authorization;
  Bundle& bundle;
  Alerts& alerts;
  LogFiles& logFiles;
  HotKeys& hotKeys;
  Screen& screen;
  EventBus& eventBus;
  CostlyFigures& costlyFigures;
  ProcessDetails& processDetails;
  Scheduler& scheduler;
  Notifications& notifications;
};

/// The installed machine. Any thread. It is a programming error to ask before one is installed.
Machine& TheMachine();

/// Installs a machine for as long as it lives, and puts back the one before it. Main thread, before
/// other threads start.
class MachineInstallation {
 public:
  explicit MachineInstallation(Machine& machine);
  ~MachineInstallation();
  MachineInstallation(const MachineInstallation&) = delete;
  MachineInstallation& operator=(const MachineInstallation&) = delete;

 private:
  Machine* mPrevious;
};

}  // namespace lurkwell
