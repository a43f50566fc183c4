#include "machine_window/MachineRecorder.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "platform/Clock.h"
#include "platform/HostStatistics.h"
#include "platform/Machine.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kWatchedInterval = 2000;
constexpr std::int32_t kUnwatchedInterval = 10'000;
constexpr std::size_t kMostShownProcessors = 1024;
constexpr std::size_t kMostDevices = 32;
constexpr MachineSources kAlwaysRecorded =
    kProcessorTimes | kMachineMemory | kDisks | kNetworkInterfaces | kPressure | kGraphicsDevices;
constexpr MachineSources kToldOnly = kLoad | kTemperatures | kFrequencies | kLimits;

MachineRecorder* sRecorder = nullptr;

std::int64_t Milliseconds(TimeValue time) {
  return time.seconds * 1000 + time.microseconds / 1000;
}

/// Some of the last ten seconds, in per cent.
std::optional<double> RecentShare(const std::optional<PressureShares>& pressure,
                                  std::array<double, 3> PressureShares::*whose) {
  if (!pressure) return {};
  return ((*pressure).*whose)[0] / 100;
}

}  // namespace

MachineRecorder& MachineRecorder::Running() {
  if (sRecorder == nullptr) {
    sRecorder = new MachineRecorder;
    AddProcessInformationClient(sRecorder);
    RequestUpdate(sRecorder);
  }
  return *sRecorder;
}

MachineRecorder* MachineRecorder::IfRunning() {
  return sRecorder;
}

MachineRecorder::MachineRecorder() : ProcessInformationClient(nullptr, kUnwatchedInterval) {
  for (std::size_t i = 0; i < kMachineSeriesCount; ++i) mHistory.AddSeries();
}

MachineRecorder::~MachineRecorder() {
  sRecorder = nullptr;
}

void MachineRecorder::SetWatcher(std::function<void()> watcher) {
  const bool begins = watcher && !mWatcher;
  mWatcher = std::move(watcher);
  SetInterval(mWatcher ? kWatchedInterval : kUnwatchedInterval);
  if (begins) RequestUpdate(this);
}

std::int32_t MachineRecorder::MayComeEarlyBy() const {
  return Interval() - static_cast<std::int32_t>(kLeastMilliseconds);
}

ProcessInformationClient::NeedLevel MachineRecorder::NeedPidsForProcProperty(const char* property) {
  return NeedPidProcProperty(kInvalidPID, property) ? kNeedAllPids : kNeedNoPids;
}

bool MachineRecorder::NeedPidProcProperty(int, const char* property) {
  return std::strcmp(property, "meta_active_time") == 0 || std::strcmp(property, "pid_rsz") == 0 ||
         std::strcmp(property, "meta_name") == 0;
}

void MachineRecorder::NotifyPidHasBeenAdded(int pid) {
  // The idle task is busy with nothing.
  if (pid == 0) return;
  // One that was born since the last turn has used all its time since.
  mReadings[pid] = {.active = {}, .when = mLastTurn, .isThere = !mLastTurn.IsZero()};
}

void MachineRecorder::NotifyPidHasBeenRemoved(int pid) {
  mReadings.erase(pid);
}

void MachineRecorder::NotifyProcessesHaveBeenUpdated() {
  const auto now = TheMachine().clock.Now();
  RecordFigures(now);
  RecordBusiest(now);
  mLastTurn = now;
  if (mWatcher) mWatcher();
}

void MachineRecorder::Put(std::size_t series, std::optional<double> value) {
  if (mValues.size() <= series) mValues.resize(series + 1, FigureHistory::kMissing);
  if (value) mValues[series] = static_cast<float>(*value);
}

void MachineRecorder::RecordFigures(TimeValue now) {
  const auto wanted = mWatcher ? kAlwaysRecorded | kToldOnly : kAlwaysRecorded;
  mFigures = TheMachine().hostStatistics.Read(wanted);
  const auto activity = mRates.Take(mFigures, now.seconds * 1'000'000 + now.microseconds);
  mValues.assign(mHistory.CountSeries(), FigureHistory::kMissing);
  RecordProcessors(activity);
  RecordMemory();
  RecordPressure();
  Put(kDiskRead, activity.diskRead);
  Put(kDiskWritten, activity.diskWritten);
  Put(kReceived, activity.received);
  Put(kSent, activity.sent);
  RecordDevices(mDisks, activity.disks);
  RecordDevices(mInterfaces, activity.interfaces);
  RecordGraphics();
  mHistory.Add(Milliseconds(now), mValues);
}

