#pragma once

namespace lurkwell {

/// Whether what moves, slides or blinks by itself is to stand still: the user's setting, or what
/// the desktop is set to. May change at any time; costs next to nothing. Main thread only.
bool WantsLessMotion();

}  // namespace lurkwell
