#include "monitor_windows/SystemWideInfo.h"

#include <QPainter>
#include <cstring>

#include "monitor_windows/ScreenPlacement.h"
#include "platform/Assertion.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

constexpr char kSystemUnit[] = "SystemWideInfo";
constexpr char kLeftKey[] = "QUBS_DEBUGGING_WINDOW_LEFT";
constexpr char kTopKey[] = "QUBS_DEBUGGING_WINDOW_TOP";
constexpr char kRightKey[] = "QUBS_DEBUGGING_WINDOW_RIGHT";
constexpr char kBottomKey[] = "QUBS_DEBUGGING_WINDOW_BOTTOM";
constexpr QSize kSmallestInformation(60, 50);

WindowRect RememberedPlace() {
  const WindowRect stored{ReadInt(kLeftKey), ReadInt(kTopKey), ReadInt(kRightKey),
                          ReadInt(kBottomKey)};
  // Preferences may hold any number.
  const auto place = PlaceOnScreen(stored, kSmallestInformation);
  return {place.left(), place.top(), place.left() + place.width(), place.top() + place.height()};
}

/// As the figure is defined: the constant does not round to the nearest.
long long Megabytes(std::int64_t bytes) {
  return (bytes + 512) / 1'048'576;
}

}  // namespace

SystemWideInfo* gSystemWideInfo = nullptr;

SystemWideInfo::SystemWideInfo(std::int32_t interval)
    : ProcessInformationClient(nullptr, interval) {
  const auto bounds = RememberedPlace();
  CreateWindow(&bounds, QStringLiteral("System Info"), 0, kWindowHideOnSuspendAttribute);
  Window()->SetPainter([this](QPainter& painter) {
    painter.fillRect(painter.viewport(), Qt::white);
    painter.setPen(Qt::black);
    auto font = painter.font();
    font.setPixelSize(12);
    painter.setFont(font);
    painter.drawText(5, 15, mMemoryLine);
    painter.drawText(15, 30, mUsageLine);
    painter.drawText(30, 45, mPageoutsLine);
  });
}

SystemWideInfo::~SystemWideInfo() {
  if (gSystemWideInfo == this) gSystemWideInfo = nullptr;
  if (Window() == nullptr) return;
  const auto bounds = ContentBounds();
  StoreInt(kLeftKey, bounds.left);
  StoreInt(kTopKey, bounds.top);
  StoreInt(kRightKey, bounds.right);
  StoreInt(kBottomKey, bounds.bottom);
}

ProcessInformationClient::NeedLevel SystemWideInfo::NeedPidsForProcProperty(const char* property) {
  return std::strcmp(property, "meta_active_time") == 0 ? kNeedSomePids : kNeedNoPids;
}

bool SystemWideInfo::NeedPidProcProperty(int pid, const char* property) {
  return pid == 0 && std::strcmp(property, "meta_active_time") == 0;
}

ProcessInformationClient::NeedLevel SystemWideInfo::NeedProcPropertyForPid(int pid) {
  return pid == 0 ? kNeedSomeProcProperties : kNeedNoProcProperties;
}

void SystemWideInfo::NotifyProcessesHaveBeenUpdated() {
  const auto figures = ReadSystemFigures();
  const double usage = mUsage.Take();
  mMemoryLine = QString::asprintf("MB used: %lld/%lld   ", Megabytes(figures.usedBytes),
                                  Megabytes(figures.physicalBytes));
  mUsageLine = QString::asprintf("cpu usage: %.2f  ", usage * 100.0);
  mPageoutsLine = QString::asprintf("pageouts: %lld  ", static_cast<long long>(figures.pageouts));
  if (Window() != nullptr) Window()->ContentWidget().update();
}

void CreateSystemWideInfo(long interval) {
  Require(gSystemWideInfo == nullptr, kSystemUnit, "gSystemWideInfo == NULL");
  gSystemWideInfo = new SystemWideInfo(static_cast<std::int32_t>(interval));
  AddProcessInformationClient(gSystemWideInfo);
}

void CleanupSystemWideInfo() {
  if (gSystemWideInfo == nullptr) return;
  RemoveProcessInformationClient(gSystemWideInfo);
  delete gSystemWideInfo;
}

}  // namespace lurkwell
