#pragma once

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "consolidator/ProcessInformationClient.h"

namespace lurkwell {

/// Prints any properties and ps columns: a line of their names, then a line per process, pid first,
/// in columns as wide as they need to be. Texts stand left, everything else right.
class ColumnsOutputClient : public ProcessInformationClient {
 public:
  /// `interval` in milliseconds. `out` stays the caller's and outlives this.
  ColumnsOutputClient(std::vector<std::string> columns, std::int32_t interval, std::FILE* out);

  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "ColumnsOutputClient"; }

 private:
  std::vector<std::string> mColumns;
  std::FILE* mOut;
};

/// A complaint about the first of `columns` that is neither a property nor a ps column, with the
/// names that come near; nothing when all are known. After the consolidator has been started.
std::optional<std::string> ComplaintAboutColumns(const std::vector<std::string>& columns);

}  // namespace lurkwell
