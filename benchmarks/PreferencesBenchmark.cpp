// The preference store on a real file: what an update cycle reads and what a change costs.
#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>

#include "platform/CostlyFigures.h"
#include "platform/Machine.h"
#include "platform/linux/PropertyListDomain.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

constexpr int kDefaults = 110;

// A store on a fresh folder; the other services of its machine are never used.
class Store {
 public:
  Store() : mFolder(MakeFolder()), mDomain(mFolder), mInstallation(mMachine) {}
  ~Store() {
    std::error_code ignored;
    std::filesystem::remove_all(mFolder, ignored);
  }
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

 private:
  static std::string MakeFolder() {
    std::string path = std::filesystem::temp_directory_path() / "lurkwell-benchmark-XXXXXX";
    return mkdtemp(path.data()) != nullptr ? path : std::string();
  }

  template <typename Service>
  static Service& Absent() {
    alignas(std::max_align_t) static std::array<std::byte, 64> nothing{};
    return reinterpret_cast<Service&>(nothing);
  }

  std::string mFolder;
  PropertyListDomain mDomain;
  Machine mMachine{Absent<Clock>(),          Absent<RunLoop>(),        mDomain,
                   Absent<ProcessTable>(),   Absent<ProcessManager>(), Absent<IconServices>(),
                   Absent<HostStatistics>(), Absent<Tools>(),          Absent<Signals>(),
                   Absent<NamedPipes>(),     Absent<Authorization>(),  Absent<Bundle>(),
                   Absent<Alerts>(),         Absent<LogFiles>(),       Absent<HotKeys>(),
                   Absent<Screen>(),         Absent<EventBus>(),       Absent<CostlyFigures>(),
                   Absent<ProcessDetails>(), Absent<Scheduler>()};
  MachineInstallation mInstallation;
};

std::string KeyOf(int i) {
  return "DEFAULT_SETTING_OF_A_TYPICAL_LENGTH_" + std::to_string(i);
}

void WriteDefaults() {
  for (int i = 0; i < kDefaults; ++i) {
    if (i % 4 == 0)
      GetPrefDouble(KeyOf(i).c_str(), nullptr, true, 0.25);
    else
      GetPrefInt(KeyOf(i).c_str(), nullptr, true, i);
  }
}

void PreferenceReadInt(benchmark::State& state) {
  const Store store;
  WriteDefaults();
  const std::string key = KeyOf(77);
  for (auto _ : state) benchmark::DoNotOptimize(GetPrefInt(key.c_str(), nullptr, true, 0));
}
BENCHMARK(PreferenceReadInt);

void PreferenceReadDouble(benchmark::State& state) {
  const Store store;
  WriteDefaults();
  const std::string key = KeyOf(76);
  for (auto _ : state) benchmark::DoNotOptimize(GetPrefDouble(key.c_str(), nullptr, true, 0));
}
BENCHMARK(PreferenceReadDouble);

void PreferenceReadString(benchmark::State& state) {
  const Store store;
  WriteDefaults();
  SetPrefString("NAME", "a process name");
  std::array<char, 64> buffer{};
  for (auto _ : state) {
    GetPrefString("NAME", buffer.data(), 64, nullptr, false, "");
    benchmark::DoNotOptimize(buffer);
  }
}
BENCHMARK(PreferenceReadString);

void PreferenceSynchronizedWrite(benchmark::State& state) {
  const Store store;
  WriteDefaults();
  std::int32_t value = 0;
  for (auto _ : state) SetPrefInt("CHANGING", ++value);
}
BENCHMARK(PreferenceSynchronizedWrite)->Unit(benchmark::kMicrosecond)->UseRealTime();

void PreferenceFirstStartsDefaults(benchmark::State& state) {
  for (auto _ : state) {
    const Store store;
    WriteDefaults();
  }
}
BENCHMARK(PreferenceFirstStartsDefaults)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace lurkwell
