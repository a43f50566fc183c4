#include "monitor_windows/CPUHistoryWindow.h"

#include <QPointer>
#include <algorithm>
#include <cstring>
#include <set>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "consolidator/ProcessQueries.h"
#include "monitor_windows/LoggingWindowUI.h"
#include "monitor_windows/ScreenPlacement.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/HostStatistics.h"
#include "platform/Machine.h"
#include "windows/FrontmostWindow.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr WindowRect kUsualBounds{300, 300, 450, 370};
constexpr int kLargestSide = 10'000;
constexpr QSize kSmallestHistory(60, 30);

/// Those whose windows are there or still to come.
std::set<CPUHistoryWindowInformationClient*> gClients;

/// The record's place, made to fit: a size that a window can have, on a screen that exists.
WindowRect Sound(WindowRect rect) {
  const std::int64_t width = std::int64_t{rect.right} - rect.left;
  const std::int64_t height = std::int64_t{rect.bottom} - rect.top;
  const auto isSide = [](std::int64_t side) { return side > 0 && side <= kLargestSide; };
  if (!isSide(width) || !isSide(height)) {
    rect.left = std::clamp(rect.left, -kLargestSide, kLargestSide);
    rect.top = std::clamp(rect.top, -kLargestSide, kLargestSide);
    rect.right = rect.left + kUsualBounds.right - kUsualBounds.left;
    rect.bottom = rect.top + kUsualBounds.bottom - kUsualBounds.top;
  }
  const auto place = PlaceOnScreen(rect, kSmallestHistory);
  return {place.left(), place.top(), place.left() + place.width(), place.top() + place.height()};
}

WindowRect PlaceOf(const CPUHistoryWindowInformationClient& client) {
  return client.Window() != nullptr ? client.ContentBounds() : client.Bounds();
}

/// What a new history is not to lie on: others, with their title bars, and logs.
std::vector<QRect> TakenPlaces() {
  auto places = LoggingWindowUI::Places();
  for (const auto* client : gClients) {
    const auto bounds = PlaceOf(*client);
    places.emplace_back(
        QPoint(bounds.left - FloatingWindow::kSideTitlebarWidth, bounds.top),
        QPoint(bounds.right + FloatingWindow::kSideTitlebarWidth - 1, bounds.bottom - 1));
  }
  return places;
}

}  // namespace

CPUHistoryWindowInformationClient::CPUHistoryWindowInformationClient(const Uuid* uuid,
                                                                     std::int32_t interval,
                                                                     std::int32_t pid,
                                                                     const WindowRect& rect,
                                                                     bool trackDescendants)
    : ProcessInformationClient(uuid, interval),
      mPid(pid),
      mStartStamp(GetPidsStartStamp(pid)),
      mBounds(rect),
      mPreferences(CPUHistoryPreferences::Read()),
      mGraph(rect.right - rect.left, rect.bottom - rect.top,
             TheMachine().hostStatistics.Processors()) {
  mPreferences.trackDescendants = trackDescendants;
  mGraph.SetRelative(mPreferences.useRelative);
  mGraph.SetTrackDescendants(trackDescendants);
  ApplyColours();
  mGraph.Erase();
  gClients.insert(this);
}

CPUHistoryWindowInformationClient::~CPUHistoryWindowInformationClient() {
  gClients.erase(this);
  RemoveProcessInformationClient(this);
  if (Window() != nullptr) DisposeOfWindows();
}

// ---- What is needed -----------------------------------------------------------------------------

ProcessInformationClient::NeedLevel CPUHistoryWindowInformationClient::NeedProcPropertiesForPid(
    int pid) {
  if (mProcessGone) return kNeedNoProcProperties;
  return pid == mPid || mDescendants.contains(pid) ? kNeedSomeProcProperties
                                                   : kNeedNoProcProperties;
}

ProcessInformationClient::NeedLevel CPUHistoryWindowInformationClient::NeedPidsForProcProperty(
    const char* property) {
  const bool needed = !mProcessGone && (std::strcmp(property, "meta_active_time") == 0 ||
                                        std::strcmp(property, "pid_parent_pid") == 0);
  return needed ? kNeedSomePids : kNeedNoPids;
}

