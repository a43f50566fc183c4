#include "process_details/DetailsWindows.h"

#include <algorithm>

#include "consolidator/PI_Consolidator.h"
#include "windows/FrontmostWindow.h"
#include "windows/WindowFrame.h"

namespace lurkwell {
namespace {

/// Points from a window to the next one.
constexpr int kDetailsStep = 28;

}  // namespace

bool DetailsWindows::ShowDetails(std::int32_t pid) {
  const ProcessIdentity process{pid, GetPidsStartStamp(pid)};
  if (process.startStamp == 0) return false;
  std::erase_if(mWindows, [](const auto& window) { return window == nullptr; });
  const auto open = Open();
  const auto same = std::ranges::find(open, process, &DetailsWindow::Process);
  if (same != open.end()) {
    BringToFront(**same);
    return true;
  }
  auto* window = new DetailsWindow(process, mFillMenu);
  // Not exactly on another one.
  const auto covers = [&] {
    return std::ranges::any_of(
        open, [&](const DetailsWindow* other) { return other->pos() == window->pos(); });
  };
  for (std::size_t i = 0; i < open.size() && !window->isMaximized() && covers(); ++i)
    window->move(
        FitOnScreens(QRect(window->pos() + QPoint(kDetailsStep, kDetailsStep), window->size()))
            .topLeft());
  mWindows.emplace_back(window);
  BringToFront(*window);
  return true;
}

std::vector<DetailsWindow*> DetailsWindows::Open() const {
  std::vector<DetailsWindow*> open;
  for (const auto& window : mWindows)
    if (window != nullptr && window->isVisible()) open.push_back(window);
  return open;
}

std::vector<MonitorWindows::OpenWindow> DetailsWindows::OpenWindows() const {
  std::vector<MonitorWindows::OpenWindow> open;
  for (const QPointer<DetailsWindow> window : Open())
    open.push_back({window->windowTitle(), window->frameGeometry(),
                    [window] {
                      if (window != nullptr) BringToFront(*window);
                    },
                    [window] {
                      if (window != nullptr) window->close();
                    }});
  return open;
}

void DetailsWindows::CloseAll() {
  for (auto* window : Open()) window->SaveFrame();
  for (const auto& window : std::exchange(mWindows, {})) delete window;
}

}  // namespace lurkwell
