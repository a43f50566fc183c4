#include "app/PrintMode.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string_view>

#include "app/ColumnsOutputClient.h"
#include "app/DataOutput.h"
#include "channel/DaemonCommunication.h"
#include "consolidator/KernelFeeder.h"
#include "consolidator/PI_Consolidator.h"
#include "consolidator/PrintfOutputClient.h"
#include "consolidator/ProcessInformationFeederPS.h"
#include "platform/ApplicationQuitting.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kIntervalInMilliseconds = 1000;
constexpr auto kPatienceForColumns = std::chrono::seconds(5);

/// The usual five columns, all of them filled, below a heading; sizes are in kibibytes, as ps
/// prints them.
class UsualColumnsClient : public PrintfOutputInformationClient {
 public:
  using PrintfOutputInformationClient::PrintfOutputInformationClient;

  NeedLevel NeedPidsForProcProperty(const char* property) override {
    return IsSize(property) ? kNeedAllPids
                            : PrintfOutputInformationClient::NeedPidsForProcProperty(property);
  }
  bool NeedPidProcProperty(int pid, const char* property) override {
    return IsSize(property) || PrintfOutputInformationClient::NeedPidProcProperty(pid, property);
  }
  void NotifyProcessesHaveBeenUpdated() override {
    std::fprintf(Out(), "%5s: %22s %11s %5s %9s %11s\n", "PID", "NAME", "CPU-TIME", "PPID",
                 "RSZ/KiB", "VSZ/KiB");
    PrintfOutputInformationClient::NotifyProcessesHaveBeenUpdated();
  }

 private:
  static bool IsSize(std::string_view property) { return property == "RSZ" || property == "VSZ"; }
};

/// A client that prints, and what is to happen after each update.
template <typename Printer>
class Watched : public Printer {
 public:
  template <typename... Arguments>
  explicit Watched(std::function<void()> afterUpdate, Arguments&&... arguments)
      : Printer(std::forward<Arguments>(arguments)...), mAfterUpdate(std::move(afterUpdate)) {}

  void NotifyProcessesHaveBeenUpdated() override {
    errno = 0;
    Printer::NotifyProcessesHaveBeenUpdated();
    mAfterUpdate();
  }

 private:
  std::function<void()> mAfterUpdate;
};

/// Stops the run loop when enough has been printed, or when nobody takes it any more.
class EndOfPrinting {
 public:
  EndOfPrinting(std::FILE* out, std::optional<std::int32_t> count) : mOut(out), mCount(count) {}

  void AfterUpdate() {
    if (std::ferror(mOut) != 0) {
      // A reader that has seen enough is no failure.
      mStatus = errno == EPIPE ? kExitSuccess : kExitFailure;
      if (mStatus == kExitFailure) Diagnose("cannot write: %s", std::strerror(errno));
      TheMachine().runLoop.Stop();
    }
    if (mCount && --*mCount == 0) TheMachine().runLoop.Stop();
  }

  int Status() const { return mStatus; }

 private:
  std::FILE* mOut;
  std::optional<std::int32_t> mCount;
  int mStatus = kExitSuccess;
};

void ShutDown() {
  gApplicationQuitting = true;
  QuitHelperDaemon();
  ProcessInformationClient::DeleteAllProcessInformationClients();
  DestroyProcessInformationConsolidator();
}

}  // namespace

int RunPrintMode(const CommandLine& commandLine) {
  const DataOutput output;
  InitializeProcessInformationConsolidator();
  AwaitPSColumns(kPatienceForColumns);
  if (const auto complaint = ComplaintAboutColumns(commandLine.columns)) {
    Diagnose("%s", complaint->c_str());
    DestroyProcessInformationConsolidator();
    return kExitUsage;
  }
  // The first listing has the columns of ps, too.
  SetPSPatience(std::chrono::seconds(1));
  SetHelperUnprivileged(commandLine.unprivileged);
  // Nothing is done to processes here.
  if (IsHelperAskedForFigures()) LaunchHelperDaemon();
  EndOfPrinting end(output.Stream(), commandLine.count);
  const auto afterUpdate = [&end] { end.AfterUpdate(); };
  ProcessInformationClient* client = nullptr;
  if (commandLine.columns.empty()) {
    client = new Watched<UsualColumnsClient>(afterUpdate, output.Stream());
  } else {
    client = new Watched<ColumnsOutputClient>(afterUpdate, commandLine.columns,
                                              kIntervalInMilliseconds, output.Stream());
  }
  AddProcessInformationClient(client);
  TheMachine().runLoop.Run();
  ShutDown();
  return end.Status();
}

}  // namespace lurkwell
