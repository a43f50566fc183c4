#include "platform/linux/LinuxHostStatistics.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace lurkwell {
namespace {

constexpr std::int64_t kSector = 512;
constexpr std::size_t kMostDevices = 1024;
constexpr std::size_t kDeepestGroup = 64;

/// Calls `take` with each line.
template <typename Take>
void ForEachLine(std::string_view text, Take take) {
  while (!text.empty()) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    take(line);
  }
}

std::string_view NextWord(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  const auto word = text.substr(0, text.find_first_of(" \t\n"));
  text.remove_prefix(word.size());
  return word;
}

template <typename Number>
std::optional<Number> Parsed(std::string_view word) {
  Number number{};
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return number;
}

/// The next numbers of a line; nothing when there are fewer.
template <std::size_t kCount>
std::optional<std::array<std::int64_t, kCount>> NextNumbers(std::string_view text) {
  std::array<std::int64_t, kCount> numbers{};
  for (auto& number : numbers) {
    const auto parsed = Parsed<std::int64_t>(NextWord(text));
    if (!parsed || *parsed < 0) return std::nullopt;
    number = *parsed;
  }
  return numbers;
}

/// The numbers behind avg10=, avg60= and avg300=.
std::array<double, 3> Averages(std::string_view line) {
  std::array<double, 3> averages{};
  constexpr std::string_view kNames[] = {"avg10=", "avg60=", "avg300="};
  for (std::size_t i = 0; i < averages.size(); ++i) {
    const auto at = line.find(kNames[i]);
    if (at == std::string_view::npos) continue;
    auto rest = line.substr(at + kNames[i].size());
    averages[i] = std::clamp(Parsed<double>(NextWord(rest)).value_or(0), 0.0, 100.0);
  }
  return averages;
}

/// The number behind total=, in microseconds.
std::optional<std::int64_t> TotalTime(std::string_view line) {
  constexpr std::string_view kName = "total=";
  const auto at = line.find(kName);
  if (at == std::string_view::npos) return std::nullopt;
  auto rest = line.substr(at + kName.size());
  const auto time = Parsed<std::int64_t>(NextWord(rest));
  return time && *time >= 0 ? time : std::nullopt;
}

/// Names in a folder that begin so, sorted.
std::vector<std::string> NamesBeginning(const std::string& folder, std::string_view begin) {
  std::vector<std::string> names;
  std::error_code error;
  for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end;
       at.increment(error)) {
    auto name = at->path().filename().string();
    if (name.starts_with(begin) && names.size() < kMostDevices) names.push_back(std::move(name));
  }
  std::ranges::sort(names);
  return names;
}

bool Exists(const std::string& path) {
  return ::access(path.c_str(), F_OK) == 0;
}

template <typename Number>
void TakeTighter(std::optional<Number>& limit, Number other) {
  if (!limit || other < *limit) limit = other;
}

}  // namespace

std::optional<std::int64_t> NumberOf(std::string_view text, std::string_view name) {
  for (std::size_t at = text.find(name); at != std::string_view::npos;
       at = text.find(name, at + 1)) {
    if (at != 0 && text[at - 1] != '\n') continue;
    auto rest = text.substr(at + name.size());
    const auto number = Parsed<std::int64_t>(NextWord(rest));
    return number && *number >= 0 ? number : std::nullopt;
  }
  return std::nullopt;
}

MachineReader::MachineReader(const std::string& proc, std::string sys)
    : mProc(proc), mSys(std::move(sys)), mSysFiles(mSys) {}

MachineFigures MachineReader::Read(MachineSources wanted) {
  MachineFigures figures;
  if ((wanted & kProcessorTimes) != 0) ReadProcessorTimes(figures);
  if ((wanted & kMachineMemory) != 0) ReadMemory(figures);
  if ((wanted & kDisks) != 0) ReadDisks(figures);
  if ((wanted & kNetworkInterfaces) != 0) ReadInterfaces(figures);
  if ((wanted & kPressure) != 0) {
    figures.processorPressure = ReadPressure("pressure/cpu");
    figures.memoryPressure = ReadPressure("pressure/memory");
    figures.diskPressure = ReadPressure("pressure/io");
  }
  if ((wanted & kLoad) != 0) ReadLoad(figures);
  if ((wanted & kTemperatures) != 0) ReadTemperatures(figures);
  if ((wanted & kFrequencies) != 0) ReadFrequencies(figures);
  if ((wanted & kGraphicsDevices) != 0) ReadGraphics(figures);
  if ((wanted & kLimits) != 0) ReadLimits(figures);
  return figures;
}

