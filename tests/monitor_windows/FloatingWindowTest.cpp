// Floating windows: where they go, what they hear, what a click does.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QToolTip>

#include "monitor_windows/ProcessInformationWindow.h"
#include "monitor_windows/ScreenPlacement.h"
#include "platform/simulated/SimulatedMachine.h"
#include "preferences/PreferencesRetrieval.h"
#include "windows/FrontmostWindow.h"

namespace lurkwell {
namespace {

constexpr char kXKey[] = "DEFAULT_X_COOR_FOR_NEWLY_CREATED_WINDOWS";
constexpr char kYKey[] = "DEFAULT_Y_COOR_FOR_NEWLY_CREATED_WINDOWS";

class Recorder final : public ProcessInformationWindow {
 public:
  using ProcessInformationWindow::ProcessInformationWindow;
  OSStatus NotifyDrawContent() override { return Heard("draw"); }
  OSStatus NotifyActivated() override { return Heard("activated"); }
  OSStatus NotifyDeactivated() override { return Heard("deactivated"); }
  OSStatus NotifyGetClickActivation() override {
    heard.Add("click");
    return ProcessInformationWindow::NotifyGetClickActivation();
  }
  OSStatus NotifyShowing() override { return Heard("showing"); }
  OSStatus NotifyHiding() override { return Heard("hiding"); }
  OSStatus NotifyShown() override { return Heard("shown"); }
  OSStatus NotifyHidden() override { return Heard("hidden"); }
  OSStatus NotifyBoundsChanged() override { return Heard("bounds changed"); }
  OSStatus NotifyDragStarted() override { return Heard("drag started"); }
  OSStatus NotifyDragCompleted() override { return Heard("drag completed"); }
  OSStatus NotifyClosed() override { return Heard("closed"); }
  bool AdjustMinimumAndMaximumWindowSizes(Point& min, Point& max) override {
    min = {20, 30};
    max = {200, 300};
    return adjusts;
  }
  void UglyHookCalledImmediatelyBeforeOverlayWindowIsCreated(QWidget&) override {
    heard.Add("hook");
  }

  AccessLog heard;
  bool adjusts = false;

