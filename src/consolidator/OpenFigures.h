#pragma once

#include "platform/TimeValue.h"

namespace lurkwell {

/// The kernel feeder on a machine whose process table tells figures to everybody: the sources that
/// due clients need are read where they may have changed, and what has been read goes into the
/// records. A beat in which no list is needed, and before which no process was born, does not even
/// list; a process that is followed and has ended brings the list. Main thread, inside the
/// consolidator's region.
void FeedOpenFigures(TimeValue now);

}  // namespace lurkwell
