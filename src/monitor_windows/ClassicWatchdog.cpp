#include "monitor_windows/ClassicWatchdog.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>
#include <system_error>

#include "consolidator/PI_Consolidator.h"
#include "platform/Assertion.h"
#include "platform/Bundle.h"
#include "platform/Diagnostics.h"
#include "platform/EventBus.h"
#include "platform/Machine.h"
#include "platform/Tools.h"
#include "preferences/Settings.h"

namespace lurkwell {

ClassicWatchdog* gClassicWatchdog = nullptr;
std::int32_t gClassicNubPid = kInvalidPID;
std::int32_t gClassicWatchdogState = kClassicInitial;

namespace {

constexpr char kClassicUnit[] = "ClassicWatchdog";
constexpr FourCharCode kNubSignature = {'z', 'r', 'N', 'v'};
constexpr int kFileNotFound = -43;
constexpr int kLaunchFailed = -10810;

bool IsClassic(int pid) {
  return pid < kInvalidPID;
}

bool IsClassicSignature(const char* property) {
  return std::strcmp(property, "carbonpsn_signature") == 0;
}

}  // namespace

ClassicWatchdog::ClassicWatchdog(std::int32_t interval)
    : ProcessInformationClient(nullptr, interval) {}

ClassicWatchdog::~ClassicWatchdog() {
  if (mLaunch.joinable()) mLaunch.join();
}

void ClassicWatchdog::NotifyPidHasBeenAdded(int pid) {
  if (IsClassic(pid) && gClassicWatchdogState < kClassicNubMissing)
    gClassicWatchdogState = kClassicNubMissing;
}

ProcessInformationClient::NeedLevel ClassicWatchdog::NeedProcPropertiesForPid(int pid) {
  return IsClassic(pid) ? kNeedSomeProcProperties : kNeedNoProcProperties;
}

ProcessInformationClient::NeedLevel ClassicWatchdog::NeedPidsForProcProperty(const char* property) {
  return IsClassicSignature(property) ? kNeedSomePids : kNeedNoPids;
}

bool ClassicWatchdog::NeedPidProcProperty(int pid, const char* property) {
  return IsClassic(pid) && IsClassicSignature(property);
}

/// The signature comes from the environment, so one that has none yet is no nub, and no error.
ClassicWatchdog::Sight ClassicWatchdog::LookAtProcesses() const {
  Sight sight;
  for (const std::int32_t pid : PidBlob()) {
    if (!IsClassic(pid)) continue;
    sight.classic = true;
    // Several may say that they are the nub; the one that has been told is the one.
    if (sight.nub != kInvalidPID && sight.nub == gClassicNubPid) continue;
    char signature[8];
    if (GetPIDPropertyValue(pid, "carbonpsn_signature", signature, sizeof signature, nullptr) &&
        std::string_view(signature) == std::string_view(kNubSignature.data(), kNubSignature.size()))
      sight.nub = pid;
  }
  return sight;
}

/// A nub that is another than the one that was told has not been told.
void ClassicWatchdog::TakeNote(const Sight& sight) {
  const bool isThere = sight.nub != kInvalidPID;
  switch (gClassicWatchdogState) {
    case kClassicNubTold:
      if (sight.nub == gClassicNubPid) break;
      gClassicWatchdogState = isThere ? kClassicNubFound : kClassicNubMissing;
      break;
    case kClassicInitial:
    case kClassicNubMissing:
    case kClassicNubLaunched:
      if (isThere) gClassicWatchdogState = kClassicNubFound;
      break;
    default:
      break;
  }
  if (gClassicWatchdogState == kClassicNubFound && isThere) gClassicNubPid = sight.nub;
  if (!sight.classic) gClassicWatchdogState = kClassicNotSeen;
}

void ClassicWatchdog::NotifyProcessesHaveBeenUpdated() {
  TakeNote(LookAtProcesses());
  switch (gClassicWatchdogState) {
    case kClassicInitial:
      gClassicWatchdogState = kClassicNotSeen;
      break;
    case kClassicNotSeen:
      mPatience = kFirstPatience;
      break;
    case kClassicNubMissing:
      LaunchNub();
      break;
    case kClassicNubLaunched:
      WaitForNub();
      break;
    case kClassicNubFound:
      AdjustClassicNub(true);
      break;
    default:
      mPatience = kFirstPatience;
      break;
  }
}

/// One that has ended before it was seen is launched again, each time after twice the wait. Where
/// it is only slow a second one ends by itself.
void ClassicWatchdog::WaitForNub() {
  if (mIsLaunching || ++mWaits < mPatience) return;
  mPatience = std::min(2 * mPatience, kMostPatience);
  gClassicWatchdogState = kClassicNubMissing;
  LaunchNub();
}

/// A program may take its time to start, so a thread of its own waits for that.
void ClassicWatchdog::LaunchNub() {
  if (mIsLaunching) return;
  if (mLaunch.joinable()) mLaunch.join();
  const std::string path = TheMachine().bundle.Path() + "/Contents/Resources/ClassicProcessInfoNub";
  if (TheMachine().tools.Stat(path) != 0) {
    DiagnoseVerbatim("error %d when looking for ClassicProcessInfoNub!", kFileNotFound);
    return;
  }
  mLaunchBlock = {path, "--bus", TheMachine().eventBus.Address()};
  mIsLaunching = true;
  try {
    mLaunch = std::thread([this] {
      LaunchClassicNubEntryPoint(mLaunchBlock);
      mIsLaunching = false;
    });
    mWaits = 0;
    gClassicWatchdogState = kClassicNubLaunched;
  } catch (const std::system_error& error) {
    mIsLaunching = false;
    DiagnoseVerbatim("error %d when launching!", error.code().value());
  }
}

void ClassicWatchdog::LaunchClassicNubEntryPoint(const std::vector<std::string>& block) {
  if (!TheMachine().tools.StartInBackground(block))
    DiagnoseVerbatim("error %d when launching!", kLaunchFailed);
}

void TurnOnClassicNub() {
  Require(gClassicWatchdog == nullptr, kClassicUnit, "gClassicWatchdog == NULL");
  gClassicWatchdogState = kClassicInitial;
  gClassicNubPid = kInvalidPID;
  gClassicWatchdog = new ClassicWatchdog(ReadInt("CLASSIC_WATCHDOG_INTERVAL"));
  AddProcessInformationClient(gClassicWatchdog);
}

void TurnOffClassicNub() {
  AdjustClassicNub(false);
  KillClassicNub();
  Require(gClassicWatchdog != nullptr, kClassicUnit, "gClassicWatchdog != NULL");
  RemoveProcessInformationClient(gClassicWatchdog);
  delete gClassicWatchdog;
  gClassicWatchdog = nullptr;
}

void AdjustClassicNub(bool on) {
  auto& machine = TheMachine();
  const auto ticks = ReadInt("CLASSIC_NUB_CONTROL_DEFAULT_SLEEP_TIX");
  Event event{classic_events::kClass, classic_events::kControl, {}, {}};
  event.parameters.push_back(
      {classic_events::kServedProcess,
       on ? machine.processManager.GetCurrentProcess() : ProcessSerialNumber{}});
  event.parameters.push_back(
      {classic_events::kSleepTicks, on ? ticks : std::numeric_limits<std::int32_t>::max()});
  const auto status = machine.eventBus.Send(kNubSignature, event);
  if (status == EventBus::kNoSuchProcess) {
    gClassicWatchdogState = kClassicNubMissing;
    gClassicNubPid = kInvalidPID;
  } else if (status == EventBus::kNoError) {
    // At the end a nub may be there that has not been listed yet.
    Require(gClassicNubPid != kInvalidPID || !on, kClassicUnit, "gClassicNubPid != -1");
    gClassicWatchdogState = kClassicNubTold;
  }
}

void KillClassicNub() {
  TheMachine().eventBus.Send(kNubSignature,
                             {classic_events::kCoreEvents, classic_events::kQuit, {}, {}});
}

}  // namespace lurkwell
