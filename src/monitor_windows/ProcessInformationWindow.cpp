#include "monitor_windows/ProcessInformationWindow.h"

#include <QGuiApplication>
#include <QScreen>

#include "monitor_windows/ScreenPlacement.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "platform/Screen.h"
#include "preferences/Settings.h"
#include "windows/FrontmostWindow.h"

namespace lurkwell {
namespace {

constexpr char kWindowUnit[] = "ProcessInformationWindow";
constexpr char kXKey[] = "DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS";
constexpr char kYKey[] = "DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS";
/// Of 365 days, in seconds; almost never.
constexpr double kFiveYears = 157'680'000.0;
constexpr double kAYear = 31'536'000.0;

using Operation = OSStatus (ProcessInformationWindow::*)();

/// The size queries are not among them, nor is the hiding of a window that has been hidden.
Operation OperationFor(std::uint32_t kind) {
  using W = ProcessInformationWindow;
  switch (kind) {
    case kEventWindowUpdate:
      return &W::NotifyUpdate;
    case kEventWindowDrawContent:
      return &W::NotifyDrawContent;
    case kEventWindowActivated:
      return &W::NotifyActivated;
    case kEventWindowDeactivated:
      return &W::NotifyDeactivated;
    case kEventWindowGetClickActivation:
      return &W::NotifyGetClickActivation;
    case kEventWindowShowing:
      return &W::NotifyShowing;
    case kEventWindowHiding:
      return &W::NotifyHiding;
    // Deliberate: subclasses rely on hearing of a window that appears through this operation.
    case kEventWindowShown:
      return &W::NotifyHidden;
    case kEventWindowCollapsing:
      return &W::NotifyCollapsing;
    case kEventWindowCollapsed:
      return &W::NotifyCollapsed;
    case kEventWindowExpanding:
      return &W::NotifyExpanding;
    case kEventWindowExpanded:
      return &W::NotifyExpanded;
    case kEventWindowZoomed:
      return &W::NotifyZoomed;
    case kEventWindowBoundsChanging:
      return &W::NotifyBoundsChanging;
    case kEventWindowBoundsChanged:
      return &W::NotifyBoundsChanged;
    case kEventWindowResizeStarted:
      return &W::NotifyResizeStarted;
    case kEventWindowResizeCompleted:
      return &W::NotifyResizeCompleted;
    case kEventWindowDragStarted:
      return &W::NotifyDragStarted;
    case kEventWindowDragCompleted:
      return &W::NotifyDragCompleted;
    case kEventWindowClosed:
      return &W::NotifyClosed;
    default:
      return nullptr;
  }
}

QRect ToQt(const WindowRect& r) {
  return {r.left, r.top, r.right - r.left, r.bottom - r.top};
}

}  // namespace

ProcessInformationWindow::ProcessInformationWindow() = default;

ProcessInformationWindow::ProcessInformationWindow(FloatingWindow* window) {
  TakeOver(window);
}

ProcessInformationWindow::~ProcessInformationWindow() {
  if (mWindow != nullptr) DisposeWindow();
}

void ProcessInformationWindow::UglyHookCalledImmediatelyBeforeOverlayWindowIsCreated(QWidget&) {}

// clang-format off
OSStatus ProcessInformationWindow::NotifyUpdate() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyDrawContent() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyActivated() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyDeactivated() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyShowing() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyHiding() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyShown() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyHidden() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyCollapsing() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyCollapsed() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyExpanding() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyExpanded() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyZoomed() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyBoundsChanging() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyBoundsChanged() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyResizeStarted() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyResizeCompleted() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyDragStarted() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyDragCompleted() { return eventNotHandledErr; }
OSStatus ProcessInformationWindow::NotifyClosed() { return eventNotHandledErr; }
bool ProcessInformationWindow::AdjustMinimumAndMaximumWindowSizes(Point&, Point&) { return false; }
// clang-format on

OSStatus ProcessInformationWindow::NotifyGetClickActivation() {
  if (mWindow != nullptr) mWindow->raise();
  mBringToFrontTimer = CreateBringToFrontTimerFuncIfNecessary();
  mBringToFrontTimer->SetNextFireDate(TheMachine().clock.AbsoluteTime());
  return eventNotHandledErr;
}

void ProcessInformationWindow::CreateWindow(const WindowRect* bounds, const QString& title,
                                            std::uint32_t setAttributes,
                                            std::uint32_t clearAttributes) {
  auto* window = new FloatingWindow(ToQt(*bounds), setAttributes & ~clearAttributes);
  window->setWindowTitle(title);
  TakeOver(window);
  window->show();
  window->raise();
}

void ProcessInformationWindow::TakeOver(FloatingWindow* window) {
  mWindow = window;
  // Before the window is seen for the first time.
  ApplyOpacity();
  window->SetEventHandler(
      [this](WindowEventKind kind) { ProcessInformationWindowHandler(kind, this, nullptr); });
  Point size;
  const int frame = window->width() - window->ContentWidget().width();
  if (ProcessInformationWindowHandler(kEventWindowGetMinimumSize, this, &size) == noErr)
    window->setMinimumSize(size.horizontal + frame, size.vertical);
  if (ProcessInformationWindowHandler(kEventWindowGetMaximumSize, this, &size) == noErr)
    window->setMaximumSize(size.horizontal + frame, size.vertical);
  UglyHookCalledImmediatelyBeforeOverlayWindowIsCreated(window->ContentWidget());
}

void ProcessInformationWindow::ApplyOpacity() {
  if (mWindow != nullptr)
    mWindow->setWindowOpacity(ReadReal("DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA"));
}

double ProcessInformationWindow::AlphaWithin(double alpha) const {
  if (mWindow == nullptr || !TheMachine().screen.BlendsWindows()) return alpha;
  const double opacity = mWindow->windowOpacity();
  return opacity > alpha ? alpha / opacity : 1.0;
}

void ProcessInformationWindow::DisposeWindow() {
  mWindow->SetMenu({});
  mWindow->SetSpeaker({});
  mWindow->SetEventHandler({});
  mWindow->SetPainter({});
  mWindow->hide();
  // It may be one of its own events that brought us here.
  mWindow->deleteLater();
  mWindow = nullptr;
}

WindowRect ProcessInformationWindow::ContentBounds() const {
  if (mWindow == nullptr) return {};
  const auto bounds = mWindow->ContentBounds();
  return {bounds.left(), bounds.top(), bounds.left() + bounds.width(),
          bounds.top() + bounds.height()};
}

OSStatus ProcessInformationWindow::ProcessInformationWindowHandler(std::uint32_t kind,
                                                                   void* userData, Point* dims) {
  Require(userData != nullptr, kWindowUnit, "userData != NULL");
  auto& window = *static_cast<ProcessInformationWindow*>(userData);
  if (kind == kEventWindowGetMinimumSize || kind == kEventWindowGetMaximumSize) {
    Point min;
    Point max;
    if (dims == nullptr || !window.AdjustMinimumAndMaximumWindowSizes(min, max))
      return eventNotHandledErr;
    *dims = kind == kEventWindowGetMinimumSize ? min : max;
    return noErr;
  }
  const auto operation = OperationFor(kind);
  return operation != nullptr ? (window.*operation)() : eventNotHandledErr;
}

std::shared_ptr<RunLoopTimer> ProcessInformationWindow::CreateBringToFrontTimerFuncIfNecessary() {
  static std::weak_ptr<RunLoopTimer> zmBringToFrontTimerRef;
  auto timer = zmBringToFrontTimerRef.lock();
  if (timer == nullptr) {
    auto& machine = TheMachine();
    timer = machine.runLoop.AddTimer(machine.clock.AbsoluteTime() + kFiveYears, kAYear,
                                     &BringToFrontTimerFunc);
    zmBringToFrontTimerRef = timer;
  }
  return timer;
}

void ProcessInformationWindow::BringToFrontTimerFunc() {
  // A graph is looked at, and moved, while one works with another program.
  EnsureThatCocoaWindowIsFrontmostIfPossible(OrderChange::kByItself);
}

void LocateRectangleForNewWindow(WindowRect* r) {
  Require(r != nullptr, kWindowUnit, "r");
  Require(r->right >= r->left, kWindowUnit, "r->right >= r->left");
  Require(r->bottom >= r->top, kWindowUnit, "r->bottom >= r->top");
  const auto* screen = QGuiApplication::primaryScreen();
  Require(screen != nullptr, kWindowUnit, "status == noErr");
  const int width = r->right - r->left;
  const int height = r->bottom - r->top;
  // A window that the whole screen has no room for is its maker's fault; a panel is not.
  auto available = AreaForNewWindow({width, height});
  if (available.isNull()) available = screen->geometry();
  Require(width < available.width(), kWindowUnit,
          "width < (availableRect.right - availableRect.left)");
  Require(height < available.height(), kWindowUnit,
          "height < (availableRect.bottom - availableRect.top)");
  const std::int64_t right = available.left() + available.width();
  const std::int64_t bottom = available.top() + available.height();
  // Preferences may hold any number.
  std::int64_t x = std::int64_t{ReadInt(kXKey)} + 20;
  std::int64_t y = std::int64_t{ReadInt(kYKey)} + 30;
  if (x + width > right || x < available.left()) x = available.left() + 20;
  if (y + height > bottom || y < available.top()) y = available.top() + 20;
  *r = {static_cast<std::int32_t>(x), static_cast<std::int32_t>(y),
        static_cast<std::int32_t>(x) + width, static_cast<std::int32_t>(y) + height};
  StoreInt(kXKey, r->left);
  StoreInt(kYKey, r->top);
}

}  // namespace lurkwell
