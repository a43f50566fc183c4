#include "preferences_window/PanelTest.h"

#include <QComboBox>
#include <QScreen>
#include <QTabBar>

#include "windows/FrontmostWindow.h"

namespace lurkwell {
namespace {

constexpr char kFrame[] = "HEARTQUIVA_GL_THREAD_INTERVAL";
constexpr char kMain[] = "HEARTQUIVA_MAINPIC_INTERVAL";
constexpr char kCPU[] = "HEARTQUIVA_HELPERPIC_INTERVAL";

TEST_F(PanelTest, TheMovedIntervalWinsAndTheOthersFollow) {
  struct Case {
    const char* slider;
    int position;
    int frame, main, cpu;
  };
  // Beginning with 200, 1000 and 5000.
  constexpr Case kCases[] = {
      {"frameIntervalSlider", 160, 500, 1000, 5000},
      {"frameIntervalSlider", 225, 2000, 2000, 5000},
      {"frameIntervalSlider", 400, 10'000, 10'000, 10'000},
      {"mainIntervalSlider", 225, 200, 2000, 5000},
      {"mainIntervalSlider", 0, 100, 100, 5000},
      {"mainIntervalSlider", 400, 200, 10'000, 10'000},
      {"cpuIntervalSlider", 400, 200, 1000, 10'000},
      {"cpuIntervalSlider", 160, 200, 500, 500},
      {"cpuIntervalSlider", 0, 100, 100, 100},
  };
  const std::pair<const char*, int> begin[] = {{kFrame, 200}, {kMain, 1000}, {kCPU, 5000}};
  for (const auto& [slider, position, frame, main, cpu] : kCases) {
    for (const auto& [key, value] : begin) SetPrefInt(key, value);
    Open(2);
    const auto writes = machine.preferenceDomain.SynchronizeCount();
    Move(slider, position);
    EXPECT_EQ(Stored(kFrame), frame) << slider << position;
    EXPECT_EQ(Stored(kMain), main) << slider << position;
    EXPECT_EQ(Stored(kCPU), cpu) << slider << position;
    EXPECT_EQ(Heard(), "QuintessentialInformationClient preferences\n") << slider << position;
    EXPECT_EQ(machine.preferenceDomain.SynchronizeCount(), writes + 1);
    // What is shown is what a fresh window shows.
    const auto shown = [this] {
      return Text("frameIntervalText") + Text("mainIntervalText") + Text("cpuIntervalText") +
             std::to_string(At("mainIntervalSlider") + At("cpuIntervalSlider"));
    };
    const std::string before = shown();
    Close();
    Open(2);
    EXPECT_EQ(shown(), before) << slider << position;
    Close();
  }
}

TEST_F(PanelTest, ValuesThatNoControlCanShowAreShownNearlyAndKept) {
  SetPrefInt("MAIN_WINDOW_INTERVAL", 150);
  SetPrefInt("DEFAULT_LOGGING_WINDOW_INTERVAL", 50);
  SetPrefString("DEFAULT_CPU_HISTORY_WINDOW_INTERVAL", "often");
  SetPrefDouble("QUINT_FULLSCREEN_WINDOW_ALPHA", -3.5);
  SetPrefDouble("CPU_HISTORY_WINDOW_DEFAULT_FILTER", 0.12345);
  SetPrefInt("GENERAL_PREFERRED_MEMORY_DISPLAY_FORMAT", 17);
  SetPrefInt("PREFERENCES_UI_DEFAULT_TAB", -1);
  const auto before = machine.preferenceDomain.Values();
  testing::internal::CaptureStderr();
  Open(vqPreferencesUI::kRememberedTab);
  EXPECT_EQ(testing::internal::GetCapturedStderr().find("assertion"), std::string::npos);
  EXPECT_EQ(Find<QTabWidget>("tabView").currentIndex(), 0);
  EXPECT_EQ(At("mainWindowIntervalSlider"), 60);
  EXPECT_EQ(Text("mainWindowIntervalText"), "6 times per second");
  EXPECT_EQ(At("loggingIntervalSlider"), 0);
  EXPECT_EQ(Text("loggingIntervalText"), "20 times per second");
  EXPECT_EQ(Text("historyIntervalText"), "4 times per second") << "the default";
  EXPECT_EQ(At("windowAlphaSlider"), 0);
  EXPECT_TRUE(Find<QRadioButton>("memoryFormatMatrixAutomatic").isChecked());
  EXPECT_EQ(machine.preferenceDomain.Values(), before) << "opening stored something";
  Move("mainWindowIntervalSlider", 61);
  EXPECT_EQ(Stored("MAIN_WINDOW_INTERVAL"), 142);
}

TEST_F(PanelTest, OnePanelThatRemembersItsPageAndCountsAsTheFrontmostWindow) {
  Open(3);
  EXPECT_TRUE(Window().windowTitle().startsWith("Lurkwell Pref"));
  EXPECT_TRUE(EnsureThatCocoaWindowIsFrontmostIfPossible());
  auto* first = gThePreferencesUI;
  vqPreferencesUI::runWithTab(1);
  EXPECT_EQ(gThePreferencesUI, first);
  EXPECT_EQ(Find<QTabWidget>("tabView").currentIndex(), 3) << "the page of an open window stays";
  Find<QTabWidget>("tabView").setCurrentIndex(2);
  QTest::keyClick(&Window(), Qt::Key_Escape);
  EXPECT_EQ(gThePreferencesUI, nullptr);
  EXPECT_EQ(Stored("PREFERENCES_UI_DEFAULT_TAB"), 2);
  Open(vqPreferencesUI::kRememberedTab);
  EXPECT_EQ(Find<QTabWidget>("tabView").currentIndex(), 2);
  struct Asked : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      return event->type() == QEvent::Quit && ++times;
    }
    int times = 0;
  } asked;
  qApp->installEventFilter(&asked);
  QTest::keyClick(&Window(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(asked.times, 1);
  QTest::keyClick(&Window(), Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(gThePreferencesUI, nullptr);
}

TEST_F(PanelTest, EachPageHasItsHeightUnderAnUnmovedTopEdge) {
  constexpr int kHeights[] = {283, 214, 373, 309, 353};
  for (int page = 0; page < 5; ++page) {
    Open(page);
    EXPECT_EQ(Window().height(), kHeights[page]) << page;
    EXPECT_FALSE(Find("pageChoice").isVisible());
    const QPoint place = Window().pos();
    const int next = (page + 2) % 5;
    Find<QTabWidget>("tabView").setCurrentIndex(next);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Window().height() == kHeights[next]; })) << next;
    EXPECT_EQ(Window().pos(), place);
    Close();
  }
  // Nothing is cut off with larger letters.
  auto font = QApplication::font();
  font.setPointSize(24);
  QApplication::setFont(font);
  for (int page = 0; page < 5; ++page) {
    Open(page);
    EXPECT_GT(Window().height(), kHeights[page]) << page;
    EXPECT_LE(Window().height(), Window().screen()->availableSize().height()) << page;
    // Tabs that the screen has no room for are a list, which keys work, too.
    auto& tabs = Find<QTabWidget>("tabView");
    auto& list = Find<QComboBox>("pageChoice");
    EXPECT_TRUE(list.isVisible() && !tabs.tabBar()->isVisible());
    EXPECT_EQ(list.currentText(), tabs.tabText(page));
    QTest::keyClick(&list, page > 0 ? Qt::Key_Up : Qt::Key_Down);
    EXPECT_EQ(tabs.currentIndex(), page > 0 ? page - 1 : 1);
    QTest::keyClick(&list, page > 0 ? Qt::Key_Down : Qt::Key_Up);
    for (const auto* widget : tabs.currentWidget()->findChildren<QWidget*>())
      EXPECT_TRUE(widget->isHidden() || widget->height() >= widget->minimumSizeHint().height())
          << page << qPrintable(widget->objectName());
    Close();
  }
}

TEST_F(PanelTest, InvalidPagesFailAndAreSurvived) {
  testing::internal::CaptureStderr();
  Open(-1);
  EXPECT_EQ(Find<QTabWidget>("tabView").currentIndex(), 0);
  gThePreferencesUI->internalTabViewItem(7);
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_NE(said.find("Invalid initial tab setting in pref panel"), std::string::npos) << said;
  EXPECT_NE(said.find("We're on an invalid tab in internalTabViewItem"), std::string::npos) << said;
}

TEST_F(PanelTest, OnlyLogsSayThatTheyTakeEffectLater) {
  Open(4);
  EXPECT_FALSE(Find("changeNotice").isVisible());
  Find<QAbstractButton>("relativeCheckBox").toggle();
  EXPECT_FALSE(Find("changeNotice").isVisible());
  const int height = Window().height();
  Find<QAbstractButton>("realMemoryCheckBox").click();
  EXPECT_TRUE(Find("changeNotice").isVisible());
  EXPECT_EQ(Window().height(), height);
}

TEST_F(PanelTest, ADraggedSliderIsTakenNowAndThenAndAtItsEnd) {
  Open(1);
  auto& slider = Find<QSlider>("mainWindowIntervalSlider");
  const auto writes = machine.preferenceDomain.SynchronizeCount();
  slider.setSliderDown(true);
  for (int position = 300; position < 360; ++position) slider.setValue(position);
  EXPECT_EQ(Text("mainWindowIntervalText"), "every 7 seconds");
  slider.setSliderDown(false);
  EXPECT_EQ(Stored("MAIN_WINDOW_INTERVAL"), 7'950);
  EXPECT_EQ(Heard(), "VQTarvMainWindowInfoSynch preferences\n");
  EXPECT_LE(machine.preferenceDomain.SynchronizeCount(), writes + 2);
  slider.setSliderDown(true);
  slider.setValue(400);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Stored("MAIN_WINDOW_INTERVAL") == 10'000; }));
  slider.setValue(0);
  Close();
  EXPECT_EQ(Stored("MAIN_WINDOW_INTERVAL"), 100) << "closed under the mouse";
}

TEST_F(PanelTest, AHeldKeyIsTakenNowAndThenAndFindsTheDefaultAgain) {
  Open(1);
  auto& slider = Find<QSlider>("mainWindowIntervalSlider");
  ASSERT_EQ(slider.value(), 225);
  const auto writes = machine.preferenceDomain.SynchronizeCount();
  for (int i = 0; i < 20; ++i) QTest::keyClick(&slider, Qt::Key_Right);
  EXPECT_EQ(Text("mainWindowIntervalText"), "every 6 seconds") << "shown at once";
  for (int i = 0; i < 20; ++i) QTest::keyClick(&slider, Qt::Key_Left);
  ASSERT_TRUE(QTest::qWaitFor([] { return Stored("MAIN_WINDOW_INTERVAL") == 2000; }));
  EXPECT_LE(machine.preferenceDomain.SynchronizeCount(), writes + 2);
  Heard();
  // What waits is not lost to another control, nor to the end of the window.
  Find<QTabWidget>("tabView").setCurrentIndex(2);
  QTest::keyClick(&Find("windowAlphaSlider"), Qt::Key_Home);
  QTest::keyClick(&Find("underlayAlphaSlider"), Qt::Key_End);
  Close();
  EXPECT_EQ(Stored("QUINT_FULLSCREEN_WINDOW_ALPHA"), 0);
  EXPECT_EQ(Stored("QUINT_FULLSCREEN_UNDERLAY_ALPHA"), 1);
}

TEST_F(PanelTest, EveryControlIsNamedAndExplained) {
  Open(0);
  for (const auto* setting : SettingsWithControls()) {
    const auto& widget = Find(setting->control);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const QString name = button != nullptr ? button->text() : widget.accessibleName();
    const bool isNamed = !name.isEmpty() || ControlKindOf(*setting) == ControlKind::kMatrix;
    EXPECT_TRUE(isNamed && !name.startsWith("preferences_")) << setting->control;
    EXPECT_TRUE(widget.toolTip().endsWith('.')) << setting->control;
  }
  // One letter for one control on each page, and none of the buttons'.
  auto& tabs = Find<QTabWidget>("tabView");
  for (int page = 0; page < 5; ++page) {
    QString letters = "lc";
    const auto collect = [&](const QString& text) {
      const auto at = text.indexOf('&');
      if (at < 0) return;
      EXPECT_FALSE(letters.contains(text[at + 1].toLower())) << qPrintable(text);
      letters += text[at + 1].toLower();
    };
    for (const auto* button : tabs.widget(page)->findChildren<QAbstractButton*>())
      collect(button->text());
    for (const auto* label : tabs.widget(page)->findChildren<QLabel*>()) collect(label->text());
    EXPECT_GE(letters.size(), 4);
    EXPECT_FALSE(tabs.tabText(page).startsWith("preferences_"));
  }
}

TEST_F(PanelTest, AMissingFormIsToldAndOpensNothing) {
  testing::internal::CaptureStderr();
  vqPreferencesUI::runWithTab(0, ":/forms/NoSuchForm.ui");
  EXPECT_NE(testing::internal::GetCapturedStderr().find("MainWindowCocoa.nib failed to load"),
            std::string::npos);
  EXPECT_EQ(gThePreferencesUI, nullptr);
  ASSERT_FALSE(machine.log.Lines().empty());
  EXPECT_TRUE(machine.log.Lines().back().starts_with("Alerts.RunAlertPanel"));
}

}  // namespace
}  // namespace lurkwell
