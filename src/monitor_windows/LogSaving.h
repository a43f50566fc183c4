#pragma once

#include <QString>
#include <deque>
#include <string>

#include "monitor_windows/LoggingRecord.h"

namespace lurkwell {

/// Writes a log to a file that the user has chosen, in place of what it held; whole, or not at all.
/// Empty when it is there, else why not, in the system's words. Main thread.

/// All that a log's own file has.
QString SaveLogFile(const std::string& logFile, const QString& target);
/// The rows that a window without a file has.
QString SaveLogRows(const std::string& header, const std::deque<LoggedRow>& rows,
                    const QString& target);

}  // namespace lurkwell
