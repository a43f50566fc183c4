#pragma once

#include "platform/TimeValue.h"

namespace lurkwell {

/// The kernel feeder on a machine where only the helper tells figures, or where a preference says
/// that it is to be asked: a request for each process of which a due client needs some. Main
/// thread, inside the consolidator's region.
void FeedHelperFigures(TimeValue now);

}  // namespace lurkwell
