#include "platform/linux/DescriptorLimit.h"

#include <sys/resource.h>

namespace lurkwell {

std::size_t DescriptorLimit() {
  rlimit limit{};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return 0;
  return limit.rlim_cur;
}

bool RaiseDescriptorLimit() {
  rlimit limit{};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return false;
  limit.rlim_cur = limit.rlim_max;
  return ::setrlimit(RLIMIT_NOFILE, &limit) == 0;
}

}  // namespace lurkwell
