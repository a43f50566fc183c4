// The animated view's windows on a real display over a simulated machine: shown, clicked, closed,
// laid over the screen.
#include <QTest>
#include <algorithm>
#include <vector>

#include "animated_view/FlowControlFSMMgr.h"
#include "animated_view/OnADisplay.h"
#include "animated_view/QuintessentialSupport.h"
#include "animated_view/QuintessentialWindows.h"
#include "animated_view/ViewDrawing.h"
#include "consolidator/PI_Consolidator.h"
#include "main_window/MainWindow.h"
#include "platform/ApplicationQuitting.h"
#include "platform/desktop/DesktopScreen.h"
#include "platform/desktop/XConnection.h"
#include "platform/simulated/SimulatedMachine.h"
#include "preferences/PreferencesRetrieval.h"
#include "support/HelperChannel.h"

namespace lurkwell {
namespace {

class ViewWindows : public OnADisplay, public ApplicationCommands {
 protected:
  explicit ViewWindows(const std::vector<std::string>& compositor = {})
      : OnADisplay(TestDisplay::Manager::kOpenbox) {
    if (!compositor.empty()) {
      picom = std::make_unique<ChildProgram>(compositor, display.Environment());
      EXPECT_TRUE(ComesTrue([&] { return realScreen.BlendsWindows(); }, 20)) << "no picom";
    }
    machine.screen.blends = !compositor.empty();
    for (std::int32_t pid = 100; pid < 120; ++pid)
      machine.processTable.Birth(pid, "process" + std::to_string(pid), 1);
    channel = std::make_unique<HelperChannel>(machine);
    InitializeProcessInformationConsolidator();
    CreateFlowControlFSMMgr();
    windows = std::make_unique<QuintessentialWindows>(
        ViewCommands{[this] { windows->ShowCurrentWindow(); }, [] { HotKeyFunc(); }, [] {}, [] {},
                     [] {}, [this] { return mainWindow != nullptr && mainWindow->isVisible(); },
                     [this](std::int32_t pid, const QPoint& place, bool wantsMenu) {
                       if (mainWindow != nullptr) mainWindow->ChooseProcess(pid, place, wantsMenu);
                     }});
  }
  ~ViewWindows() override {
    gApplicationQuitting = true;
    mainWindow.reset();
    ProcessInformationClient::DeleteAllProcessInformationClients();
    DestroyFlowControlFSMMgr();
    windows.reset();
    channel.reset();
    DestroyProcessInformationConsolidator();
  }

  void doThePrefs() override {}
  void doAboutPanel() override {}
  void doShowMainWindow() override {}
  void doQuit() override {}
  bool isLastWindow(const QWidget&) const override { return false; }