 private:
  OSStatus Heard(const char* what) {
    heard.Add(what);
    return 1;
  }
};

class FloatingWindowTest : public testing::Test {
 protected:
  void Open(Recorder& recorder) {
    const WindowRect bounds{200, 150, 350, 220};
    recorder.CreateWindow(&bounds, QStringLiteral("4711"),
                          kWindowCloseBoxAttribute | kWindowSideTitlebarAttribute,
                          kWindowHideOnSuspendAttribute);
    QApplication::processEvents();
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
};

TEST_F(FloatingWindowTest, NewWindowsCascadeAndComeBackToTheCorner) {
  const auto free = QGuiApplication::primaryScreen()->availableGeometry();
  const auto locate = [](int width, int height) {
    WindowRect r{7, 7, 7 + width, 7 + height};
    LocateRectangleForNewWindow(&r);
    return r;
  };
  EXPECT_EQ(locate(150, 70), (WindowRect{100, 130, 250, 200}));
  EXPECT_EQ(locate(150, 70), (WindowRect{120, 160, 270, 230}));
  SetPrefInt(kXKey, free.left() + free.width() - 150 - 20);
  EXPECT_EQ(locate(150, 70).left, free.left() + free.width() - 150) << "it just fits";
  SetPrefInt(kYKey, 190);
  EXPECT_EQ(locate(150, 70), (WindowRect{free.left() + 20, 220, free.left() + 170, 290}));
  EXPECT_EQ(GetPrefInt(kXKey, nullptr, false, 0), free.left() + 20);
  SetPrefInt(kXKey, -2147483647);
  SetPrefInt(kYKey, 2147483647);
  EXPECT_EQ(locate(150, 70).left, free.left() + 20);
  EXPECT_EQ(GetPrefInt(kYKey, nullptr, false, 0), free.top() + 20);
  const QRect screen(0, 0, 800, 600);
  EXPECT_EQ(AreaWithRoom({0, 30, 800, 570}, screen, {150, 70}), QRect(0, 30, 800, 570));
  EXPECT_EQ(AreaWithRoom({0, 30, 800, 70}, screen, {150, 70}), screen)
      << "panels take all but that";
  EXPECT_TRUE(AreaWithRoom({}, {0, 0, 100, 50}, {150, 70}).isNull());
  EXPECT_DEATH(locate(free.width(), 70),
               "ProcessInformationWindow:[0-9]+: failed assertion `width "
               "< \\(availableRect.right - availableRect.left\\)'");
  EXPECT_DEATH(locate(10, -1), "failed assertion `r->bottom >= r->top'");
  EXPECT_DEATH(LocateRectangleForNewWindow(nullptr), "failed assertion `r'");
}

TEST_F(FloatingWindowTest, SizesAreAnsweredByWhoLimitsThem) {
  Recorder recorder;
  ProcessInformationWindow::Point dims{1, 1};
  const auto ask = [&](std::uint32_t kind) {
    return ProcessInformationWindow::ProcessInformationWindowHandler(kind, &recorder, &dims);
  };
  EXPECT_EQ(ask(kEventWindowGetMinimumSize), eventNotHandledErr);
  EXPECT_EQ(dims.vertical, 1);
  recorder.adjusts = true;
  EXPECT_EQ(ask(kEventWindowGetMinimumSize), noErr);
  EXPECT_EQ(dims.vertical, 20);
  EXPECT_EQ(ask(kEventWindowGetMaximumSize), noErr);
  EXPECT_EQ(dims.horizontal, 300);
  EXPECT_DEATH(ProcessInformationWindow::ProcessInformationWindowHandler(1, nullptr, nullptr),
               "failed assertion `userData");
}

TEST_F(FloatingWindowTest, AWindowComesUpTranslucentAtItsPlaceWithoutTakingTheKeyboard) {
  SetPrefDouble("DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA", 0.5);
  Recorder recorder;
  Open(recorder);
  EXPECT_EQ(recorder.heard.Take(), "hook\nbounds changed\nshowing\ndraw\nhidden\nactivated\n")
      << "labels first, then the screen";
  const auto& window = *recorder.Window();
  EXPECT_TRUE(window.isVisible());
  EXPECT_NEAR(window.windowOpacity(), 0.5, 0.01);
  EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_EQ(recorder.ContentBounds(), (WindowRect{200, 150, 350, 220}));
  EXPECT_EQ(window.windowTitle(), QLatin1String("4711"));
}

TEST_F(FloatingWindowTest, AWindowThatExistsCanBeTakenOver) {
  SetPrefDouble("DEFAULT_PROCESS_INFORMATION_WINDOW_ALPHA", 0.5);
  const QPointer<FloatingWindow> window =
      new FloatingWindow({200, 150, 150, 70}, kWindowCloseBoxAttribute);
  {
    Recorder recorder(window);
    window->show();
    QApplication::processEvents();
    EXPECT_EQ(recorder.heard.Take(), "bounds changed\nshowing\ndraw\nhidden\nactivated\n");
    EXPECT_NEAR(window->windowOpacity(), 0.5, 0.01);
    window->setMaximumSize(500, 500);
    window->resize(400, 300);
    EXPECT_EQ(recorder.heard.Take(), "bounds changed\n");
    EXPECT_EQ(recorder.ContentBounds(), (WindowRect{200, 150, 600, 450}));
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(window.isNull()) << "it goes with its owner";
}

TEST_F(FloatingWindowTest, AClickGivesTheMainWindowTheKeyboardUnlessItIsPutAway) {
  QWidget mainWindow;
  mainWindow.setWindowTitle(QStringLiteral("Processes"));
  WatchWindowOrder(mainWindow);
  QWidget other;
  WatchWindowOrder(other);
  mainWindow.show();
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  Recorder recorder;
  Open(recorder);
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  machine.runLoop.RunFor(60'000);
  EXPECT_TRUE(other.isActiveWindow());
  QTest::mouseClick(recorder.Window(), Qt::LeftButton, {}, QPoint(60, 30));
  EXPECT_NE(recorder.heard.Take().find("click\n"), std::string::npos);
  EXPECT_TRUE(other.isActiveWindow()) << "not before the run loop comes round";
  machine.runLoop.RunFor(1);
  QApplication::processEvents();
  EXPECT_TRUE(mainWindow.isActiveWindow());
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  machine.runLoop.RunFor(60'000);
  EXPECT_TRUE(other.isActiveWindow()) << "once for a click";
  mainWindow.showMinimized();
  QTest::mouseClick(recorder.Window(), Qt::LeftButton, {}, QPoint(60, 30));
  machine.runLoop.RunFor(1);
  QApplication::processEvents();
  EXPECT_TRUE(mainWindow.isMinimized()) << "its user has put it away";
  EXPECT_TRUE(other.isActiveWindow());
}

TEST_F(FloatingWindowTest, ItsTooltipComesAlthoughItIsNeverActive) {
  QWidget other;
  other.show();
  Recorder recorder;
  Open(recorder);
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  recorder.Window()->setToolTip(QStringLiteral("whose it is"));
  QTest::mouseMove(recorder.Window()->windowHandle(), QPoint(60, 30));
  EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text() == QLatin1String("whose it is"); }));
}

TEST_F(FloatingWindowTest, ItIsDraggedAnywhereAndClosedByItsBox) {
  Recorder recorder;
  Open(recorder);
  auto* window = recorder.Window();
  recorder.heard.Clear();
  const QPoint grip(60, 30);
  QTest::mousePress(window, Qt::LeftButton, {}, grip);
  QMouseEvent drag(QEvent::MouseMove, QPointF(80, 40), window->mapToGlobal(QPointF(80, 40)),
                   Qt::NoButton, Qt::LeftButton, {});
  QApplication::sendEvent(window, &drag);
  QTest::mouseRelease(window, Qt::LeftButton, {}, grip);
  EXPECT_EQ(recorder.heard.Take(), "click\ndrag started\nbounds changed\ndrag completed\n");
  EXPECT_EQ(recorder.ContentBounds(), (WindowRect{220, 160, 370, 230}));
  QTest::mousePress(window, Qt::LeftButton, {}, QPoint(6, 6));
  QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(60, 30));
  EXPECT_TRUE(window->isVisible()) << "let go outside the box";
  QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(6, 6));
  EXPECT_NE(recorder.heard.Take().find("closed\n"), std::string::npos);
}

TEST_F(FloatingWindowTest, WhereNothingElseKeepsItAboveItDoesWithoutAManager) {
  machine.screen.floating = FloatingWay::kByThemselves;
  Recorder recorder;
  Open(recorder);
  auto* window = recorder.Window();
  EXPECT_TRUE(window->windowFlags().testFlag(Qt::BypassWindowManagerHint));
  machine.log.Clear();
  EXPECT_TRUE(QTest::qWaitFor([&] { return machine.log.Take() == "Screen.PutAboveManaged\n"; }));
  // Nobody else moves its edges, either.
  window->setMinimumSize(100, 50);
  window->setMaximumSize(400, 200);
  const auto before = window->geometry();
  const auto drag = [&](QPoint from, QPoint to) {
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, QPointF(to), window->mapToGlobal(QPointF(to)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(window, &move);
    QTest::mouseRelease(window, Qt::LeftButton, {}, to);
  };
  const QPoint corner(before.width() - 1, before.height() - 1);
  drag(corner, corner + QPoint(30, 20));
  EXPECT_EQ(window->geometry(), before.adjusted(0, 0, 30, 20));
  drag({window->width() / 2, 0}, {window->width() / 2, -1000});
  EXPECT_EQ(window->height(), 200) << "no larger than it may be";
  EXPECT_EQ(window->geometry().bottom(), before.bottom() + 20) << "the other edge stays";
}

TEST_F(FloatingWindowTest, OnALayerAPictureIsDraggedAndTheWindowFollowsWhenItIsLetGo) {
  machine.screen.floating = FloatingWay::kByLayer;
  Recorder recorder;
  Open(recorder);
  auto* window = recorder.Window();
  EXPECT_FALSE(window->windowFlags().testFlag(Qt::BypassWindowManagerHint));
  const auto before = window->geometry();
  const auto pictures = [&] {
    QList<QRect> places;
    for (const auto* other : QApplication::topLevelWidgets())
      if (other != window && other->isVisible()) places.append(other->geometry());
    return places;
  };
  const QPoint grip(60, 30);
  QTest::mousePress(window, Qt::LeftButton, {}, grip);
  machine.log.Clear();
  for (const QPoint by : {QPoint(20, 10), QPoint(43, 24)}) {
    const QPoint to = grip + by;
    QMouseEvent moved(QEvent::MouseMove, QPointF(to), window->mapToGlobal(QPointF(to)),
                      Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(window, &moved);
    EXPECT_EQ(window->geometry(), before) << "as long as the pointer's places count from it";
    EXPECT_EQ(pictures(), QList<QRect>{before.translated(by)});
  }
  EXPECT_EQ(machine.log.Take(), "Screen.MakeFloating\n");
  QTest::mouseRelease(window, Qt::LeftButton, {}, grip + QPoint(43, 24));
  EXPECT_EQ(window->geometry(), before.translated(43, 24));
  EXPECT_TRUE(pictures().isEmpty());
}

}  // namespace
}  // namespace lurkwell
