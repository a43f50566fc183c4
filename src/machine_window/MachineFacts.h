#pragma once

#include <QString>

#include "platform/HostStatistics.h"

namespace lurkwell {

/// The machine's figures that are no graphs, in lines for people: load, frequency, temperatures.
/// What the machine does not tell is said to be so. Main thread.
QString MachineFactsText(const MachineFigures& figures);

/// What a container allows, in a line; empty without a limit.
QString MachineLimitsText(const MachineLimits& limits);

}  // namespace lurkwell