std::string MachineReader::Line(const std::string& path) {
  auto text = mSysFiles.ReadText(path.c_str());
  text.resize(std::min(text.find('\n'), text.size()));
  return text;
}

std::optional<std::int64_t> MachineReader::Number(const std::string& path) {
  return Parsed<std::int64_t>(Line(path));
}

/// "cpu" for all together, or "cpuN", and the times as user, nice, system, idle, waiting, for
/// interrupts twice, stolen. Guests' times are in the users'.
void MachineReader::ReadProcessorTimes(MachineFigures& figures) {
  const std::int64_t tick = 1'000'000 / std::max(1L, ::sysconf(_SC_CLK_TCK));
  ForEachLine(mProc.ReadText("stat"), [&](std::string_view line) {
    const auto name = NextWord(line);
    if (name == "processes") figures.begunTasks = Parsed<std::int64_t>(NextWord(line));
    if (!name.starts_with("cpu")) return;
    const auto number = Parsed<int>(name.substr(3));
    auto times = NextNumbers<8>(line);
    if (!times) return;
    if (name == "cpu") {
      for (auto& time : *times) time *= tick;
      const auto& [user, nice, system, idle, waiting, interrupts, soft, stolen] = *times;
      figures.modes = {user, nice, system, idle, waiting, interrupts, soft, stolen};
    }
    if (!number) return;
    const auto& [user, nice, system, idle, waiting, interrupts, soft, stolen] = *times;
    figures.processors.push_back({*number,
                                  (user + nice + system + interrupts + soft + stolen) * tick,
                                  (idle + waiting) * tick});
  });
}

void MachineReader::ReadMemory(MachineFigures& figures) {
  const auto text = mProc.ReadText("meminfo");
  const auto bytes = [&](std::string_view name) { return NumberOf(text, name).value_or(0) * 1024; };
  if (!NumberOf(text, "MemTotal:") || !NumberOf(text, "MemAvailable:")) return;
  auto& memory = figures.memory.emplace();
  memory = {bytes("MemTotal:"), bytes("MemAvailable:"), bytes("SwapTotal:"), bytes("SwapFree:")};
  const auto told = [&](std::string_view name) -> std::optional<std::int64_t> {
    const auto kibibytes = NumberOf(text, name);
    if (!kibibytes) return std::nullopt;
    return *kibibytes * 1024;
  };
  memory.free = told("MemFree:");
  memory.cached = told("Cached:");
  memory.buffers = told("Buffers:");
  memory.shared = told("Shmem:");
  // ZFS keeps its cache apart from the pages that the kernel calls available: lines of a name, a
  // type and the number.
  std::int64_t size = 0;
  std::int64_t least = 0;
  ForEachLine(mProc.ReadText("spl/kstat/zfs/arcstats"), [&](std::string_view line) {
    const auto name = NextWord(line);
    NextWord(line);
    if (name == "size") size = Parsed<std::int64_t>(NextWord(line)).value_or(0);
    if (name == "c_min") least = Parsed<std::int64_t>(NextWord(line)).value_or(0);
  });
  memory.available =
      std::min(memory.available + std::max<std::int64_t>(size - least, 0), memory.total);
}

/// Two numbers, a name, then sectors read as the third number behind it and written as the seventh.
void MachineReader::ReadDisks(MachineFigures& figures) {
  ForEachLine(mProc.ReadText("diskstats"), [&](std::string_view line) {
    NextWord(line);
    NextWord(line);
    const std::string name(NextWord(line));
    const auto numbers = NextNumbers<7>(line);
    // A partition is counted with its disk.
    if (!numbers || figures.disks.size() >= kMostDevices || !Exists(mSys + "/block/" + name))
      return;
    figures.disks.push_back({name, (*numbers)[2] * kSector, (*numbers)[6] * kSector,
                             Exists(mSys + "/block/" + name + "/device")});
  });
}

