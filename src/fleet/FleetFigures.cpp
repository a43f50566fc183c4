#include "fleet/FleetFigures.h"

#include <algorithm>
#include <cmath>

#include "process_control/DisplayFormats.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"

namespace lurkwell {
namespace {

using enum FleetFigure;
using Unit = FleetUnit;

#define LURKWELL_OF_MACHINE(METRIC) "max by (@by) (" METRIC "{@m})"
#define LURKWELL_RATE_OF_MACHINE(METRIC, LABELS) \
  "sum by (@by) (@rate(" METRIC "{" LABELS "@m}[@window]))"
#define LURKWELL_OF_GROUP(METRIC) "sum by (@by) (" METRIC "{@m})"
#define LURKWELL_RATE_OF_GROUP(METRIC) "sum by (@by) (@rate(" METRIC "{@m}[@window]))"
#define LURKWELL_WAITS(RESOURCE)                                         \
  "max by (@by) (@rate(lurkwell_machine_pressure_waiting_seconds_total{" \
  "resource=\"" RESOURCE "\",kind=\"some\",@m}[@window]))"

constexpr char kReadOfMachine[] =
    LURKWELL_RATE_OF_MACHINE("lurkwell_machine_disk_read_bytes_total", "");
constexpr char kWrittenOfMachine[] =
    LURKWELL_RATE_OF_MACHINE("lurkwell_machine_disk_written_bytes_total", "");
constexpr char kReceivedOfMachine[] =
    LURKWELL_RATE_OF_MACHINE("lurkwell_machine_network_received_bytes_total", "device!=\"lo\",");
constexpr char kSentOfMachine[] =
    LURKWELL_RATE_OF_MACHINE("lurkwell_machine_network_sent_bytes_total", "device!=\"lo\",");
constexpr char kReadOfGroup[] = LURKWELL_RATE_OF_GROUP("lurkwell_group_disk_read_bytes_total");
constexpr char kWrittenOfGroup[] =
    LURKWELL_RATE_OF_GROUP("lurkwell_group_disk_written_bytes_total");
constexpr char kReceivedOfGroup[] =
    LURKWELL_RATE_OF_GROUP("lurkwell_group_network_received_bytes_total");
constexpr char kSentOfGroup[] = LURKWELL_RATE_OF_GROUP("lurkwell_group_network_sent_bytes_total");

constexpr FleetFigureRow kRows[] = {
    {kCpu, "cpu", "fleet_cpu", Unit::kShare, kPropertyTypeShare,
     "sum by (@by) (@rate(lurkwell_machine_cpu_seconds_total{mode!~\"idle|iowait\",@m}[@window]))"
     " / max by (@by) (lurkwell_machine_cpus{@m})",
     LURKWELL_RATE_OF_GROUP("lurkwell_group_cpu_seconds_total")},
    {kMemory, "mem", "fleet_memory", Unit::kBytes, kPropertyTypeMemory,
     "max by (@by) (lurkwell_machine_memory_bytes{kind=\"total\",@m})"
     " - max by (@by) (lurkwell_machine_memory_bytes{kind=\"available\",@m})",
     LURKWELL_OF_GROUP("lurkwell_group_memory_resident_bytes")},
    {kMemoryAll, "total", "fleet_memory_all", Unit::kBytes, kPropertyTypeMemory,
     "max by (@by) (lurkwell_machine_memory_bytes{kind=\"total\",@m})", nullptr},
    {kSwap, "swap", "fleet_swap", Unit::kBytes, kPropertyTypeMemory,
     "max by (@by) (lurkwell_machine_swap_bytes{kind=\"total\",@m})"
     " - max by (@by) (lurkwell_machine_swap_bytes{kind=\"free\",@m})",
     LURKWELL_OF_GROUP("lurkwell_group_memory_swap_bytes")},
    {kLoad, "load", "fleet_load", Unit::kNumber, kPropertyTypeReal,
     LURKWELL_OF_MACHINE("lurkwell_machine_load1"), nullptr},
    {kDisk, "disk", "fleet_disk", Unit::kBytesPerSecond, kPropertyTypeRate, nullptr, nullptr},
    {kNetwork, "network", "fleet_network", Unit::kBytesPerSecond, kPropertyTypeRate, nullptr,
     nullptr},
    {kWaitsCpu, "waits_cpu", "fleet_waits_cpu", Unit::kShare, kPropertyTypeShare,
     LURKWELL_WAITS("cpu"), nullptr},
    {kWaitsMemory, "waits_mem", "fleet_waits_memory", Unit::kShare, kPropertyTypeShare,
     LURKWELL_WAITS("memory"), nullptr},
    {kWaitsDisk, "waits_disk", "fleet_waits_disk", Unit::kShare, kPropertyTypeShare,
     LURKWELL_WAITS("io"), nullptr},
    {kProcesses, "processes", "fleet_processes", Unit::kCount, kPropertyTypeInteger,
     LURKWELL_OF_MACHINE("lurkwell_machine_processes"),
     LURKWELL_OF_GROUP("lurkwell_group_processes")},
    {kThreads, "threads", "fleet_threads", Unit::kCount, kPropertyTypeInteger, nullptr,
     LURKWELL_OF_GROUP("lurkwell_group_threads")},
    {kMachines, "machines", "fleet_machines", Unit::kCount, kPropertyTypeInteger, nullptr,
     "count by (@by) (count by (@by, instance) (lurkwell_group_processes{@m} > 0))"},
    {kOldest, "started", "fleet_oldest", Unit::kMoment, kPropertyTypeDate,
     LURKWELL_OF_MACHINE("lurkwell_machine_boot_timestamp_seconds"),
     "min by (@by) (lurkwell_group_oldest_start_timestamp_seconds{@m})"},
    {kSeen, "seen", "fleet_seen", Unit::kMoment, kPropertyTypeDate,
     "max by (@by) (timestamp(lurkwell_machine_cpus{@m}))", nullptr},
    // All that is scraped along with exporters; those that have been silent for long are known from
    // before.
    {kUp, "up", "fleet_up", Unit::kCount, kPropertyTypeInteger,
     "max by (@by) (up{@m} and on (job) (lurkwell_build_info"
     " or lurkwell_build_info offset 5m or lurkwell_build_info offset 1h"
     " or lurkwell_build_info offset 1d))",
     nullptr},
    {kDiskRead, "read", "fleet_read", Unit::kBytesPerSecond, kPropertyTypeRate, kReadOfMachine,
     kReadOfGroup},
    {kDiskWritten, "write", "fleet_written", Unit::kBytesPerSecond, kPropertyTypeRate,
     kWrittenOfMachine, kWrittenOfGroup},
    {kReceived, "received", "fleet_received", Unit::kBytesPerSecond, kPropertyTypeRate,
     kReceivedOfMachine, kReceivedOfGroup},
    {kSent, "sent", "fleet_sent", Unit::kBytesPerSecond, kPropertyTypeRate, kSentOfMachine,
     kSentOfGroup},
};
static_assert(std::size(kRows) == kFleetFigures);

constexpr FleetFigure kColumnsOfMachines[] = {
    kSeen, kCpu,     kMemory,   kMemoryAll,   kSwap,      kLoad,  kProcesses,
    kDisk, kNetwork, kWaitsCpu, kWaitsMemory, kWaitsDisk, kOldest};
constexpr FleetFigure kColumnsOfGroups[] = {kCpu,     kMemory,    kSwap,    kDisk,
                                            kNetwork, kProcesses, kThreads, kMachines};
constexpr FleetFigure kColumnsOfOne[] = {kCpu,     kMemory,    kSwap,    kDisk,
                                         kNetwork, kProcesses, kThreads, kOldest};

constexpr double kMost = 9e18;

/// "45 s", "12 min", "5 h", "3 d".
QString SpanText(double seconds) {
  const struct {
    double length;
    double until;
    const char* text;
  } kSteps[] = {{1, 120, "fleet_seconds"},
                {60, 7200, "fleet_minutes"},
                {3600, 172'800, "fleet_hours"},
                {86'400, 1e300, "fleet_days"}};
  for (const auto& [length, until, text] : kSteps)
    if (seconds < until)
      return LocalizedString(text).arg(static_cast<qint64>(std::max(seconds, 0.0) / length));
  return {};
}

QString BytesText(double value) {
  auto text = LocalFigure(QString::fromStdString(
      MemoryString(static_cast<std::int64_t>(std::clamp(value, 0.0, kMost)))));
  if (text.back().isDigit()) text += QLatin1String(" B");
  return text;
}

}  // namespace

std::span<const FleetFigureRow> FleetFigures() {
  return kRows;
}

const FleetFigureRow& RowOf(FleetFigure figure) {
  return kRows[static_cast<std::size_t>(figure)];
}

std::optional<FleetFigure> FleetFigureNamed(std::string_view key) {
  const auto* found = std::ranges::find(
      kRows, key, [](const FleetFigureRow& row) { return std::string_view(row.key); });
  if (found == std::end(kRows)) return std::nullopt;
  return found->figure;
}

std::span<const FleetFigure> ColumnsOf(FleetLevel level) {
  if (level == FleetLevel::kMachines) return kColumnsOfMachines;
  if (level == FleetLevel::kGroups) return kColumnsOfGroups;
  return kColumnsOfOne;
}

QString FleetFigureText(FleetFigure figure, double value, double now) {
  if (!std::isfinite(value)) return QStringLiteral("–");
  switch (RowOf(figure).unit) {
    case FleetUnit::kShare:
      return LocalNumber(value * 100, 'f', 1);
    case FleetUnit::kBytes:
      return BytesText(value);
    case FleetUnit::kBytesPerSecond:
      return BytesText(value) + QLatin1String("/s");
    case FleetUnit::kNumber:
      return LocalNumber(value, 'f', 2);
    case FleetUnit::kCount:
      return LocalNumber(static_cast<qint64>(std::clamp(value, -kMost, kMost)));
    case FleetUnit::kMoment:
      return SpanText(now - value);
  }
  return {};
}

}  // namespace lurkwell
