#pragma once

#include "platform/TimeValue.h"

namespace lurkwell {

/// The pass of kind 1: reports name, type, signature and mode of every application that due clients
/// need, touches the others; an application that cannot be described any more is left out and so
/// retired. `now` is the heartbeat's time. Main thread, inside an iteration of kind 1.
void PSNExtractProcessInformation(TimeValue now);

}  // namespace lurkwell
