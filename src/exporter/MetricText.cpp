#include "exporter/MetricText.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace lurkwell {
namespace {

using enum MetricType;

/// A group, and what its samples have between braces.
struct LabelledGroup {
  const GroupFigures* figures;
  std::string labels;

  std::string With(std::string_view name, std::string_view value) const {
    return std::string(labels).append(",").append(name).append("=\"").append(value).append("\"");
  }
};
using Groups = std::vector<LabelledGroup>;

std::string Label(std::string_view name, std::string_view value) {
  return std::string(name).append("=\"").append(value).append("\"");
}

/// A metric that each group has one of.
struct GroupMetric {
  MetricFamily family;
  std::optional<std::int64_t> (*value)(const GroupFigures&);
};

constexpr GroupMetric kGroupMetrics[] = {
    {{"lurkwell_group_disk_read_bytes", kCounter, "Bytes that were read from disks"},
     [](const GroupFigures& group) { return group.diskRead; }},
    {{"lurkwell_group_disk_written_bytes", kCounter, "Bytes that were written to disks"},
     [](const GroupFigures& group) { return group.diskWritten; }},
    {{"lurkwell_group_network_received_bytes", kCounter,
      "Bytes that were received over TCP connections"},
     [](const GroupFigures& group) { return group.received; }},
    {{"lurkwell_group_network_sent_bytes", kCounter, "Bytes that were sent over TCP connections"},
     [](const GroupFigures& group) { return group.sent; }},
    {{"lurkwell_group_memory_resident_bytes", kGauge,
      "Resident memory, with shared pages counted for each process"},
     [](const GroupFigures& group) { return group.resident; }},
    {{"lurkwell_group_memory_proportional_bytes", kGauge,
      "Resident memory, with shared pages divided among those who share them"},
     [](const GroupFigures& group) { return group.proportional; }},
    {{"lurkwell_group_memory_swap_bytes", kGauge, "Memory that is swapped out"},
     [](const GroupFigures& group) { return group.swap; }},
    {{"lurkwell_group_threads", kGauge, "Threads"},
     [](const GroupFigures& group) { return std::optional(group.threads); }},
    {{"lurkwell_group_processes", kGauge, "Processes"},
     [](const GroupFigures& group) { return std::optional(group.processes); }},
    {{"lurkwell_group_open_files", kGauge, "Open descriptors"},
     [](const GroupFigures& group) { return group.openFiles; }},
};

Groups Labelled(const Snapshot& snapshot) {
  Groups groups;
  for (std::size_t kind = 0; kind < kGroupKinds; ++kind)
    for (const auto& group : snapshot.kinds[kind].groups)
      groups.push_back({&group, Label("kind", kGroupKindNames[kind]) + ',' +
                                    Label("group", LabelValue(group.name))});
  return groups;
}

void WriteGroups(const Groups& groups, MetricWriter& writer) {
  writer.Begin({"lurkwell_group_cpu_seconds", kCounter, "Time on processors"});
  for (const auto& group : groups) {
    writer.Seconds(group.With("mode", "user"), group.figures->userTime);
    writer.Seconds(group.With("mode", "system"), group.figures->systemTime);
  }
  for (const auto& metric : kGroupMetrics) {
    writer.Begin(metric.family);
    for (const auto& group : groups) writer.Whole(group.labels, metric.value(*group.figures));
  }
  writer.Begin({"lurkwell_group_state_processes", kGauge, "Processes by what they do"});
  for (const auto& group : groups)
    for (std::size_t state = 0; state < kProcessStates; ++state)
      writer.Whole(group.With("state", kProcessStateNames[state]), group.figures->states[state]);
  writer.Begin({"lurkwell_group_oldest_start_timestamp_seconds", kGauge,
                "When the oldest process has started, in seconds since 1970"});
  for (const auto& group : groups) writer.Time(group.labels, group.figures->oldestStart);
}

void WriteProcessors(const Snapshot& snapshot, MetricWriter& writer) {
  writer.Begin({"lurkwell_machine_cpu_seconds", kCounter, "Time of all processors together"});
  if (const auto& modes = snapshot.machine.modes) {
    const std::pair<std::string_view, std::int64_t> kModes[] = {{"user", modes->user},
                                                                {"nice", modes->nice},
                                                                {"system", modes->system},
                                                                {"idle", modes->idle},
                                                                {"iowait", modes->waiting},
                                                                {"irq", modes->interrupts},
                                                                {"softirq", modes->softInterrupts},
                                                                {"steal", modes->stolen}};
    for (const auto& [mode, time] : kModes) writer.Seconds(Label("mode", mode), time);
  }
  writer.Begin({"lurkwell_machine_cpus", kGauge, "Processors that run processes"});
  writer.Whole({}, snapshot.processors);
  constexpr MetricFamily kLoads[] = {
      {"lurkwell_machine_load1", kGauge, "Load over one minute"},
      {"lurkwell_machine_load5", kGauge, "Load over five minutes"},
      {"lurkwell_machine_load15", kGauge, "Load over fifteen minutes"}};
  for (std::size_t i = 0; i < std::size(kLoads); ++i) {
    writer.Begin(kLoads[i]);
    if (const auto& load = snapshot.machine.load) writer.Real({}, (*load)[i]);
  }
}

void WriteMemory(const Snapshot& snapshot, MetricWriter& writer) {
  const auto& memory = snapshot.machine.memory;
  writer.Begin({"lurkwell_machine_memory_bytes", kGauge, "Memory of the machine"});
  if (memory) {
    writer.Whole(Label("kind", "total"), memory->total);
    writer.Whole(Label("kind", "available"), memory->available);
    writer.Whole(Label("kind", "free"), memory->free);
    writer.Whole(Label("kind", "cached"), memory->cached);
    writer.Whole(Label("kind", "buffers"), memory->buffers);
    writer.Whole(Label("kind", "shared"), memory->shared);
  }
  writer.Begin({"lurkwell_machine_swap_bytes", kGauge, "Swap of the machine"});
  if (memory) {
    writer.Whole(Label("kind", "total"), memory->swap);
    writer.Whole(Label("kind", "free"), memory->swapFree);
  }
}

void WriteDevices(const MetricFamily& in, const MetricFamily& out,
                  const std::vector<MovedBytes>& devices, MetricWriter& writer) {
  writer.Begin(in);
  for (const auto& device : devices)
    writer.Whole(Label("device", LabelValue(device.name)), device.in);
  writer.Begin(out);
  for (const auto& device : devices)
    writer.Whole(Label("device", LabelValue(device.name)), device.out);
}

void WritePressure(const MachineFigures& machine, MetricWriter& writer) {
  writer.Begin({"lurkwell_machine_pressure_waiting_seconds", kCounter,
                "For how long some, or all, that could have run have waited"});
  const std::pair<std::string_view, const std::optional<PressureShares>*> kResources[] = {
      {"cpu", &machine.processorPressure},
      {"memory", &machine.memoryPressure},
      {"io", &machine.diskPressure}};
  for (const auto& [resource, shares] : kResources) {
    if (!*shares) continue;
    const auto label = Label("resource", resource) + ',';
    writer.Seconds(label + Label("kind", "some"), (*shares)->someTime);
    writer.Seconds(label + Label("kind", "full"), (*shares)->fullTime);
  }
}

void WriteMachine(const Snapshot& snapshot, MetricWriter& writer) {
  WriteProcessors(snapshot, writer);
  WriteMemory(snapshot, writer);
  WriteDevices(
      {"lurkwell_machine_disk_read_bytes", kCounter, "Bytes that were read from a disk"},
      {"lurkwell_machine_disk_written_bytes", kCounter, "Bytes that were written to a disk"},
      snapshot.machine.disks, writer);
  WriteDevices(
      {"lurkwell_machine_network_received_bytes", kCounter,
       "Bytes that a network interface has received"},
      {"lurkwell_machine_network_sent_bytes", kCounter, "Bytes that a network interface has sent"},
      snapshot.machine.interfaces, writer);
  WritePressure(snapshot.machine, writer);
  writer.Begin({"lurkwell_machine_boot_timestamp_seconds", kGauge,
                "When the machine has started, in seconds since 1970"});
  writer.Time({}, snapshot.bootTime);
  writer.Begin({"lurkwell_machine_processes", kGauge,
                "Processes that the exporter sees, threads of the kernel among them"});
  writer.Whole({}, snapshot.processes);
}

}  // namespace

std::string MetricText(const Snapshot& snapshot, MetricFormat format, std::string_view version) {
  MetricWriter writer(format);
  WriteGroups(Labelled(snapshot), writer);
  WriteMachine(snapshot, writer);
  writer.Begin({"lurkwell_build", kInfo, "The exporter that answers"});
  writer.Whole(Label("version", LabelValue(version)), 1);
  writer.Begin({"lurkwell_groups_left_out", kGauge,
                "Groups that have no place of their own and are summed into other"});
  for (std::size_t kind = 0; kind < kGroupKinds; ++kind)
    if (snapshot.kinds[kind].isWanted)
      writer.Whole(Label("kind", kGroupKindNames[kind]), snapshot.kinds[kind].leftOut);
  writer.Begin({"lurkwell_scrape_seconds", kGauge, "How long the reading took"});
  writer.Real({}, snapshot.seconds);
  return writer.Take();
}

}  // namespace lurkwell
