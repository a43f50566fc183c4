#include "monitor_windows/LoggingWindowInformationClient2.h"

#include <cstring>
#include <optional>
#include <string_view>

#include "consolidator/PI_Consolidator.h"
#include "consolidator/TextScan.h"
#include "monitor_windows/LoggingWindowUI.h"
#include "platform/Clock.h"
#include "platform/Machine.h"

namespace lurkwell {
namespace {

constexpr char kActiveTime[] = "meta_active_time";
constexpr char kRealSize[] = "pid_rsz";
constexpr char kVirtualSize[] = "pid_vsz";

std::optional<std::int64_t> ReadSize(int pid, const char* property) {
  char text[64];
  if (!GetPIDPropertyValue(pid, property, text, sizeof text, nullptr)) return std::nullopt;
  std::string_view rest(text);
  return ScanInteger(rest).value_or(0);
}

}  // namespace

LoggingWindowInformationClient2::LoggingWindowInformationClient2(const Uuid* uuid,
                                                                 std::int32_t interval,
                                                                 LoggingWindowUI& controller)
    : ProcessInformationClient(uuid, interval), mController(controller) {}

LoggingWindowInformationClient2::~LoggingWindowInformationClient2() {
  mController.clientIsGone(*this);
}

ProcessInformationClient::NeedLevel LoggingWindowInformationClient2::NeedProcPropertiesForPid(
    int pid) {
  return mController.logs(pid) ? kNeedSomeProcProperties : kNeedNoProcProperties;
}

ProcessInformationClient::NeedLevel LoggingWindowInformationClient2::NeedPidsForProcProperty(
    const char* property) {
  const bool needed = NeedPidProcProperty(mController.stateInfo().pid, property);
  return needed ? kNeedSomePids : kNeedNoPids;
}

bool LoggingWindowInformationClient2::NeedPidProcProperty(int pid, const char* property) {
  if (!mController.logs(pid)) return false;
  for (const char* needed : {kActiveTime, kRealSize, kVirtualSize})
    if (std::strcmp(property, needed) == 0) return true;
  return false;
}

void LoggingWindowInformationClient2::NotifyProcessesHaveBeenUpdated() {
  const auto& state = mController.stateInfo();
  if (state.pidWentAway) return;
  LoggingFigures figures;
  figures.now = TheMachine().clock.CalendarNow();
  if (state.ActiveTime()) figures.activetime = ActiveTimeOf(state.pid);
  if (state.RealMem()) figures.realMemUsed = ReadSize(state.pid, kRealSize);
  if (state.VirtualMem()) figures.virtualMemUsed = ReadSize(state.pid, kVirtualSize);
  mController.processesHaveBeenUpdated(figures);
}

void LoggingWindowInformationClient2::NotifyPidHasBeenRemoved(int pid) {
  if (mController.logs(pid)) mController.processHasEnded();
}

}  // namespace lurkwell
