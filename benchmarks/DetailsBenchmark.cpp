// Details of one process: what reading them takes of the background, and what their rows take of
// the main thread, at as many as are ever shown.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "OffscreenApplication.h"
#include "platform/FileDescriptor.h"
#include "platform/linux/DetailsReader.h"
#include "platform/linux/ProcFiles.h"
#include "process_details/DetailsLists.h"
#include "process_details/DetailsTable.h"

namespace lurkwell {
namespace {

ProcessIdentity Ourselves() {
  ProcFiles files("/proc");
  return {::getpid(), CurrentStartStamp(files, ::getpid())};
}

void ReadOwnDetails(benchmark::State& state) {
  RaiseDescriptorLimit();
  std::vector<FileDescriptor> descriptors;
  for (std::int64_t i = 0; i < state.range(1); ++i) descriptors.emplace_back(::dup(0));
  const auto kind = static_cast<DetailsKind>(state.range(0));
  DetailsAnswer answer;
  for (auto _ : state) answer = ReadDetails({"/proc", {}}, Ourselves(), kind);
  state.counters["listed"] = static_cast<double>(answer.count);
}

/// An answer in which everything is another than before, and each tenth row a new one.
void ShowDetailsRows(benchmark::State& state) {
  EnsureApplication();
  const auto& look = LookOf(DetailsKind::kThreads);
  DetailsTable table(QStringLiteral("threads"), look.columns, look.sortColumn, look.sortOrder,
                     nullptr);
  table.resize(900, 600);
  table.show();
  DetailsRows rows;
  DetailsAnswer answer;
  std::int32_t turn = 0;
  for (auto _ : state) {
    state.PauseTiming();
    ++turn;
    std::vector<ThreadDetails> threads;
    for (std::int32_t i = 0; i < state.range(0); ++i)
      threads.push_back({i % 10 == 0 ? turn * 1'000'000 + i : i, "thread", 'S',
                         std::int64_t{turn} * (i * 7919 % 10'007), 0, 0, 1});
    answer.list = std::move(threads);
    answer.readAt = turn * std::int64_t{2'000'000};
    state.ResumeTiming();
    table.SetRows(rows.Make(answer));
  }
}

BENCHMARK(ReadOwnDetails)
    ->ArgNames({"kind", "descriptors"})
    ->Args({0, 0})
    ->Args({1, 0})
    ->Args({1, 10'000})
    ->Args({2, 0})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ShowDetailsRows)->Arg(100)->Arg(10'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lurkwell
