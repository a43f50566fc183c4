// The animated view's layout: one step of all records, and the search for the places of new ones.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <random>

#include "animated_view/Placement.h"
#include "animated_view/QuintessentialSupport.h"

namespace lurkwell {
namespace {

/// A machine's families: few parents with many children, many with few.
QipiList Population(std::int64_t count, bool placed) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> unit;
  QipiList list;
  for (std::int32_t pid = 0; pid < count; ++pid) {
    QuintessentialInformationProcessInfo info;
    info.pid = pid;
    info.parentPid = pid < 3 ? 0 : pid % 3 == 0 ? pid / 2 : pid % 3;
    info.x = unit(random);
    info.y = unit(random);
    info.weight = 0.5;
    info.locationInitialized = placed;
    list.PushFront(std::move(info));
  }
  return list;
}

void LayoutStep(benchmark::State& state) {
  QipiList list = Population(state.range(0), true);
  for (auto _ : state) benchmark::DoNotOptimize(DisIsRevoltin(list, false));
}
BENCHMARK(LayoutStep)->Arg(250)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);

/// All slices together; "longest" is what one update pass takes at most, "passes" how many it
/// takes.
void FirstPlacement(benchmark::State& state) {
  double longest = 0;
  int passes = 0;
  const RandomSource random = [] { return 1073741823L; };
  for (auto _ : state) {
    state.PauseTiming();
    QipiList list = Population(state.range(0), false);
    const QipiList shown;
    state.ResumeTiming();
    passes = 0;
    for (auto next = list.begin(); next != list.end(); ++passes) {
      const auto start = std::chrono::steady_clock::now();
      Placement placement(list, shown, random);
      while (next != list.end() && placement.SetUpInitialCoords(*next)) ++next;
      const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
      longest = std::max(longest, time.count());
    }
  }
  state.counters["longest"] = longest;
  state.counters["passes"] = passes;
}
BENCHMARK(FirstPlacement)->Arg(250)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lurkwell
