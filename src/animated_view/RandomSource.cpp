#include "animated_view/RandomSource.h"

#include <cstdlib>

namespace lurkwell {

long SystemRandom() {
  return ::random();
}

}  // namespace lurkwell
