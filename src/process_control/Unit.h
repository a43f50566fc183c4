#pragma once

namespace lurkwell {

/// The source that this folder's assertions name, in whichever of its files they stand.
inline constexpr char kActionsUnit[] = "ProcessActions";

}  // namespace lurkwell
