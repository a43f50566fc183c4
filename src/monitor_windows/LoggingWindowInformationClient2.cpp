#include "monitor_windows/LoggingWindowInformationClient2.h"

#include <cstring>
#include <optional>
#include <variant>

#include "consolidator/PI_Consolidator.h"
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
                                                                 LogOfClient& log)
    : ProcessInformationClient(uuid, interval), mLog(log) {}

LoggingWindowInformationClient2::~LoggingWindowInformationClient2() {
  mLog.clientIsGone(*this);
}

ProcessInformationClient::NeedLevel LoggingWindowInformationClient2::NeedProcPropertiesForPid(
    int pid) {
  return mLog.logs(pid) ? kNeedSomeProcProperties : kNeedNoProcProperties;
}

ProcessInformationClient::NeedLevel LoggingWindowInformationClient2::NeedPidsForProcProperty(
    const char* property) {
  const bool needed = NeedPidProcProperty(mLog.loggedPid(), property);
  return needed ? kNeedSomePids : kNeedNoPids;
}

bool LoggingWindowInformationClient2::NeedPidProcProperty(int pid, const char* property) {
  if (!mLog.logs(pid)) return false;
  for (const char* needed : {kActiveTime, kRealSize, kVirtualSize})
    if (std::strcmp(property, needed) == 0) return true;
  return false;
}

void LoggingWindowInformationClient2::NotifyProcessesHaveBeenUpdated() {
  const int pid = mLog.loggedPid();
  if (!mLog.logs(pid)) return;
  const auto& switches = mLog.switches();
  LoggingFigures figures;
  figures.now = TheMachine().clock.CalendarNow();
  if (switches.ActiveTime()) figures.activetime = ActiveTimeOf(pid);
  if (switches.RealMem()) figures.realMemUsed = ReadSize(pid, kRealSize);
  if (switches.VirtualMem()) figures.virtualMemUsed = ReadSize(pid, kVirtualSize);
  mLog.processesHaveBeenUpdated(figures);
}

void LoggingWindowInformationClient2::NotifyPidHasBeenRemoved(int pid) {
  if (mLog.logs(pid)) mLog.processHasEnded();
}

}  // namespace lurkwell
