#pragma once

#include <cstdint>
#include <memory>

#include "platform/IconServices.h"
#include "platform/ProcessIdentity.h"

namespace lurkwell {

/// The icons of applications, as square pictures `size` pixels wide. Main thread. The picture is
/// the caller's to keep; null stands for none: no application, gone, or without an icon.

/// The icon of the application itself.
std::shared_ptr<const Picture> GetApplicationIconRef(ProcessSerialNumber psn, int size);

/// The icon of the application that a process is; null for every other process. The two have one
/// source on this desktop: the first is for drawing into windows of one's own, the second for
/// tables.
std::shared_ptr<const Picture> GetProcessIcon(std::int32_t pid, int size);
std::shared_ptr<const Picture> ProcessIconImage(std::int32_t pid, int size);

}  // namespace lurkwell