  /// Serves windows and timers until it is so.
  bool ComesAbout(const std::function<bool()>& condition) {
    return Becomes([&] {
      machine.runLoop.RunFor(10);
      return condition();
    });
  }
  static std::size_t Records() {
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    const auto* client = gQuintessentialInformationClient;
    return client == nullptr
               ? 0
               : const_cast<QuintessentialInformationClient*>(client)->qipiList().size();
  }
  /// What the screen shows at a place of the window.
  QColor PixelOf(QWindow& window, int x, int y) {
    if (server == nullptr) server = XConnection::Open(display.Name());
    const QPoint at = window.mapToGlobal(QPoint(x, y));
    const auto image = server->Wait<xcb_get_image_reply_t>(
        xcb_get_image_unchecked(server->Raw(), XCB_IMAGE_FORMAT_Z_PIXMAP, server->Root(),
                                static_cast<std::int16_t>(at.x()),
                                static_cast<std::int16_t>(at.y()), 1, 1, ~0U),
        XConnection::BatchDeadline());
    if (image == nullptr) return {};
    const auto* bytes = xcb_get_image_data(image.get());
    return {bytes[2], bytes[1], bytes[0]};
  }
  std::string Properties(QWindow& window) const {
    return Output({"xprop", "-id", std::to_string(window.winId()), "_NET_WM_WINDOW_OPACITY",
                   "_NET_WM_DESKTOP", "_NET_WM_STATE", "_NET_WM_WINDOW_TYPE", "WM_HINTS"});
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  std::unique_ptr<HelperChannel> channel;
  DesktopScreen realScreen{[this] {
    DesktopSettings settings;
    settings.display = display.Name();
    return settings;
  }()};
  std::unique_ptr<XConnection> server;
  std::unique_ptr<ChildProgram> picom;
  std::unique_ptr<QuintessentialWindows> windows;
  std::unique_ptr<MainWindow> mainWindow;
};

TEST_F(ViewWindows, NothingMovesWhileNobodySeesThem) {
  windows->ShowCurrentWindow();
  EXPECT_TRUE(ComesAbout([&] { return Records() > 20; }));
  auto* client = gQuintessentialInformationClient;
  machine.screen.isCovered = true;
  EXPECT_TRUE(ComesAbout([&] { return client->IsPaused(); }));
  machine.screen.isCovered = false;
  EXPECT_TRUE(ComesAbout([&] { return !client->IsPaused(); }));
  auto& window = windows->quintessentialWindow();
  window.showMinimized();
  EXPECT_TRUE(ComesAbout([&] { return client->IsPaused(); }));
  window.showNormal();
  EXPECT_TRUE(ComesAbout([&] { return !client->IsPaused(); }));
  // A real window over it, and beside it.
  QWidget cover;
  cover.setWindowFlags(Qt::FramelessWindowHint);
  cover.setGeometry(0, 0, 1024, 768);
  cover.show();
  EXPECT_TRUE(ComesAbout([&] { return realScreen.IsCovered(window.winId()); }));
  EXPECT_FALSE(realScreen.IsCovered(cover.winId()));
  cover.resize(100, 100);
  EXPECT_TRUE(ComesAbout([&] { return !realScreen.IsCovered(window.winId()); }));
}

TEST_F(ViewWindows, AClickSelectsTheNearestProcess) {
  windows->ShowCurrentWindow();
  EXPECT_TRUE(ComesAbout([&] { return Records() > 20; }));
  auto& window = windows->quintessentialWindow();
  mainWindow = std::make_unique<MainWindow>(*this);
  mainWindow->show();
  EXPECT_TRUE(ComesAbout([&] { return mainWindow->controller().rowCount() > 20; }));
  {
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    auto* info = gQuintessentialInformationClient->qipiList().Find(110);
    info->x = 0.25;
    info->y = 0.9;  // upwards
  }
  gQuintessentialInformationClient->SetPaused(true);
  const QPoint place(window.width() / 4, window.height() / 10);
  const auto selected = [&] { return mainWindow->controller().selectedPids(); };
  SetPrefInt("DEFAULT_SHOW_PROCESS_LIST_WINDOW", 0);
  QTest::mouseClick(&window, Qt::LeftButton, {}, place);
  EXPECT_TRUE(selected().empty());
  SetPrefInt("DEFAULT_SHOW_PROCESS_LIST_WINDOW", 1);
  QTest::mouseClick(&window, Qt::LeftButton, {}, place);
  EXPECT_EQ(selected(), std::vector<std::int32_t>{110});
  EXPECT_FALSE(mainWindow->menus().ContextMenu().isVisible());
  QTest::mouseClick(&window, Qt::LeftButton, Qt::ControlModifier, place);
  EXPECT_FALSE(mainWindow->menus().ContextMenu().isVisible());
  QTest::mouseClick(&window, Qt::RightButton, {}, place);
  EXPECT_TRUE(mainWindow->menus().ContextMenu().isVisible());
  mainWindow->menus().ContextMenu().hide();
}

TEST_F(ViewWindows, TheOverlayIsNotSeenBeforeItsTime) {
  machine.screen.blends = true;
  HotKeyFunc();
  machine.runLoop.RunFor(400);
  auto& overlay = windows->quintessentialFullscreenWindow();
  EXPECT_TRUE(Becomes([&] { return overlay.isExposed() && gQuintessentialViewIsCurrentlyShown; }));
  machine.runLoop.RunFor(500);
  EXPECT_EQ(overlay.opacity(), 0.0);
  machine.preferenceDomain.SetValue("QUINT_FULLSCREEN_WINDOW_ALPHA", 7.0);
  gQuintessentialInformationClient->NotifyPreferencesHaveBeenUpdated();
  EXPECT_EQ(overlay.opacity(), 0.0);
  machine.runLoop.RunFor(500);
  EXPECT_EQ(overlay.opacity(), 1.0) << "at most";
  machine.preferenceDomain.SetValue("QUINT_FULLSCREEN_WINDOW_ALPHA", 0.5);
  gQuintessentialInformationClient->NotifyPreferencesHaveBeenUpdated();
  EXPECT_NEAR(overlay.opacity(), 0.5, 0.01);
}

TEST_F(ViewWindows, OneOfTheTwoIsThereHoweverQuicklyTheyAreExchanged) {
  auto& window = windows->quintessentialWindow();
  auto& overlay = windows->quintessentialFullscreenWindow();
  // Before the window's first exposure has been served nothing is hooked up, and nothing closed.
  windows->ShowCurrentWindow();
  HotKeyFunc();
  machine.runLoop.RunFor(500);
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(ComesAbout([&] { return overlay.isExposed() && Records() > 20; }));
  // Two more requests, each as soon as it is heard.
  HotKeyFunc();
  for (int i = 0; i < 2; ++i) {
    EXPECT_TRUE(ComesAbout([] { return !gToggleFullscreenInProgress; }));
    HotKeyFunc();
  }
  EXPECT_TRUE(ComesAbout([] { return !gFCFSMMgr->IsBusy(); }));
  EXPECT_FALSE(gQuintessentialViewIsFullScreenOverlay);
  EXPECT_TRUE(ComesAbout([&] { return window.isExposed() && Records() > 20; }));
  EXPECT_FALSE(overlay.isVisible());
  // Its corner shows the background.
  EXPECT_TRUE(ComesAbout([&] {
    const QColor corner = PixelOf(window, 2, 2);
    return corner.blue() > corner.red() && corner.red() < 120;
  }));
  window.performClose();
  Serve(200);
  EXPECT_EQ(Records(), 0U);
  EXPECT_FALSE(windows->IsAnyVisible());
}

TEST_F(ViewWindows, AToggleComesAndGoesWithoutTheKeyboardOfAnotherProgram) {
  mainWindow = std::make_unique<MainWindow>(*this);
  mainWindow->show();
  QWidget other;
  other.setGeometry(300, 300, 200, 200);
  other.show();
  EXPECT_TRUE(ComesAbout([&] { return other.isActiveWindow() && mainWindow->isVisible(); }));
  machine.screen.isKeyboardElsewhere = true;
  auto& window = windows->quintessentialWindow();
  auto& overlay = windows->quintessentialFullscreenWindow();
  for (const bool blends : {false, true}) {
    machine.screen.blends = blends;
    // Without a window before there is none afterwards.
    HotKeyFunc();
    EXPECT_TRUE(ComesAbout([&] { return overlay.isExposed() && overlay.IsRevealed(); }));
    Serve(300);
    EXPECT_TRUE(other.isActiveWindow());
    EXPECT_EQ(machine.log.Take().find("RunAlertPanel"), std::string::npos)
        << "a question would take the keyboard";
    HotKeyFunc();
    EXPECT_TRUE(ComesAbout([&] { return !overlay.isVisible() && !gFCFSMMgr->IsBusy(); }));
    Serve(300);
    EXPECT_TRUE(other.isActiveWindow());
    EXPECT_FALSE(window.isVisible());
  }
  // There is one again where there was one.
  windows->ShowCurrentWindow();
  EXPECT_TRUE(ComesAbout([&] { return window.isExposed() && window.isActive(); }));
  other.activateWindow();
  EXPECT_TRUE(ComesAbout([&] { return other.isActiveWindow(); }));
  for (const bool minimised : {false, true}) {
    if (minimised) window.showMinimized();
    for (const bool full : {true, false}) {
      HotKeyFunc();
      // What was put away does not come up.
      const bool isThere = !full && !minimised;
      EXPECT_TRUE(ComesAbout([&] {
        return !gFCFSMMgr->IsBusy() && overlay.isVisible() == full && window.isVisible() == isThere;
      }));
      Serve(300);
      EXPECT_TRUE(other.isActiveWindow());
    }
  }
}

TEST_F(ViewWindows, AFullScreenViewThatIsClosedStaysClosed) {
  // Translucent, but behind others it would be in nobody's sight.
  machine.screen.blends = true;
  machine.screen.abilities.floats = false;
  HotKeyFunc();
  auto& overlay = windows->quintessentialFullscreenWindow();
  EXPECT_TRUE(ComesAbout([&] { return overlay.isExposed() && Records() > 20; }));
  EXPECT_EQ(overlay.view().Mode(), ViewMode::kOpaqueFullscreen);
  const auto log = machine.log.Take();
  EXPECT_NE(log.find("lie over other windows"), std::string::npos) << log;
  EXPECT_EQ(log.find("MakeOverlay"), std::string::npos) << log;
  QTest::keyClick(&overlay, Qt::Key_W, Qt::ControlModifier);
  EXPECT_FALSE(windows->IsAnyVisible());
  EXPECT_EQ(GetPrefInt("DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW", nullptr, false, -1), 0);
  EXPECT_EQ(GetPrefInt("DEFAULT_SHOW_PROCESS_QUIVA_WINDOW", nullptr, false, -1), 0);
  windows->ShowCurrentWindow();
  EXPECT_TRUE(windows->quintessentialWindow().isVisible());
}

struct NoOpenGL {
  NoOpenGL() { ::setenv("QT_XCB_GL_INTEGRATION", "none", 1); }
};
class WithoutOpenGL : private NoOpenGL, public ViewWindows {};

TEST_F(WithoutOpenGL, AMessageStandsAndNothingMoves) {
  windows->ShowCurrentWindow();
  auto& window = windows->quintessentialWindow();
  EXPECT_TRUE(ComesAbout(
      [&] { return window.isExposed() && gQuintessentialInformationClient != nullptr; }));
  EXPECT_EQ(window.surfaceType(), QSurface::RasterSurface);
  for (int round = 0; round < 2; ++round) {
    Serve(100);
    machine.runLoop.RunFor(3000);
    EXPECT_TRUE(gQuintessentialInformationClient->IsPaused());
    window.performClose();
    windows->ShowCurrentWindow();
    EXPECT_TRUE(ComesAbout([&] { return gQuintessentialViewIsCurrentlyShown.load(); }));
  }
}

TEST_F(WithoutOpenGL, ASurfaceThatIsOnlyComingIsNoFailure) {
  ViewDrawing drawing;
  int failures = 0;
  drawing.tellOfFailure = [&] { ++failures; };
  QWindow window;
  const ViewCommands commands;
  QuintessentialView view(window, drawing, commands);
  gQuintessentialViewIsCurrentlyShown = true;
  {
    const CriticalRegion::Guard inside(gQuintessentialMutex);
    view.SetSize({100, 100, 1});
    view.SetDrawable(true);
  }
  view.drawRect();
  for (int frame = 0; frame < 3; ++frame) view.internalDraw();
  EXPECT_EQ(failures, 0) << "right after an exposure";
  view.internalDraw();
  EXPECT_EQ(failures, 1);
  gQuintessentialViewIsCurrentlyShown = false;
}

class Overlay : public ViewWindows {
 protected:
  Overlay() : ViewWindows({"picom", "--backend", "xrender", "--config", "/dev/null"}) {}

