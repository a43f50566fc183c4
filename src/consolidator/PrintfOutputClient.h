#pragma once

#include "consolidator/ProcessInformationClient.h"

namespace lurkwell {

/// Prints a line per process on standard output every second: pid, name, CPU time, parent and the
/// two sizes of ps. The smallest complete client, and the pattern for others. It does not cause the
/// ps columns to be fetched: they stay empty unless another client needs them.
class PrintfOutputInformationClient : public ProcessInformationClient {
 public:
  PrintfOutputInformationClient();
  ~PrintfOutputInformationClient() override;

  NeedLevel NeedProcPropertiesForPid(int pid) override;
  NeedLevel NeedPidsForProcProperty(const char* property) override;
  bool NeedPidProcProperty(int pid, const char* property) override;
  void NotifyProcessesHaveBeenUpdated() override;
  const char* TypeName() const override { return "PrintfOutputInformationClient"; }
};

/// The one instance, from BeginPrintfOutput until the registry deletes it; else null.
extern PrintfOutputInformationClient* gPrintfOutputInfoClient;

/// Makes the client and adds it. Main thread, after the consolidator has been started.
void BeginPrintfOutput();

}  // namespace lurkwell