bool CPUHistoryWindowInformationClient::NeedPidProcProperty(int pid, const char* property) {
  return NeedProcPropertiesForPid(pid) == kNeedSomeProcProperties &&
         NeedPidsForProcProperty(property) == kNeedSomePids;
}

// ---- The process --------------------------------------------------------------------------------

void CPUHistoryWindowInformationClient::NotifyPidHasBeenAdded(int pid) {
  if (pid == mPid && !mProcessGone && Window() == nullptr) CreateMacWindow();
}

void CPUHistoryWindowInformationClient::NotifyPidHasChangedAppreciably(int pid) {
  if (pid == mPid && !mProcessGone) MarkKind();
}

void CPUHistoryWindowInformationClient::NotifyPidHasBeenRemoved(int pid) {
  if (pid != mPid) {
    mDescendants.erase(pid);
    return;
  }
  if (mProcessGone) return;
  if (Window() != nullptr) {
    const auto bounds = ContentBounds();
    SetPersistentClientInfo(kCPUHistoryWindowKind, nullptr, nullptr, &bounds, &Identifier());
    DisposeOfWindows();
  }
  mProcessGone = true;
  gClients.erase(this);
}

void CPUHistoryWindowInformationClient::RememberPlace() {
  if (Window() == nullptr) return;
  const auto bounds = ContentBounds();
  if (std::exchange(mRememberedPlace, bounds) != bounds)
    SetPersistentClientInfo(kCPUHistoryWindowKind, nullptr, nullptr, &bounds, &Identifier());
}

void CPUHistoryWindowInformationClient::NotifyProcessesHaveBeenUpdated() {
  // Without a window the process had ended already when a remembered one was to be opened.
  if (mProcessGone || Window() == nullptr) {
    delete this;
    return;
  }
  if (mGraph.AreLabelsDirty()) DrawLabels();
  // What could not be read now belongs to the next point, which is longer.
  if (!AreCPUTimesFresh(mPid)) return;
  const double descendants = TakeDescendantsSeconds();
  const auto now = TheMachine().clock.Now();
  const double elapsed =
      std::max(0.01, static_cast<double>(MillisecondsBetween(mLastUpdateTime, now)) / 1000.0);
  const auto active = ActiveTimeOf(mPid).value_or(TimeValue{});
  const double total = SecondsBetween(mLastActiveTime, active) + descendants;
  const double share = total > 0.0 ? (total - descendants) / total : (0.01 - descendants) / 0.01;
  mGraph.SetFilter(CPUHistoryFilter());
  const double value = mGraph.SanitizeForScaling(total, share, elapsed);
  DrawPercentage(value);
  mGraph.DrawRightmostPixel(value, share);
  Window()->ContentWidget().update();
  mLastUpdateTime = now;
  mLastActiveTime = active;
}

double CPUHistoryWindowInformationClient::TakeDescendantsSeconds() {
  if (!mGraph.TracksDescendants()) return 0.0;
  std::map<std::int32_t, Descendant> descendants;
  double seconds = 0.0;
  for (const auto pid : PidBlob(kPidBlobDescendantsOf, &mPid)) {
    const auto active = ActiveTimeOf(pid).value_or(TimeValue{});
    const auto before = mDescendants.find(pid);
    // What a process had used before the first look is no part of this turn; what one has used that
    // was born since then is. A figure that came before it was asked for may be an old one.
    bool unread = !mDescendantsKnown;
    if (before != mDescendants.end()) {
      if (!before->second.unread) seconds += SecondsBetween(before->second.activeTime, active);
      unread = before->second.unread && active.IsZero();
    } else if (mDescendantsKnown) {
      seconds += SecondsBetween({}, active);
    }
    descendants.emplace(pid, Descendant{active, unread});
  }
  mDescendants = std::move(descendants);
  mDescendantsKnown = true;
  return seconds;
}

// ---- The window ---------------------------------------------------------------------------------

void CPUHistoryWindowInformationClient::CreateMacWindow() {
  mLastUpdateTime = TheMachine().clock.Now();
  CreateWindow(&mBounds, QString::number(mPid),
               kWindowCloseBoxAttribute | kWindowSideTitlebarAttribute,
               kWindowHideOnSuspendAttribute);
  mRememberedPlace = ContentBounds();
  Window()->SetPainter([this](QPainter& painter) { PaintGraph(painter); });
  Window()->SetMenu([this](QMenu& menu) { FillMenu(menu); });
  Window()->SetSpeaker([this] { return SpokenGraph(); });
  if (!EnsureThatCocoaWindowIsFrontmostIfPossible(OrderChange::kByItself)) Window()->raise();
  MarkKind();
}

