#include "monitor_windows/FollowingWindows.h"

#include <algorithm>
#include <utility>

#include "monitor_windows/LoggingWindowUI.h"
#include "preferences/PreferenceBatch.h"

namespace lurkwell {

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
  mHistories.create(interval, pid, uuid, rect);
}

void FollowingWindows::CreateLoggingWindow(std::int32_t interval, std::int32_t pid,
                                           const Uuid* uuid, const WindowRect* rect,
                                           std::int32_t prefsIndex) {
  const PreferenceBatch batch;
  LoggingWindowUI::CreateLoggingWindowWithInterval(mLogFiles, interval, pid, uuid, rect,
                                                   prefsIndex);
}

int FollowingWindows::CountOpenWindows() const {
  return LoggingWindowUI::CountOpenWindows() + mHistories.countOpen();
}

int FollowingWindows::CountRoom() const {
  return std::max(0, kMostOpenWindows - CountOpenWindows());
}

bool FollowingWindows::IsCPUHistoryWindowOpen(const Uuid& uuid, std::int32_t pid) const {
  return mHistories.isOpen(uuid, pid);
}

bool FollowingWindows::IsLoggingWindowOpen(const Uuid& uuid, std::int32_t pid) const {
  return LoggingWindowUI::IsOpen(uuid, pid);
}

void FollowingWindows::RememberPlaces() {
  const PreferenceBatch batch;
  LoggingWindowUI::RememberPlaces();
  mHistories.rememberPlaces();
}

}  // namespace lurkwell
