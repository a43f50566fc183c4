#include "app/RecordMode.h"

#include <chrono>
#include <string>

#include "app/CommandLine.h"
#include "channel/DaemonCommunication.h"
#include "consolidator/Feeders.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/ApplicationQuitting.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/RunLoop.h"
#include "recording/Recorder.h"

namespace lurkwell {
namespace {

/// For a disk that has fallen behind, or the last minute's compression on a slow machine.
constexpr std::chrono::seconds kLongestClosing{60};

RecorderOptions OptionsOf(const CommandLine& commandLine) {
  RecorderOptions options;
  options.keepsArguments = commandLine.keepsArguments;
  if (commandLine.intervalInMilliseconds)
    options.intervalInMilliseconds = *commandLine.intervalInMilliseconds;
  if (commandLine.daysToKeep) options.limits.days = *commandLine.daysToKeep;
  if (commandLine.bytesToKeep) options.limits.bytes = *commandLine.bytesToKeep;
  return options;
}

unsigned long long Plain(std::uint64_t number) {
  return number;
}

void SayWhatWasRecorded(const Recorder::Counts& counts, const RecordingProgress& progress) {
  Diagnose("%llu beats recorded, %llu lost; %llu processes began, %llu ended",
           Plain(progress.written), Plain(progress.lost), Plain(counts.births),
           Plain(counts.deaths));
  if (counts.unseenProcesses)
    Diagnose("%lld more processes began and ended between two beats, and are not in it",
             static_cast<long long>(*counts.unseenProcesses));
  else if (counts.unseen > 0)
    Diagnose("%llu more processes or threads began and ended between two beats, and are not in it",
             Plain(counts.unseen));
}

}  // namespace

int RunRecordMode(const CommandLine& commandLine) {
  std::string words;
  auto* recorder = Recorder::Create(commandLine.recordTo, OptionsOf(commandLine), words);
  if (recorder == nullptr) {
    Diagnose("%s", words.c_str());
    return kExitFailure;
  }
  LeavePSOut(true);
  InitializeProcessInformationConsolidator();
  SetHelperUnprivileged(commandLine.unprivileged);
  if (IsHelperAskedForFigures()) LaunchHelperDaemon();
  AddProcessInformationClient(recorder);
  RequestUpdate(recorder);
  TheMachine().runLoop.Run();
  gApplicationQuitting = true;
  QuitHelperDaemon();
  RemoveProcessInformationClient(recorder);
  const auto counts = recorder->Counted();
  const auto progress = recorder->Close(kLongestClosing);
  SayWhatWasRecorded(counts, progress);
  if (!progress.isClosed)
    Diagnose("the disk has not taken the last %llu beats in %d seconds", Plain(progress.waiting),
             static_cast<int>(kLongestClosing.count()));
  ProcessInformationClient::DeleteAllProcessInformationClients();
  DestroyProcessInformationConsolidator();
  return progress.trouble.empty() && progress.isClosed ? kExitSuccess : kExitFailure;
}

}  // namespace lurkwell
