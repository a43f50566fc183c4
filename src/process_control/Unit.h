#pragma once

namespace lurkwell {

/// The sources that this folder's assertions name, in whichever of its files they stand.
inline constexpr char kDaemonUnit[] = "DaemonCommunication";
inline constexpr char kActionsUnit[] = "ProcessActions";

}  // namespace lurkwell
