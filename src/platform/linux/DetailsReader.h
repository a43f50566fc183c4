#pragma once

#include <string>

#include "platform/ProcessDetails.h"

namespace lurkwell {

/// Where details stand.
struct DetailsRoots {
  /// A folder like /proc.
  std::string proc;
  /// That of the control groups; empty: where this machine has it.
  std::string units;
};

/// Reads one kind of details of a process, however long it takes. Any thread.
DetailsAnswer ReadDetails(const DetailsRoots& roots, ProcessIdentity process, DetailsKind kind);

}  // namespace lurkwell
