// What an answer about many machines costs the main thread, from its bytes to the table.
#include <benchmark/benchmark.h>

#include <QByteArray>
#include <QString>
#include <variant>

#include "OffscreenApplication.h"
#include "fleet/FleetTable.h"
#include "fleet/PrometheusAnswer.h"
#include "fleet_window/FleetModel.h"

namespace lurkwell {
namespace {

constexpr const char* kLabels[] = {kFigureLabel, "instance"};

QByteArray AnswerFor(int machines) {
  QByteArray body = R"({"status":"success","data":{"resultType":"vector","result":[)";
  for (const auto& figure : FleetFigures())
    for (int machine = 0; machine < machines; ++machine) {
      if (!body.endsWith('[')) body += ',';
      body += R"({"metric":{"figure":")" + QByteArray(figure.key) + R"(","instance":"machine-)" +
              QByteArray::number(machine) + R"(.example:19256"},"value":[1700000000.123,")" +
              QByteArray::number(machine * 1.25) + R"("]})";
    }
  return body + "]}}";
}

void Fleet_AnswerToTable(benchmark::State& state) {
  EnsureApplication();
  const auto body = AnswerFor(static_cast<int>(state.range(0)));
  FleetModel model;
  for (auto _ : state) {
    const auto answer = ReadPrometheusAnswer(body, 200, kLabels);
    model.SetTable(ReadFleetTable(std::get<PrometheusAnswer>(answer), FleetView()));
    benchmark::DoNotOptimize(model.rowCount());
  }
  state.counters["KB"] = static_cast<double>(body.size()) / 1024;
}
BENCHMARK(Fleet_AnswerToTable)->Arg(20)->Arg(500)->Unit(benchmark::kMillisecond);

/// As large as one may be, with far more rows than are asked for.
void Fleet_LargestAnswer(benchmark::State& state) {
  EnsureApplication();
  const auto body = AnswerFor(4000);
  for (auto _ : state) {
    const auto answer = ReadPrometheusAnswer(body, 200, kLabels);
    benchmark::DoNotOptimize(ReadFleetTable(std::get<PrometheusAnswer>(answer), FleetView()));
  }
  state.counters["KB"] = static_cast<double>(body.size()) / 1024;
}
BENCHMARK(Fleet_LargestAnswer)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lurkwell