/// "name:" and bytes received as the first number behind it, sent as the ninth.
void MachineReader::ReadInterfaces(MachineFigures& figures) {
  ForEachLine(mProc.ReadText("net/dev"), [&](std::string_view line) {
    const auto colon = line.rfind(':');
    if (colon == std::string_view::npos || figures.interfaces.size() >= kMostDevices) return;
    auto before = line.substr(0, colon);
    const std::string name(NextWord(before));
    const auto numbers = NextNumbers<9>(line.substr(colon + 1));
    if (!numbers) return;
    figures.interfaces.push_back(
        {name, (*numbers)[0], (*numbers)[8], Exists(mSys + "/class/net/" + name + "/device")});
  });
}

std::optional<PressureShares> MachineReader::ReadPressure(const char* file) {
  std::optional<PressureShares> shares;
  ForEachLine(mProc.ReadText(file), [&](std::string_view line) {
    const auto kind = NextWord(line);
    if (kind != "some" && kind != "full") return;
    if (!shares) shares.emplace();
    (kind == "some" ? shares->some : shares->full) = Averages(line);
    (kind == "some" ? shares->someTime : shares->fullTime) = TotalTime(line);
  });
  return shares;
}

void MachineReader::ReadLoad(MachineFigures& figures) {
  const auto text = mProc.ReadText("loadavg");
  std::string_view rest = text;
  std::array<double, 3> load{};
  for (auto& number : load) {
    const auto parsed = Parsed<double>(NextWord(rest));
    if (!parsed || !(*parsed >= 0)) return;
    number = *parsed;
  }
  figures.load = load;
}

void MachineReader::ReadTemperatures(MachineFigures& figures) {
  const std::string chips = "class/hwmon";
  for (const auto& chip : NamesBeginning(mSys + '/' + chips, "hwmon")) {
    const auto folder = chips + '/' + chip;
    if (Line(folder + "/device/power/runtime_status") == "suspended") continue;
    for (const auto& input : NamesBeginning(mSys + '/' + folder, "temp")) {
      if (!input.ends_with("_input")) continue;
      const auto sensor = folder + '/' + input.substr(0, input.find('_'));
      const auto thousandths = Number(sensor + "_input");
      if (!thousandths) continue;
      const auto label = Line(sensor + "_label");
      figures.temperatures.push_back({Line(folder + "/name") + (label.empty() ? "" : ' ' + label),
                                      static_cast<double>(*thousandths) / 1000});
    }
  }
  if (!figures.temperatures.empty()) return;
  const std::string zones = "class/thermal";
  for (const auto& zone : NamesBeginning(mSys + '/' + zones, "thermal_zone"))
    if (const auto thousandths = Number(zones + '/' + zone + "/temp"))
      figures.temperatures.push_back(
          {Line(zones + '/' + zone + "/type"), static_cast<double>(*thousandths) / 1000});
}

void MachineReader::ReadFrequencies(MachineFigures& figures) {
  const std::string folder = "devices/system/cpu";
  for (const auto& name : NamesBeginning(mSys + '/' + folder, "cpu")) {
    const auto number = Parsed<int>(std::string_view(name).substr(3));
    if (!number) continue;
    if (const auto kilohertz = Number(folder + '/' + name + "/cpufreq/scaling_cur_freq"))
      figures.frequencies.push_back({*number, *kilohertz * 1000});
  }
  std::ranges::sort(figures.frequencies, {}, &Frequency::processor);
}

/// Of cards that tell how busy they are; their connectors' folders have names that begin like
/// theirs.
void MachineReader::ReadGraphics(MachineFigures& figures) {
  const std::string cards = "class/drm";
  for (const auto& card : NamesBeginning(mSys + '/' + cards, "card")) {
    const auto device = cards + '/' + card + "/device";
    if (card.find('-') != std::string::npos ||
        Line(device + "/power/runtime_status") == "suspended")
      continue;
    const auto busy = Number(device + "/gpu_busy_percent");
    if (!busy) continue;
    figures.graphics.push_back({card, std::clamp(static_cast<double>(*busy) / 100, 0.0, 1.0),
                                Number(device + "/mem_info_vram_used"),
                                Number(device + "/mem_info_vram_total")});
  }
}

