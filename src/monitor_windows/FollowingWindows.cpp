#include "monitor_windows/FollowingWindows.h"

#include <QPointer>
#include <algorithm>
#include <utility>

#include "monitor_windows/LoggingWindowUI.h"
#include "monitor_windows/RememberedWindowsPanel.h"
#include "monitor_windows/ScreenPlacement.h"
#include "preferences/PreferenceBatch.h"
#include "windows/FrontmostWindow.h"

namespace lurkwell {
namespace {

std::vector<QRect> PlacesOf(const std::vector<MonitorWindows::OpenWindow>& windows) {
  std::vector<QRect> places;
  for (const auto& window : windows) places.push_back(window.place);
  return places;
}

}  // namespace

FollowingWindows::FollowingWindows(LogFiles& logFiles, Histories histories)
    : mLogFiles(logFiles), mHistories(std::move(histories)) {}

void FollowingWindows::CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid) {
  CreateCPUHistoryWindow(interval, pid, nullptr, nullptr);
}

void FollowingWindows::CreateLoggingWindow(std::int32_t interval, std::int32_t pid) {
  CreateLoggingWindow(interval, pid, nullptr, nullptr, -1);
}

void FollowingWindows::CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid,
                                              const Uuid* uuid, const WindowRect* rect) {
  const PreferenceBatch batch;
  const auto place = rect != nullptr ? Apart(*rect, mHistories.list()) : WindowRect{};
  mHistories.create(interval, pid, uuid, rect != nullptr ? &place : nullptr);
}

void FollowingWindows::CreateLoggingWindow(std::int32_t interval, std::int32_t pid,
                                           const Uuid* uuid, const WindowRect* rect,
                                           std::int32_t prefsIndex) {
  const PreferenceBatch batch;
  if (auto* log = uuid != nullptr ? LoggingWindowUI::Find(*uuid) : nullptr)
    return log->follow(mLogFiles, pid);
  const auto place = rect != nullptr ? Apart(*rect, OpenLogs()) : WindowRect{};
  LoggingWindowUI::CreateLoggingWindowWithInterval(mLogFiles, interval, pid, uuid,
                                                   rect != nullptr ? &place : nullptr, prefsIndex,
                                                   PlacesOf(OpenWindows()));
}

WindowRect FollowingWindows::Apart(const WindowRect& rect, const std::vector<OpenWindow>& others) {
  return PlaceApart(rect, PlacesOf(others));
}

std::vector<MonitorWindows::OpenWindow> FollowingWindows::OpenWindows() const {
  auto windows = mHistories.list();
  for (auto& log : OpenLogs()) windows.push_back(std::move(log));
  return windows;
}

std::vector<MonitorWindows::OpenWindow> FollowingWindows::OpenLogs() {
  std::vector<OpenWindow> windows;
  for (auto* log : LoggingWindowUI::OpenWindows()) {
    const auto place = log->frame();
    windows.push_back({log->shortTitle(),
                       QRect(QPoint(place.left, place.top), log->window()->size()),
                       [window = QPointer<QWidget>(log->window())] {
                         if (window != nullptr) BringToFront(*window);
                       },
                       [window = QPointer<QWidget>(log->window())] {
                         if (window != nullptr) window->close();
                       }});
  }
  return windows;
}

void FollowingWindows::ShowRememberedWindows(QWidget* parent) {
  RememberedWindowsPanel::ShowFor(parent);
}

int FollowingWindows::CountOpenWindows() const {
  return LoggingWindowUI::CountOpenWindows() + static_cast<int>(mHistories.list().size());
}

int FollowingWindows::CountRoom() const {
  return std::max(0, kMostOpenWindows - CountOpenWindows());
}

bool FollowingWindows::IsCPUHistoryWindowOpen(const Uuid& uuid) const {
  return mHistories.isOpen(uuid);
}

bool FollowingWindows::IsLoggingWindowOpen(const Uuid& uuid) const {
  const auto* log = LoggingWindowUI::Find(uuid);
  return log != nullptr && !log->stateInfo().pidWentAway;
}

void FollowingWindows::ProcessHasEnded(std::int32_t pid) {
  const PreferenceBatch batch;
  mHistories.processHasEnded(pid);
  LoggingWindowUI::ProcessHasEnded(pid);
}

void FollowingWindows::RememberPlaces() {
  const PreferenceBatch batch;
  LoggingWindowUI::RememberPlaces();
  mHistories.rememberPlaces();
}

}  // namespace lurkwell
