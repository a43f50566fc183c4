#pragma once

#include <string>
#include <string_view>

#include "exporter/MetricWriter.h"
#include "exporter/Snapshot.h"

namespace lurkwell {

/// A snapshot as the text of an answer; docs/metrics.md lists what is in it. Pure.
std::string MetricText(const Snapshot& snapshot, MetricFormat format, std::string_view version);

}  // namespace lurkwell
