#pragma once

#include "animated_view/QuintessentialInformationProcessInfo.h"

namespace lurkwell {

/// The force on `self` from every placed record of `list` (but itself), its relatives' pull
/// included, and from the four walls; gives the sum of the distances used. A linear walk: for one
/// record, not for all.
double SumOfForcesOnIndividualQIPI(const QuintessentialInformationProcessInfo& self,
                                   const QipiList& list, double& fx, double& fy);

/// One relaxation step of every record of `list`, all from the positions before the step; ten times
/// as far with `boost`. Gives the sum of all distances between them. Inside the mutex when the
/// drawing thread sees the list.
double DisIsRevoltin(QipiList& list, bool boost);

}  // namespace lurkwell