/// Lines of a number, the controllers, and the path: "0::/path" for the unified hierarchy.
void MachineReader::ReadLimits(MachineFigures& figures) {
  const bool isUnified = Exists(mSys + "/fs/cgroup/cgroup.controllers");
  ForEachLine(mProc.ReadText("self/cgroup"), [&](std::string_view line) {
    const auto first = line.find(':');
    const auto second = line.find(':', first + 1);
    if (first == std::string_view::npos || second == std::string_view::npos) return;
    const auto controllers = line.substr(first + 1, second - first - 1);
    const std::string path(line.substr(second + 1));
    if (isUnified && controllers.empty()) ReadLimitsOf("fs/cgroup", path, true, figures.limits);
    if (isUnified || (controllers != "memory" && !controllers.starts_with("cpu"))) return;
    if (controllers == "memory" || controllers.find("cpu,") == 0 || controllers == "cpu")
      ReadLimitsOf("fs/cgroup/" + std::string(controllers), path, false, figures.limits);
  });
  // A limit beyond what there is, is none.
  const auto total = NumberOf(mProc.ReadText("meminfo"), "MemTotal:");
  if (figures.limits.memory && total && *figures.limits.memory >= *total * 1024) {
    figures.limits.memory.reset();
    figures.limits.memoryUsed.reset();
  }
}

void MachineReader::ReadLimitsOf(const std::string& folder, const std::string& path, bool isUnified,
                                 MachineLimits& limits) {
  // A path of the machine outside is none that is mounted here: then its root is our group.
  const bool isHere = path.starts_with('/') && !path.starts_with("/..") && path != "/" &&
                      Exists(mSys + '/' + folder + path);
  std::string group = isHere ? path : "";
  for (std::size_t depth = 0; depth < kDeepestGroup; ++depth) {
    const auto at = folder + group + '/';
    const auto most = Number(at + (isUnified ? "memory.max" : "memory.limit_in_bytes"));
    if (most && (!limits.memory || *most < *limits.memory)) {
      limits.memory = most;
      limits.memoryUsed = Number(at + (isUnified ? "memory.current" : "memory.usage_in_bytes"));
    }
    const auto quotaText = Line(at + (isUnified ? "cpu.max" : "cpu.cfs_quota_us"));
    std::string_view rest = quotaText;
    const auto quota = Parsed<std::int64_t>(NextWord(rest));
    const auto period =
        isUnified ? Parsed<std::int64_t>(NextWord(rest)) : Number(at + "cpu.cfs_period_us");
    if (quota && period && *quota > 0 && *period > 0)
      TakeTighter(limits.processors, static_cast<double>(*quota) / static_cast<double>(*period));
    if (group.empty()) return;
    group.resize(group.rfind('/'));
  }
}

std::optional<std::int64_t> LinuxHostStatistics::PageSize() const {
  const long size = ::sysconf(_SC_PAGESIZE);
  if (size <= 0) return {};
  return size;
}

bool LinuxHostStatistics::ReadVirtualMemory(VirtualMemoryStatistics& statistics) const {
  const std::int64_t pageKibibytes = std::max<std::int64_t>(PageSize().value_or(4096) / 1024, 1);
  const auto memory = mFiles.ReadText("meminfo");
  const auto pages = [&](std::string_view name) -> std::optional<std::int64_t> {
    const auto kibibytes = NumberOf(memory, name);
    if (!kibibytes) return {};
    return *kibibytes / pageKibibytes;
  };
  const auto free = pages("MemFree:");
  const auto available = pages("MemAvailable:");
  if (free) statistics.freePages = *free;
  if (free && available) statistics.inactivePages = std::max<std::int64_t>(*available - *free, 0);
  // A kernel without one of these has nothing of the kind.
  if (free)
    statistics.wiredPages = pages("SUnreclaim:").value_or(0) + pages("KernelStack:").value_or(0) +
                            pages("PageTables:").value_or(0) + pages("Unevictable:").value_or(0);
  const auto pageouts = NumberOf(mFiles.ReadText("vmstat"), "pswpout ");
  if (pageouts) statistics.pageouts = *pageouts;
  return free && available && pageouts;
}

std::int64_t LinuxHostStatistics::PhysicalMemory() const {
  const long pages = ::sysconf(_SC_PHYS_PAGES);
  return pages > 0 ? pages * PageSize().value_or(4096) : 0;
}

int LinuxHostStatistics::Processors() const {
  return static_cast<int>(std::max(::sysconf(_SC_NPROCESSORS_ONLN), 1L));
}

}  // namespace lurkwell
