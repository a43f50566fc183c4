#pragma once

#include <QString>
#include <cstdint>

#include "platform/TimeValue.h"

namespace lurkwell {

/// What the file of a log is called, without its end: "PROGRAM-PID-YYYYMMDD-HHMMSS" in local time,
/// so that files sort by program and time. Of a program's name, as it is shown, what no file
/// manager or shell trips over is kept, and not much of it.
QString LogFileName(const QString& program, std::int32_t pid, TimeValue now);

}  // namespace lurkwell
