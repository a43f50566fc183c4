// For compilers and processors without the wide instructions.
#include "animated_view/LayoutKernel.h"

namespace lurkwell {

SumPushes BestSumPushes() {
  return SumPushesBaseline;
}

}  // namespace lurkwell