  /// An ordinary window, in a frame of the window manager's.
  class ClickCounter : public QWidget {
   public:
    int clicks = 0;

   protected:
    void mousePressEvent(QMouseEvent*) override { ++clicks; }
  };

  void Click(int x, int y) const {
    Output({"xdotool", "mousemove", std::to_string(x), std::to_string(y), "click", "1"});
  }

  std::vector<xcb_window_t> Tree(WId window, xcb_window_t& parent) {
    if (server == nullptr) server = XConnection::Open(display.Name());
    const auto tree = server->Wait<xcb_query_tree_reply_t>(
        xcb_query_tree_unchecked(server->Raw(), static_cast<xcb_window_t>(window)),
        XConnection::BatchDeadline());
    if (tree == nullptr) return {};
    parent = tree->parent;
    const auto* children = xcb_query_tree_children(tree.get());
    return {children, children + tree->children_len};
  }
  /// Whether it stands above the frame of another one.
  bool IsAbove(WId window, WId framed) {
    xcb_window_t frame = 0, none = 0;
    Tree(framed, frame);
    const auto all = Tree(server->Root(), none);
    const auto place = [&](WId of) {
      return std::ranges::find(all, static_cast<xcb_window_t>(of)) - all.begin();
    };
    return place(window) > place(frame);
  }
};

TEST_F(Overlay, IsTranslucentAboveEverythingAndOutOfTheWay) {
  // White ground behind, which a click has to reach.
  ClickCounter behind;
  behind.setPalette(Qt::white);
  behind.setGeometry(0, 0, 600, 500);
  behind.show();
  EXPECT_TRUE(ComesAbout([&] { return behind.isActiveWindow(); }));
  HotKeyFunc();
  auto& overlay = windows->quintessentialFullscreenWindow();
  // Through the server: the simulated screen leaves that to us.
  EXPECT_TRUE(ComesAbout([&] { return overlay.isExposed(); }));
  EXPECT_TRUE(ComesAbout([&] {
    const auto all = Properties(overlay);
    return all.find("_NET_WM_WINDOW_OPACITY") != std::string::npos &&
           all.find("3435973836") != std::string::npos;  // 0.8
  })) << Properties(overlay);
  const auto properties = Properties(overlay);
  EXPECT_NE(properties.find("_NET_WM_WINDOW_TYPE_NOTIFICATION"), std::string::npos) << properties;
  EXPECT_NE(properties.find("Client accepts input or input focus: False"), std::string::npos)
      << properties;
  EXPECT_EQ(overlay.geometry(), QRect(0, 0, 1024, 768));
  EXPECT_TRUE(behind.isActiveWindow());
  // A click reaches what is behind.
  behind.clicks = 0;
  Click(300, 200);
  EXPECT_TRUE(ComesAbout([&] { return behind.clicks == 1; }));
  // So does one on what is opened later, which is not above it for long.
  ClickCounter later;
  later.setGeometry(100, 100, 200, 200);
  later.show();
  EXPECT_TRUE(ComesAbout([&] { return later.isActiveWindow(); }));
  Click(200, 200);
  EXPECT_TRUE(ComesAbout([&] { return later.clicks == 1; }));
  EXPECT_TRUE(ComesAbout([&] {
    // The simulated screen leaves that to us.
    realScreen.PutAboveManaged(overlay.winId());
    return IsAbove(overlay.winId(), later.winId());
  }));
  // Dark at 63 of 255 and 0.8 over white: grey, and nothing like either.
  EXPECT_TRUE(ComesAbout([&] {
    const QColor mixed = PixelOf(overlay, 450, 400);
    return mixed.red() > 190 && mixed.red() < 235;
  })) << PixelOf(overlay, 450, 400).red();
  HotKeyFunc();
  EXPECT_TRUE(ComesAbout([&] { return windows->quintessentialWindow().isExposed(); }));
  EXPECT_FALSE(overlay.isVisible());
  EXPECT_EQ(GetPrefInt("DEFAULT_SHOW_FULLSCREEN_PROCESS_QUIVA_WINDOW", nullptr, false, -1), 0);
}

}  // namespace
}  // namespace lurkwell
