#pragma once

#include "platform/Machine.h"
#include "platform/linux/LinuxCostlyFigures.h"
#include "platform/linux/LinuxHostStatistics.h"
#include "platform/linux/LinuxNamedPipes.h"
#include "platform/linux/LinuxProcessDetails.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/LinuxScheduler.h"
#include "platform/linux/LinuxServices.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/NoDesktop.h"
#include "platform/linux/PolkitAuthorization.h"
#include "platform/linux/PollRunLoop.h"
#include "platform/linux/PropertyListDomain.h"

namespace lurkwell {

/// This machine as a program in a terminal sees it: no desktop, no applications, alerts on standard
/// error. Main thread.
class LinuxMachine {
 public:
  LinuxClock clock;
  PollRunLoop runLoop{clock, PollRunLoop::EndingSignals::kStop};
  PropertyListDomain preferenceDomain;
  LinuxProcessTable processTable;
  NoProcessManager processManager;
  NoIconServices iconServices;
  LinuxHostStatistics hostStatistics;
  LinuxTools tools;
  LinuxSignals signals;
  LinuxNamedPipes namedPipes;
  LinuxBundle bundle;
  PolkitAuthorization authorization{bundle};
  TerminalAlerts alerts;
  LinuxLogFiles logFiles;
  NoHotKeys hotKeys;
  NoScreen screen;
  NoEventBus eventBus;
  LinuxCostlyFigures costlyFigures;
  LinuxProcessDetails processDetails;
  LinuxScheduler scheduler;
  NoNotifications notifications;

  Machine services{
      clock,          runLoop,   preferenceDomain, processTable, processManager, iconServices,
      hostStatistics, tools,     signals,          namedPipes,   authorization,  bundle,
      alerts,         logFiles,  hotKeys,          screen,       eventBus,       costlyFigures,
      processDetails, scheduler, notifications};
};

}  // namespace lurkwell
