#pragma once

namespace lurkwell {

/// By what the share of one processor is divided: 1, or the number of processors when shares are to
/// be those of the machine (the preference CPU_SHARE_OF_MACHINE). Main thread.
int CPUShareDivisor();

/// Asks the machine how many processors there are, which takes a file; once a pass that wants
/// shares. Main thread.
void CountProcessorsForShares();

}  // namespace lurkwell
