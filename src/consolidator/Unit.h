#pragma once

namespace lurkwell {

/// The source that the consolidator's assertions name, in whichever of its files they stand.
inline constexpr char kUnit[] = "PI_Consolidator";

}  // namespace lurkwell
