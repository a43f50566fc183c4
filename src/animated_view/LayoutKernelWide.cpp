// For processors of which some have the wide instructions.
#include "animated_view/LayoutKernel.h"

namespace lurkwell {

SumPushes BestSumPushes() {
  return __builtin_cpu_supports("avx2") != 0 ? SumPushesWide : SumPushesBaseline;
}

}  // namespace lurkwell
