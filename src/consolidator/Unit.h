#pragma once

namespace lurkwell {

/// The source that the consolidator's assertions name, in whichever of its files they stand.
inline constexpr char kUnit[] = "PI_Consolidator";

/// The same for the clients.
inline constexpr char kClientUnit[] = "ProcessInformationClient";

}  // namespace lurkwell
