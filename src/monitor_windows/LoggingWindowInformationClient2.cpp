#include "monitor_windows/LoggingWindowInformationClient2.h"

#include <cstring>
#include <optional>
#include <variant>

#include "consolidator/PI_Consolidator.h"
#include "monitor_windows/LoggingWindowUI.h"
#include "platform/Clock.h"
#include "platform/Machine.h"

namespace lurkwell {
namespace {

constexpr char kActiveTime[] = "meta_active_time";
constexpr char kRealSize[] = "pid_rsz";
constexpr char kVirtualSize[] = "pid_vsz";

std::optional<std::int64_t> ReadSize(int pid, const char* property) {
  const auto value = GetPIDPropertyTypedValue(pid, property);
  const auto* size = std::get_if<std::int64_t>(&value);
  return size != nullptr ? std::optional(*size) : std::nullopt;
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
