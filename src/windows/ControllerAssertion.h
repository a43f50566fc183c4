#include "platform/Diagnostics.h"
#pragma once

namespace lurkwell {

/// A broken assumption of a window's own code: said on standard error, and survived. Gives `holds`
/// back, so that the caller goes on with what it does then.
inline bool Expect(bool holds, const char* controller, const char* description) {
  if (!holds) DiagnoseVerbatim("%s: assertion failure: %s", controller, description);
  return holds;
}

}  // namespace lurkwell
