#pragma once

#include <cstdio>

#include "consolidator/ProcessInformationClient.h"

namespace lurkwell {

/// Prints a line per process every second: pid, name, CPU time, parent and the two sizes of ps. The
/// smallest complete client, and the pattern for others. It does not cause the ps columns to be
/// fetched: they stay empty unless another client, or one that is made of it, needs them.
class PrintfOutputInformationClient : public ProcessInformationClient {
 public:
  /// On standard output, or on `out`, which stays the caller's and outlives this.
  explicit PrintfOutputInformationClient(std::FILE* out = stdout);
  ~PrintfOutputInformationClient() override;

  NeedLevel NeedProcPropertiesForPid(int pid) override;
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "PrintfOutputInformationClient"; }

 protected:
  std::FILE* Out() const { return mOut; }

 private:
  std::FILE* mOut;
};

/// The one instance, from BeginPrintfOutput until the registry deletes it; else null.
extern PrintfOutputInformationClient* gPrintfOutputInfoClient;

/// Makes the client, unless it is given one made of it, and adds it. Main thread, after the
/// consolidator has been started.
void BeginPrintfOutput(PrintfOutputInformationClient* client = new PrintfOutputInformationClient);

}  // namespace lurkwell
