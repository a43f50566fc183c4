#pragma once

namespace lurkwell {

/// The source that the assertions of a history name, in whichever of its files they stand.
inline constexpr char kHistoryUnit[] = "CPUHistoryWindow";

}  // namespace lurkwell