void CPUHistoryWindowInformationClient::UglyHookCalledImmediatelyBeforeOverlayWindowIsCreated(
    QWidget& group) {
  Require(mNameWindow == nullptr, kHistoryUnit, "!mNameWindow");
  const auto fontOf = [&](int size, bool bold) {
    auto font = group.font();
    font.setPixelSize(size);
    font.setBold(bold);
    return font;
  };
  // Below the texts, which it is large enough to reach.
  mIconWindow = new Satellite(group, {}, group.font(), {});
  mNameWindow = new Satellite(group, {}, fontOf(12, false), {5, 18});
  mIdentityWindow = new Satellite(group, {}, fontOf(9, false), {5, 9});
  mHighWaterMarkWindow = new Satellite(group, {}, fontOf(9, false), {1, 8});
  mCurrentPercentageWindow = new Satellite(group, {}, fontOf(9, true), {2, 9});
  PlaceLabels();
  SetLabelColours();
}

void CPUHistoryWindowInformationClient::SetLabelColours() {
  if (mNameWindow == nullptr) return;
  mNameWindow->SetColours(mPreferences.background, mPreferences.name);
  mIdentityWindow->SetColours(mPreferences.background, mPreferences.name);
  mHighWaterMarkWindow->SetColours(mPreferences.background, mHighWaterMarkWindow->TextColour());
  mCurrentPercentageWindow->SetColours(mPreferences.percentageBackground,
                                       mPreferences.percentageForeground);
}

void CPUHistoryWindowInformationClient::PlaceLabels() {
  const int r = mBounds.right - mBounds.left;
  const int b = mBounds.bottom - mBounds.top;
  mNameWindow->setGeometry(1, 1, mNameWindow->width(), 22);
  mIdentityWindow->setGeometry(1, 23, mIdentityWindow->width(), 12);
  mHighWaterMarkWindow->setGeometry(r - 29, 1, 28, 9);
  mIconWindow->setGeometry(4, b - 44, 40, 40);
  mCurrentPercentageWindow->setGeometry(r - 28, b - 23, 24, 11);
}

void CPUHistoryWindowInformationClient::DisposeOfWindows() {
  Require(Window() != nullptr, kHistoryUnit, "mWindow != NULL");
  Require(mNameWindow != nullptr, kHistoryUnit, "mNameWindow != NULL");
  Require(mHighWaterMarkWindow != nullptr, kHistoryUnit, "mHighWaterMarkWindow != NULL");
  Require(mIconWindow != nullptr, kHistoryUnit, "mIconWindow != NULL");
  Require(mCurrentPercentageWindow != nullptr, kHistoryUnit, "mCurrentPercentageWindow != NULL");
  mNameWindow = mIdentityWindow = mHighWaterMarkWindow = mIconWindow = mCurrentPercentageWindow =
      nullptr;
  DisposeWindow();
}

void CPUHistoryWindowInformationClient::MarkKind() {
  mProcess = DescribeFollowed(mPid);
  mGraph.MarkLabelsDirty();
  ProcessSerialNumber psn;
  PID2PSN(mPid, &psn);
  mIsApplication = mIsApplication || psn != ProcessSerialNumber{};
}

OSStatus CPUHistoryWindowInformationClient::NotifyUpdate() {
  RedrawEntireWindow();
  return noErr;
}

OSStatus CPUHistoryWindowInformationClient::NotifyDrawContent() {
  mGraph.MarkLabelsDirty();
  RedrawEntireWindow();
  return noErr;
}

bool CPUHistoryWindowInformationClient::AdjustMinimumAndMaximumWindowSizes(Point& min, Point& max) {
  const auto side = [](int points) { return static_cast<std::int16_t>(points); };
  min = {side(kSmallestHistory.height()), side(kSmallestHistory.width())};
  max = {side(kLargestSide), side(kLargestSide)};
  return true;
}

