#pragma once

#include <type_traits>

#include "platform/simulated/SimulatedMachine.h"

namespace lurkwell {

/// `simulated`, or the one of `own` that is such a service.
template <typename Service, typename... Own>
Service& ServiceOf(Service& simulated, Own&... own) {
  Service* found = &simulated;
  const auto look = [&found](auto& candidate) {
    if constexpr (std::is_base_of_v<Service, std::remove_reference_t<decltype(candidate)>>)
      found = &candidate;
  };
  (look(own), ...);
  return *found;
}

/// The simulated machine with some services in the place of its own. All have to outlive it.
template <typename... Own>
Machine MachineOf(SimulatedMachine& simulated, Own&... own) {
  const auto& its = simulated.services;
  return {ServiceOf(its.clock, own...),
          ServiceOf(its.runLoop, own...),
          ServiceOf(its.preferenceDomain, own...),
          ServiceOf(its.processTable, own...),
          ServiceOf(its.processManager, own...),
          ServiceOf(its.iconServices, own...),
          ServiceOf(its.hostStatistics, own...),
          ServiceOf(its.tools, own...),
          ServiceOf(its.signals, own...),
          ServiceOf(its.namedPipes, own...),
          ServiceOf(its.authorization, own...),
          ServiceOf(its.bundle, own...),
          ServiceOf(its.alerts, own...),
          ServiceOf(its.logFiles, own...),
          ServiceOf(its.hotKeys, own...),
          ServiceOf(its.screen, own...),
          ServiceOf(its.eventBus, own...),
          ServiceOf(its.costlyFigures, own...),
          ServiceOf(its.processDetails, own...),
          ServiceOf(its.scheduler, own...),
          ServiceOf(its.notifications, own...)};
}

}  // namespace lurkwell
