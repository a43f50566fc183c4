// A frame of the animated view as the drawing thread makes it, every tenth of a second: the
// layout's step and the drawing, on Mesa's software renderer, in a window of 900 by 640 pixels.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

#include "OffscreenApplication.h"
#include "animated_view/FrameContents.h"
#include "animated_view/LabelPicture.h"
#include "animated_view/OffscreenFrame.h"
#include "animated_view/QuintessentialLayout.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr double kSecondsPerFrame = 0.1;

/// An X server of our own, which ends with us: without one there is no OpenGL.
void EnsureDisplay() {
  static bool done = false;
  if (std::exchange(done, true)) return;
  ::setenv("LIBGL_ALWAYS_SOFTWARE", "1", 1);
  auto* server = ::popen(
      "exec setpriv --pdeathsig TERM Xvfb -displayfd 1 -screen 0 64x64x24 -nolisten tcp "
      "2>/dev/null",
      "r");
  char number[16] = "";
  if (server == nullptr || std::fgets(number, sizeof number, server) == nullptr) return;
  ::setenv("DISPLAY", (":" + std::to_string(std::atoi(number))).c_str(), 1);
}

double ProcessorSeconds() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void FillWithProcesses(QipiList& list, std::int64_t count) {
  const auto icon = PictureFromImage(NamedImage("qvdefault").pixmap(QSize(256, 256), 1).toImage());
  std::srand(7);
  const auto anywhere = [] { return static_cast<double>(std::rand()) / RAND_MAX; };
  for (std::int32_t pid = 1; pid <= count; ++pid) {
    QuintessentialInformationProcessInfo info;
    info.pid = pid;
    info.parentPid = pid / 8;
    info.x = anywhere();
    info.y = anywhere();
    info.weight = pid % 40 == 0 ? 2.5 : 0.5;
    info.locationInitialized = true;
    info.iconImage = icon;
    info.labelImage = ConvertCStringToNSImage("process" + std::to_string(pid), true, 1.0);
    list.PushBack(std::move(info));
  }
}

void BM_ViewFrame(benchmark::State& state) {
  EnsureDisplay();
  EnsureApplication();
  OffscreenFrame frame;
  if (!frame.IsUsable()) {
    state.SkipWithError("no OpenGL: Xvfb and Mesa's drivers are needed");
    return;
  }
  FrameRenderer renderer;
  renderer.SetLabelHeight(LabelHeight(1.0));
  renderer.SetBackground(
      PictureFromImage(NamedImage("qvbackground").pixmap(QSize(1024, 1024), 1).toImage()));
  QipiList list;
  FillWithProcesses(list, state.range(0));
  const ViewSize size{900, 640, 1};
  std::vector<DrawnProcess> processes;
  const auto draw = [&] {
    DisIsRevoltin(list, false);
    InitializeOpenGLProcessInfo(list, renderer);
    FindWhatIsDrawn(list, {}, {}, ViewMode::kWindow, size, processes);
    return frame.DrawOnly(renderer, LookOf({}, ViewMode::kWindow, size), processes);
  };
  if (!draw()) {
    state.SkipWithError("the frame cannot be drawn");
    return;
  }
  const double before = ProcessorSeconds();
  for (auto _ : state) benchmark::DoNotOptimize(draw());
  // Of one processor, while the view is open.
  state.counters["cpu_share"] =
      (ProcessorSeconds() - before) / static_cast<double>(state.iterations()) / kSecondsPerFrame;
}
BENCHMARK(BM_ViewFrame)->Arg(250)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace lurkwell