OSStatus CPUHistoryWindowInformationClient::NotifyBoundsChanged() {
  const auto bounds = ContentBounds();
  const int width = bounds.right - bounds.left;
  const int height = bounds.bottom - bounds.top;
  if (mNameWindow == nullptr || width <= 0 || height <= 0) return noErr;
  if (width == mBounds.right - mBounds.left && height == mBounds.bottom - mBounds.top) return noErr;
  mBounds = bounds;
  mGraph.Resize(width, height);
  PlaceLabels();
  Window()->ContentWidget().update();
  return noErr;
}

OSStatus CPUHistoryWindowInformationClient::NotifyClosed() {
  if (!mProcessGone) RemovePersistentClientInfo(kCPUHistoryWindowKind, &Identifier());
  delete this;
  return eventNotHandledErr;
}

// ---- Preferences --------------------------------------------------------------------------------

void CPUHistoryWindowInformationClient::NotifyPreferencesHaveBeenUpdated() {
  if (mProcessGone) return;
  mPreferences.ReadAgain();
  if (const auto interval = StoredCPUHistoryInterval()) SetInterval(*interval);
  mGraph.SetRelative(mPreferences.useRelative);
  if (mPreferences.trackDescendants != mGraph.TracksDescendants()) {
    mDescendants.clear();
    mDescendantsKnown = false;
  }
  mGraph.SetTrackDescendants(mPreferences.trackDescendants);
  ApplyColours();
  ApplyOpacity();
  SetLabelColours();
  mGraph.MarkLabelsDirty();
  mGraph.Erase();
  RedrawEntireWindow();
}

void CPUHistoryWindowInformationClient::ApplyColours() {
  mGraph.SetColours({mPreferences.background.rgba(), mPreferences.foreground.rgba(),
                     mPreferences.descendantsForeground.rgba()});
}

// ---- Opening ------------------------------------------------------------------------------------

void CreateCPUHistoryWindow(std::int32_t interval, std::int32_t pid, const Uuid* uuid,
                            const WindowRect* rect) {
  char name[kRememberedTextSize];
  char kind[kRememberedTextSize];
  if (uuid == nullptr) {
    bool hasName = false;
    bool hasKind = false;
    GetPIDPropertyValue(pid, "meta_name", name, sizeof name, &hasName);
    GetPIDPropertyValue(pid, "meta_kind", kind, sizeof kind, &hasKind);
    if (!hasName || !hasKind) return;
  }
  auto bounds = rect != nullptr ? Sound(*rect) : kUsualBounds;
  const QSize size(bounds.right - bounds.left, bounds.bottom - bounds.top);
  if (rect == nullptr && !AreaForNewWindow(size).isNull()) {
    LocateRectangleForNewWindow(&bounds);
    bounds = PlaceApart(bounds, TakenPlaces(), Overlap::kNone);
  }
  auto* client = new CPUHistoryWindowInformationClient(uuid, interval, pid, bounds,
                                                       CPUHistoryTracksDescendants());
  if (uuid == nullptr) {
    const auto index =
        SetPersistentClientInfo(kCPUHistoryWindowKind, name, kind, &bounds, &client->Identifier());
    RememberProcess(kCPUHistoryWindowKind, index, pid);
  }
  AddProcessInformationClient(client);
}

std::vector<MonitorWindows::OpenWindow> ListCPUHistoryWindows() {
  std::vector<MonitorWindows::OpenWindow> windows;
  for (auto* client : gClients) {
    const QPointer<FloatingWindow> window = client->Window();
    const auto bounds = PlaceOf(*client);
    windows.push_back(
        {client->Title(),
         QRect(bounds.left, bounds.top, bounds.right - bounds.left, bounds.bottom - bounds.top),
         [window] {
           if (window == nullptr) return;
           window->raise();
           window->Flash();
         },
         [window] {
           if (window != nullptr) window->close();
         }});
  }
  return windows;
}

bool IsCPUHistoryWindowOpen(const Uuid& uuid) {
  return std::ranges::any_of(gClients,
                             [&](const auto* client) { return client->Identifier() == uuid; });
}

void CPUHistoryProcessHasEnded(std::int32_t pid) {
  // They take themselves out of the set.
  const auto clients = gClients;
  for (auto* client : clients)
    if (client->Pid() == pid && client->StartStamp() != GetPidsStartStamp(pid))
      client->NotifyPidHasBeenRemoved(pid);
}

void RememberCPUHistoryPlaces() {
  for (auto* client : gClients) client->RememberPlace();
}

}  // namespace lurkwell
