#include "app/PrintMode.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>

#include "app/ColumnsOutputClient.h"
#include "consolidator/PI_Consolidator.h"
#include "consolidator/PrintfOutputClient.h"
#include "consolidator/ProcessInformationFeederPS.h"
#include "platform/ApplicationQuitting.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"
#include "process_control/DaemonCommunication.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kIntervalInMilliseconds = 1000;
constexpr auto kPatienceForColumns = std::chrono::seconds(5);

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
  explicit EndOfPrinting(std::optional<std::int32_t> count) : mCount(count) {}

  void AfterUpdate() {
    if (std::ferror(stdout) != 0) {
      // A reader that has seen enough is no failure.
      mStatus = errno == EPIPE ? kExitSuccess : kExitFailure;
      if (mStatus == kExitFailure)
        std::fprintf(stderr, "lurkwell: cannot write: %s\n", std::strerror(errno));
      TheMachine().runLoop.Stop();
    }
    if (mCount && --*mCount == 0) TheMachine().runLoop.Stop();
  }

  int Status() const { return mStatus; }

 private:
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
  InitializeProcessInformationConsolidator();
  AwaitPSColumns(kPatienceForColumns);
  if (const auto complaint = ComplaintAboutColumns(commandLine.columns)) {
    std::fprintf(stderr, "lurkwell: %s\n", complaint->c_str());
    DestroyProcessInformationConsolidator();
    return kExitUsage;
  }
  // The first listing has the columns of ps, too.
  SetPSPatience(std::chrono::seconds(1));
  SetHelperUnprivileged(commandLine.unprivileged);
  LaunchHelperDaemon();
  EndOfPrinting end(commandLine.count);
  const auto afterUpdate = [&end] { end.AfterUpdate(); };
  ProcessInformationClient* client = nullptr;
  if (commandLine.columns.empty()) {
    client = new Watched<PrintfOutputInformationClient>(afterUpdate);
  } else {
    client =
        new Watched<ColumnsOutputClient>(afterUpdate, commandLine.columns, kIntervalInMilliseconds);
  }
  AddProcessInformationClient(client);
  TheMachine().runLoop.Run();
  ShutDown();
  return end.Status();
}

}  // namespace lurkwell
