#include "platform/Assertion.h"

#include <cstdio>
#include <cstdlib>

namespace lurkwell {

void FailAssertion(const char* unit, unsigned line, const char* condition) noexcept {
  std::fflush(stdout);
  std::fprintf(stderr, "%s:%u: failed assertion `%s'\n", unit, line, condition);
  std::abort();
}

}  // namespace lurkwell
