#pragma once

#include <string>
#include <string_view>

#include "platform/simulated/AccessLog.h"
#include "platform/simulated/SimulatedProcessTable.h"

namespace lurkwell {

/// The helper of a simulated machine: answers requests from its process table and records what it
/// is asked to do, a line per request with newlines written as "\n".
class SimulatedHelper {
 public:
  SimulatedHelper(SimulatedProcessTable& table, AccessLog& log) : mTable(table), mLog(log) {}

  std::string Answer(std::string_view request);

  /// What "geteuid" is answered with.
  void SetEffectiveUid(int uid) { mEffectiveUid = uid; }
  /// Whether requests for figures are recorded, too.
  void SetRecordsFigures(bool records) { mRecordsFigures = records; }

 private:
  std::string CarryOut(std::string_view line);
  std::string AnswerFigures(std::string_view lines);

  SimulatedProcessTable& mTable;
  AccessLog& mLog;
  int mEffectiveUid = 0;
  bool mRecordsFigures = true;
};

}  // namespace lurkwell
