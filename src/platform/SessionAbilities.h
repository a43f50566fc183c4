#pragma once

#include <cstdint>

namespace lurkwell {

/// How small windows of this program stay above those of other programs.
enum class FloatingWay : std::uint8_t {
  kByManager,     ///< the desktop keeps them there, and moves them as it moves all others
  kByThemselves,  ///< nobody looks after them: they place, drag and raise themselves
  kByLayer,       ///< the compositor has a layer for them, where they place and drag themselves
  kNotAtAll,      ///< there is no way: they are windows like all others
};

/// What the session that shows this program's windows lets it do. The one place that knows; menus,
/// tips, questions and preferences ask here what to say.
struct SessionAbilities {
  /// Windows can be kept above those of other programs, and a view can lie over the whole screen.
  bool floats = true;
  /// Ordinary windows can be put back where they were. Otherwise their places are not known either.
  bool places = true;
  /// Windows of other programs can be brought to the front, hidden, and asked to close.
  bool reachesOthers = true;
};

}  // namespace lurkwell
