#pragma once

#include "platform/Machine.h"
#include "platform/simulated/AccessLog.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "platform/simulated/SimulatedHelper.h"
#include "platform/simulated/SimulatedProcessDetails.h"
#include "platform/simulated/SimulatedProcessTable.h"
#include "platform/simulated/SimulatedRunLoop.h"
#include "platform/simulated/SimulatedServices.h"
#include "platform/simulated/SimulatedTools.h"

namespace lurkwell {

/// A whole machine that a test scripts: a clock that stands still, processes that live and die on
/// command, a helper that answers from them, and a log of everything that was asked of it.
class SimulatedMachine {
 public:
  AccessLog log;
  SimulatedClock clock;
  SimulatedRunLoop runLoop{clock};
  SimulatedPreferenceDomain preferenceDomain;
  SimulatedProcessTable processTable{clock, log};
  SimulatedProcessManager processManager{log};
  SimulatedIconServices iconServices{log};
  SimulatedHostStatistics hostStatistics;
  SimulatedTools tools{log};
  SimulatedSignals signals{log};
  SimulatedNamedPipes namedPipes{log};
  SimulatedAuthorization authorization{log};
  SimulatedBundle bundle;
  SimulatedAlerts alerts{log};
  SimulatedLogFiles logFiles;
  SimulatedHotKeys hotKeys{log};
  SimulatedScreen screen{log};
  SimulatedEventBus eventBus{log};
  SimulatedCostlyFigures costlyFigures{processTable, log};
  SimulatedProcessDetails processDetails{processTable, log};
  SimulatedScheduler scheduler{log};
  SimulatedNotifications notifications{log};
  SimulatedHelper helper{processTable, log};

  Machine services{
      clock,          runLoop,   preferenceDomain, processTable, processManager, iconServices,
      hostStatistics, tools,     signals,          namedPipes,   authorization,  bundle,
      alerts,         logFiles,  hotKeys,          screen,       eventBus,       costlyFigures,
      processDetails, scheduler, notifications};
};

}  // namespace lurkwell
