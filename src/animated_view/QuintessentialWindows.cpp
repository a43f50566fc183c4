#include "animated_view/QuintessentialWindows.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPixmap>
#include <QScreen>
#include <algorithm>
#include <cstring>
#include <utility>

#include "animated_view/LabelPicture.h"
#include "animated_view/OffscreenFrame.h"
#include "animated_view/QuintessentialSupport.h"
#include "animated_view/flowcontrolfsm.h"
#include "consolidator/Region.h"
#include "platform/Assertion.h"
#include "platform/Clock.h"
#include "platform/HotKeys.h"
#include "platform/Machine.h"
#include "platform/Screen.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "windows/OverlayKey.h"

namespace lurkwell {
namespace {

constexpr int kIconSide = 256;
constexpr int kBackgroundSide = 1024;
constexpr double kSecondsBetweenLooks = 1.0;
/// A display may lose a context now and then; one that keeps losing it cannot draw.
constexpr int kMostFailures = 3;
/// Frames for so long are no luck.
constexpr double kSecondsUntilForgiven = 5.0;
constexpr std::size_t kManyLabels = 4096;

std::shared_ptr<const Picture> Rendered(const char* name, int side) {
  return PictureFromImage(NamedImage(name).pixmap(QSize(side, side), 1.0).toImage());
}

}  // namespace

QuintessentialWindows* gQuintessentialWindows = nullptr;

QuintessentialView& GetCurrentQuintessentialView() {
  Require(gQuintessentialWindows != nullptr, kQuintessentialUnit, "theCurrentQuintessentialView");
  return gQuintessentialViewIsFullScreenOverlay
             ? gQuintessentialWindows->quintessentialFullscreenView()
             : gQuintessentialWindows->quintessentialView();
}

QuintessentialWindows::QuintessentialWindows(ViewCommands commands)
    : mCommands(std::move(commands)), mDelegate([this] { Prepare(); }) {
  mCommands.viewWasClosed = [this, told = std::move(mCommands.viewWasClosed)] {
    NoteClosing();
    told();
  };
  mDrawing.tellOfFailure = [this] {
    QMetaObject::invokeMethod(this, &QuintessentialWindows::HandleFailure, Qt::QueuedConnection);
  };
  mDrawing.tellOfLimits = [this] {
    QMetaObject::invokeMethod(this, &QuintessentialWindows::ApplyLimits, Qt::QueuedConnection);
  };
  MakeWindows();
  gQuintessentialWindows = this;
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  gQuintessentialHost = this;
}

QuintessentialWindows::~QuintessentialWindows() {
  gQuintessentialViewIsCurrentlyShown = false;
  QuintessentialInformationClient::EndDrawingThread();
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  // The records that are left have handles of the renderer.
  if (gQuintessentialInformationClient != nullptr)
    gQuintessentialInformationClient->UnhookFromConsolidator();
  gQuintessentialHost = nullptr;
  gQuintessentialWindows = nullptr;
  mTimer.reset();
  mWindow.reset();
  mFullscreenWindow.reset();
  mDrawing.context.Destroy();
}

void QuintessentialWindows::MakeWindows() {
  mWindow = std::make_unique<QuintessentialViewWindow>(mDelegate, mDrawing, mCommands);
  mFullscreenWindow =
      std::make_unique<QuintessentialViewFullscreenWindow>(mDelegate, mDrawing, mCommands);
}

QuintessentialViewWindow& QuintessentialWindows::CurrentWindow() const {
  Require(mWindow != nullptr, kQuintessentialUnit, "theCurrentQuintessentialView");
  if (gQuintessentialViewIsFullScreenOverlay) return quintessentialFullscreenWindow();
  return quintessentialWindow();
}

// ---- Showing ------------------------------------------------------------------------------------

void QuintessentialWindows::ShowCurrentWindow() {
  if (!mDrawing.context.Exists() && mFailures < kMostFailures) {
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    if (mDrawing.context.Create()) {
      for (QWindow* window :
           {static_cast<QWindow*>(mWindow.get()), static_cast<QWindow*>(mFullscreenWindow.get())})
        window->setFormat(mDrawing.context.Format());
    } else {
      mFailures = kMostFailures - 1;
      mDrawing.hasFailed = true;
      HandleFailure();
    }
  }
  QuintessentialViewWindow* const both[] = {mWindow.get(), mFullscreenWindow.get()};
  for (auto* window : both)
    if (window != &CurrentWindow() && window->isVisible()) window->Withdraw();
  mHasWindow = mHasWindow || !gQuintessentialViewIsFullScreenOverlay;
  CurrentWindow().makeKeyAndOrderFront(mShowing);
  if (mTimer == nullptr)
    mTimer = TheMachine().runLoop.AddTimer(TheMachine().clock.AbsoluteTime() + kSecondsBetweenLooks,
                                           kSecondsBetweenLooks, [this] { LookAround(); });
}

void QuintessentialWindows::doShowQuintessentialView() {
  const bool goesBack = !gQuintessentialViewIsFullScreenOverlay;
  if (goesBack && !mHasWindow && mCommands.isSomethingElseThere()) return;
  mShowing = QuintessentialViewWindow::Showing::kToggled;
  mCommands.doShowQuintessentialView();
  mShowing = QuintessentialViewWindow::Showing::kAskedFor;
}

void QuintessentialWindows::NoteClosing() {
  mHasWindow = false;
  // What was closed full screen does not come back so.
  if (!gQuintessentialViewIsFullScreenOverlay) return;
  gQuintessentialViewIsFullScreenOverlay = false;
  StoreInt("DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW", 0);
}

void QuintessentialWindows::SetMarked(const std::vector<std::int32_t>& pids) {
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  mDrawing.marks.selected = {pids.begin(), pids.end()};
}

bool QuintessentialWindows::IsAnyVisible() const {
  return mWindow->isVisible() || mFullscreenWindow->isVisible();
}

void QuintessentialWindows::SaveFrame() {
  mWindow->SaveFrame();
}

/// Whether the window can be seen, and on which kind of screen.
void QuintessentialWindows::LookAround() {
  if (!IsAnyVisible()) {
    mTimer.reset();
    return;
  }
  ForgiveFailures();
  auto& window = CurrentWindow();
  if (!window.isVisible()) return;
  const bool minimised = (window.windowStates() & Qt::WindowMinimized) != 0;
  const bool covered = window.canBecomeKeyWindow() && TheMachine().screen.IsCovered(window.winId());
  mDelegate.SetSeen(window.isExposed() && !minimised && !covered);
  UsePixelRatio(window.devicePixelRatio());
}

void QuintessentialWindows::Prepare() {
  UsePixelRatio(CurrentWindow().devicePixelRatio());
  if (mBackground != nullptr) return;
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  DiscardBackground();
}

void QuintessentialWindows::UsePixelRatio(double ratio) {
  if (ratio == mPixelRatio) return;
  const ConsolidatorGuard names;
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  mPixelRatio = ratio;
  mLabels.clear();
  mDrawing.renderer.SetLabelHeight(LabelHeight(ratio));
  if (gQuintessentialInformationClient == nullptr) return;
  for (auto& info : gQuintessentialInformationClient->qipiList()) info.labelTexture = 0;
  gQuintessentialInformationClient->MakeLabelsAnew();
}

// ---- What the engine asks -----------------------------------------------------------------------

FrameSize QuintessentialWindows::CurrentWindowFrame() const {
  const auto& size = CurrentWindow().view().Size();
  return {size.width, size.height};
}

void QuintessentialWindows::CloseCurrentWindow() {
  // One that the user had put away does not come up again by the key.
  if ((mWindow->windowStates() & Qt::WindowMinimized) != 0) mHasWindow = false;
  CurrentWindow().performClose();
}

void QuintessentialWindows::SetUpOverlayStuff() {
  CurrentWindow().setUpOverlayStuff();
}

void QuintessentialWindows::SetCurrentWindowAlpha(double alpha) {
  auto& window = CurrentWindow();
  if (window.isFullscreen() && !mFullscreenWindow->IsRevealed()) return;
  if (window.view().Mode() != ViewMode::kOpaqueFullscreen) window.setAlphaValue(alpha);
}

void QuintessentialWindows::SetFullscreenKludgeCountdown(int frames) {
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  quintessentialFullscreenView().setKludgeCountdown(frames);
}

void QuintessentialWindows::InternalDraw() {
  GetCurrentQuintessentialView().internalDraw();
}

std::shared_ptr<const Picture> QuintessentialWindows::LabelImage(const std::string& name) {
  if (mPixelRatio <= 0) UsePixelRatio(CurrentWindow().devicePixelRatio());
  if (mLabels.size() > std::max(mManyLabels, kManyLabels)) {
    std::erase_if(mLabels, [](const auto& label) { return label.second.expired(); });
    // Where more names than that are in use, not every new one sweeps.
    mManyLabels = 2 * mLabels.size();
  }
  auto& known = mLabels[name];
  auto picture = known.lock();
  if (picture == nullptr) known = picture = ConvertCStringToNSImage(name, true, mPixelRatio);
  return picture;
}

std::shared_ptr<const Picture> QuintessentialWindows::NamedPicture(const char* name) {
  if (std::strcmp(name, "qvdefault") == 0) {
    if (mDefaultIcon == nullptr) mDefaultIcon = Rendered(name, kIconSide);
    return mDefaultIcon;
  }
  if (std::strcmp(name, "qvbackground") != 0) return nullptr;
  if (mBackground == nullptr) mBackground = Rendered(name, kBackgroundSide);
  return mBackground;
}

void QuintessentialWindows::ReleaseTextures(QuintessentialInformationProcessInfo& info) {
  mDrawing.renderer.Icons().Release(std::exchange(info.iconTexture, 0));
  mDrawing.renderer.Labels().Release(std::exchange(info.labelTexture, 0));
}

void QuintessentialWindows::DiscardBackground() {
  mDrawing.renderer.SetBackground(NamedPicture("qvbackground"));
}

// ---- When drawing fails -------------------------------------------------------------------------

void QuintessentialWindows::HandleFailure() {
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  mDrawing.renderer.Forget();
  mLastFailure = TheMachine().clock.AbsoluteTime();
  if (++mFailures < kMostFailures && mDrawing.context.Create()) {
    mDrawing.hasFailed = false;
    return;
  }
  mDrawing.context.Destroy();
  mDelegate.RestForGood();
  for (auto* window :
       {mWindow.get(), static_cast<QuintessentialViewWindow*>(mFullscreenWindow.get())})
    window->ShowMessage(LocalizedString("quintessential_cannot_draw"));
}

void QuintessentialWindows::ForgiveFailures() {
  if (mFailures == 0 || mFailures >= kMostFailures) return;
  if (TheMachine().clock.AbsoluteTime() < mLastFailure + kSecondsUntilForgiven) return;
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  if (mDrawing.hasDrawn) mFailures = 0;
}

void QuintessentialWindows::ApplyLimits() {
  const auto [width, height] = [] {
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    return gOpenGLViewportMaxDimensions;
  }();
  if (width <= 0) return;
  const QSize pixels(width, height > 0 ? height : width);
  mWindow->setMaximumSize(pixels / mWindow->devicePixelRatio());
}

// ---- Pictures -----------------------------------------------------------------------------------

void QuintessentialWindows::ShowForPicture() {
  mDelegate.SetRemembers(false);
  mDelegate.hookUpConsolidatorIfNecessary();
}

QImage QuintessentialWindows::TakePicture(const QSize& points, double pixelRatio) {
  OffscreenFrame frame;
  if (!frame.IsUsable() || gQuintessentialInformationClient == nullptr) return {};
  const CriticalRegion::Guard inside(gQuintessentialMutex);
  FrameRenderer renderer;
  renderer.SetLabelHeight(LabelHeight(mPixelRatio));
  renderer.SetBackground(NamedPicture("qvbackground"));
  auto list = gQuintessentialInformationClient->qipiList().begin();
  const auto& settings = gQuintessentialInformationClient->DrawingSettings();
  const ViewSize size{static_cast<double>(points.width()), static_cast<double>(points.height()),
                      pixelRatio};
  std::vector<DrawnProcess> processes;
  FindWhatIsDrawn(gQuintessentialInformationClient->qipiList(), settings, mDrawing.marks,
                  ViewMode::kWindow, size, processes);
  for (auto& process : processes) {
    process.icon = renderer.Icons().Acquire(list->iconImage);
    process.label = renderer.Labels().Acquire(list->labelImage);
    ++list;
  }
  QImage image = frame.Draw(renderer, LookOf(settings, ViewMode::kWindow, size), processes);
  image.setDevicePixelRatio(pixelRatio);
  return image;
}

void SetUpHotKey() {
  const auto code = static_cast<std::uint32_t>(OverlayKeyCode());
  for (const auto modifiers : {HotKeys::kNoModifiers, HotKeys::kCommandModifier})
    TheMachine().hotKeys.RegisterEventHotKey(code, modifiers, &HotKeyFunc);
}

void HotKeyFunc() {
  ToggleQuintessentialFullScreen();
}

}  // namespace lurkwell