void MachineRecorder::RecordProcessors(const MachineActivity& activity) {
  double sum = 0;
  int count = 0;
  for (std::size_t number = 0; number < activity.processors.size(); ++number) {
    const auto& busy = activity.processors[number];
    if (!busy) continue;
    sum += *busy;
    ++count;
    if (number >= kMostShownProcessors) continue;
    if (mProcessors.size() <= number) mProcessors.resize(number + 1, kNoSeries);
    if (mProcessors[number] == kNoSeries) mProcessors[number] = mHistory.AddSeries();
    Put(mProcessors[number], busy);
  }
  if (count > 0) Put(kProcessorsBusy, sum / count);
}

void MachineRecorder::RecordMemory() {
  if (!mFigures.memory) return;
  const auto& memory = *mFigures.memory;
  Put(kMemoryUsed, static_cast<double>(memory.total - memory.available));
  if (memory.swap > 0) Put(kSwapUsed, static_cast<double>(memory.swap - memory.swapFree));
}

void MachineRecorder::RecordPressure() {
  Put(kProcessorWaiting, RecentShare(mFigures.processorPressure, &PressureShares::some));
  Put(kMemoryWaiting, RecentShare(mFigures.memoryPressure, &PressureShares::some));
  Put(kDiskWaiting, RecentShare(mFigures.diskPressure, &PressureShares::some));
  Put(kMemoryStalled, RecentShare(mFigures.memoryPressure, &PressureShares::full));
  Put(kDiskStalled, RecentShare(mFigures.diskPressure, &PressureShares::full));
}

void MachineRecorder::RecordDevices(std::vector<Device>& devices,
                                    std::span<const MovedRates> rates) {
  for (const auto& rate : rates) {
    auto device = std::ranges::find(devices, rate.name, &Device::name);
    if (device == devices.end()) {
      if (devices.size() >= kMostDevices) continue;
      const auto in = mHistory.AddSeries();
      device = devices.insert(device, {rate.name, in, mHistory.AddSeries()});
    }
    Put(device->in, rate.in);
    Put(device->out, rate.out);
  }
}

void MachineRecorder::RecordGraphics() {
  for (const auto& card : mFigures.graphics) {
    auto known = std::ranges::find(mGraphics, card.name, &Graphics::name);
    if (known == mGraphics.end()) {
      if (mGraphics.size() >= kMostDevices) continue;
      known = mGraphics.insert(known, {card.name, mHistory.AddSeries()});
    }
    Put(known->busy, card.busy);
  }
}

std::optional<double> MachineRecorder::ShareOf(std::int32_t pid, Reading& reading,
                                               TimeValue now) const {
  const auto glance = GlanceAt(pid);
  if (glance.changeStamp == 0 || !glance.timesAreFresh) return {};
  const auto before = std::exchange(reading, {glance.activeTime, now, true});
  const double seconds = SecondsBetween(before.when, now);
  if (!before.isThere || seconds <= 0 || glance.activeTime <= before.active) return {};
  const double share = SecondsBetween(before.active, glance.activeTime) / seconds;
  // One that was hidden until now has used its time long ago.
  if (before.active.IsZero() &&
      share > 2.0 * static_cast<double>(std::max<std::size_t>(mProcessors.size(), 1)))
    return {};
  return share;
}

void MachineRecorder::RecordBusiest(TimeValue now) {
  std::vector<std::pair<double, std::int32_t>> busy;
  for (auto& [pid, reading] : mReadings)
    if (const auto share = ShareOf(pid, reading, now)) busy.emplace_back(*share, pid);
  const auto count = std::min(busy.size(), BusiestHistory::kMostProcesses);
  const auto last = busy.begin() + static_cast<std::ptrdiff_t>(count);
  std::ranges::partial_sort(busy, last, [](const auto& a, const auto& b) {
    return a.first != b.first ? a.first > b.first : a.second < b.second;
  });
  std::vector<BusyProcess> busiest(count);
  for (std::size_t i = 0; i < count; ++i) {
    const auto [share, pid] = busy[i];
    busiest[i].SetName(WholeNameOf(pid));
    busiest[i].pid = pid;
    busiest[i].share = static_cast<float>(share);
    busiest[i].startStamp = GetPidsStartStamp(pid);
    const auto memory = GetPIDPropertyTypedValue(pid, "pid_rsz");
    const auto* bytes = std::get_if<std::int64_t>(&memory);
    busiest[i].memory = bytes != nullptr ? static_cast<float>(*bytes) : FigureHistory::kMissing;
  }
  mBusiest.Add(Milliseconds(now), busiest);
}

}  // namespace lurkwell
