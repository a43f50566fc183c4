#include "app/PrintMode.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "app/DataOutput.h"
#include "app/ListingClient.h"
#include "channel/DaemonCommunication.h"
#include "consolidator/Feeders.h"
#include "consolidator/PI_Consolidator.h"
#include "consolidator/PrintfOutputClient.h"
#include "consolidator/PropertyCatalogue.h"
#include "platform/ApplicationQuitting.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/PrintableText.h"
#include "platform/RunLoop.h"
#include "query/QueryKeys.h"

namespace lurkwell {
namespace {

/// Where a listing is to have other columns, or none are named.
constexpr const char* kUsualColumns[] = {"meta_name", "meta_active_time", "pid_parent_pid",
                                         "pid_rsz", "pid_vsz"};
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

/// A client that prints, which updates, and what is to happen after each of them.
struct PrintingHooks {
  std::function<bool()> isPrinted;
  std::function<void()> afterUpdate;
};

template <typename Printer>
class Watched : public Printer {
 public:
  template <typename... Arguments>
  explicit Watched(PrintingHooks hooks, Arguments&&... arguments)
      : Printer(std::forward<Arguments>(arguments)...), mHooks(std::move(hooks)) {}

  void NotifyProcessesHaveBeenUpdated() override {
    if (mHooks.isPrinted && !mHooks.isPrinted()) return;
    // What a recording lacks does not come.
    if constexpr (requires { this->MustWait(); })
      if (!mHooks.isPrinted && this->MustWait()) return;
    errno = 0;
    Printer::NotifyProcessesHaveBeenUpdated();
    mHooks.afterUpdate();
  }

 private:
  PrintingHooks mHooks;
};

/// Stops the run loop when enough has been printed, or when its reader has gone.
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

bool IsUsualListing(const CommandLine& commandLine) {
  return commandLine.columns.empty() && commandLine.form == ListingForm::kText &&
         commandLine.filter.empty() && commandLine.sort.empty() && !commandLine.isTree &&
         !commandLine.limit && !commandLine.intervalInMilliseconds && commandLine.replay.empty();
}

/// What is wrong with the options.
using Complaint = std::string;

std::optional<Complaint> FindProperty(const std::string& word, std::string& property) {
  // An exact name comes before a short word of the query's, which may mean another one.
  auto found = IsKnownProcProperty(word.c_str()) ? word : PropertyOfQueryKey(word);
  if (!found) {
    const auto near = NearQueryKeys(word);
    return "no property or ps column '" + PrintableText(word) + "'" +
           (near.empty() ? "" : "; there is " + near);
  }
  property = std::move(*found);
  return std::nullopt;
}

std::optional<Complaint> MakePlan(const CommandLine& commandLine, ListingPlan& plan) {
  plan = {};
  auto words = commandLine.columns;
  if (words.empty()) words.assign(std::begin(kUsualColumns), std::end(kUsualColumns));
  for (const auto& word : words) {
    ListingColumn column;
    if (auto complaint = FindProperty(word, column.key)) return complaint;
    column.type = GetProcPropertyType(column.key.c_str(), nullptr);
    plan.columns.push_back(std::move(column));
  }
  plan.isDescending = commandLine.sort.starts_with('-');
  if (const auto key = commandLine.sort.substr(plan.isDescending ? 1 : 0); !key.empty())
    if (auto complaint = FindProperty(key, plan.sortKey)) return complaint;
  auto query = Query::Read(commandLine.filter);
  if (const auto* error = std::get_if<QueryError>(&query))
    return "--filter: " + PrintableText(error->Text());
  plan.query = std::move(std::get<Query>(query));
  plan.form = commandLine.form;
  plan.isTree = commandLine.isTree;
  plan.limit = commandLine.limit;
  // A recording's time goes on by itself, as far as is wanted.
  constexpr std::int32_t kEveryUpdate = 20;
  plan.intervalInMilliseconds =
      commandLine.replay.empty() ? commandLine.intervalInMilliseconds.value_or(1000) : kEveryUpdate;
  return std::nullopt;
}

bool AreBuiltIn(const ListingPlan& plan) {
  const auto isBuiltIn = [](const std::string& key) {
    return key.empty() || FindBuiltInProperty(key) != nullptr;
  };
  return isBuiltIn(plan.sortKey) && std::ranges::all_of(plan.query.Properties(), isBuiltIn) &&
         std::ranges::all_of(plan.columns, isBuiltIn, &ListingColumn::key);
}

}  // namespace

int RunPrintMode(const CommandLine& commandLine, std::function<bool()> isPrinted) {
  const DataOutput output;
  ListingPlan plan;
  const bool isUsual = IsUsualListing(commandLine);
  // Starting ps takes longer than everything else.
  const bool hasPS = commandLine.replay.empty();
  const bool needsPS =
      (isUsual || MakePlan(commandLine, plan).has_value() || !AreBuiltIn(plan)) && hasPS;
  LeavePSOut(!needsPS);
  InitializeProcessInformationConsolidator();
  if (needsPS) AwaitPSColumns(kPatienceForColumns);
  if (const auto complaint = MakePlan(commandLine, plan)) {
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
  PrintingHooks hooks{std::move(isPrinted), [&end] { end.AfterUpdate(); }};
  ProcessInformationClient* client = nullptr;
  if (isUsual) {
    BeginPrintfOutput(new Watched<UsualColumnsClient>(std::move(hooks), output.Stream()));
    client = gPrintfOutputInfoClient;
  } else {
    client = new Watched<ListingClient>(std::move(hooks), std::move(plan), output.Stream());
    AddProcessInformationClient(client);
  }
  RequestUpdate(client);
  TheMachine().runLoop.Run();
  ShutDown();
  return end.Status();
}

}  // namespace lurkwell
