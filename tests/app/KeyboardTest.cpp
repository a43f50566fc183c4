// The Tab key in every window: it comes round, reaches whatever a click does something with, and
// each stop can be seen, in the light theme and the dark one.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>
#include <utility>

#include "alerts_window/AlertsWindow.h"
#include "app/WindowMode.h"
#include "app/appDelegate.h"
#include "consolidator/PI_Consolidator.h"
#include "fleet_window/SignInDialog.h"
#include "main_window/HelpWindow.h"
#include "platform/ApplicationQuitting.h"
#include "platform/simulated/SimulatedMachine.h"
#include "preferences_window/PreferencesUI.h"
#include "support/TabRound.h"

namespace lurkwell {
namespace {

using Theme = CommandLine::Theme;

/// Looks at questions, which wait in loops of their own, and takes them back.
class Asked final : public QObject {
 public:
  Asked() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(object) : nullptr;
    if (dialog != nullptr && dialog->isModal())
      QTimer::singleShot(0, dialog, [this, dialog] {
        ++count;
        TabRound::LookAt(*dialog);
        dialog->reject();
      });
    return false;
  }

  int count = 0;
};

class KeyboardTest : public testing::TestWithParam<Theme> {
 protected:
  KeyboardTest() {
    ApplyTheme(GetParam());
    gApplicationQuitting = false;
    machine.namedPipes.SetHelper(
        [this](std::string_view request) { return machine.helper.Answer(request); });
    machine.helper.SetRecordsFigures(false);
    for (int pid = 300; pid < 330; ++pid)
      machine.processTable.Birth(pid, "p" + std::to_string(pid));
    delegate.init();
    delegate.applicationDidFinishLaunching();
    machine.runLoop.RunFor(2000);
    QApplication::processEvents();
  }
  ~KeyboardTest() override {
    delegate.applicationWillTerminate();
    QApplication::setPalette(QPalette());
  }

  /// The one that has come up since.
  static QWidget* Opened(const std::function<void()>& open) {
    const auto before = QApplication::topLevelWidgets();
    open();
    QApplication::processEvents();
    for (auto* window : QApplication::topLevelWidgets())
      if (!before.contains(window) && window->isVisible() && window->isWindow() &&
          window->windowType() != Qt::Popup && window->windowType() != Qt::ToolTip)
        return window;
    return nullptr;
  }

  void Choose(const char* id) {
    auto& main = delegate.mainWindow();
    main.menus().ValidateAll();
    auto* action = main.findChild<QAction*>(QLatin1String(id));
    ASSERT_NE(action, nullptr) << id;
    ASSERT_TRUE(action->isEnabled()) << id;
    action->trigger();
    // Modal questions come and go meanwhile.
    QTest::qWait(1);
    QApplication::processEvents();
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  vqAppDelegate delegate;
};

TEST_P(KeyboardTest, TabGoesRoundEveryWindow) {
  auto& main = delegate.mainWindow();
  main.resize(1100, 700);
  main.controller().selectPid(300);
  QApplication::processEvents();
  TabRound::LookAt(main);
  QTest::keyClick(&main.table(), Qt::Key_F, Qt::ControlModifier);
  QApplication::processEvents();
  TabRound::LookAt(main);
  const std::pair<const char*, std::function<void()>> kWindows[] = {
      {"preferences", [&] { delegate.doThePrefs(); }},
      {"all settings", [&] { gThePreferencesUI->showAllSettings(); }},
      {"machine", [&] { delegate.doShowMachineWindow(); }},
      {"alerts", [&] { delegate.doShowAlerts(); }},
      {"details", [&] { Choose("menu_file_details"); }},
      {"remembered windows", [&] { Choose("menu_window_remembered"); }},
      {"customise", [&] { Choose("menu_view_customise_toolbar"); }},
      {"log", [&] { Choose("menu_file_new_logging"); }},
      {"rule", [&] { delegate.doAlertAbout(300); }},
      {"help", [&] { ShowHelpWindow(QStringLiteral("<h2 id=\"a\">A</h2>Text"), {}, main); }},
  };
  for (const auto& [name, open] : kWindows) {
    SCOPED_TRACE(name);
    auto* window = Opened(open);
    ASSERT_NE(window, nullptr);
    machine.runLoop.RunFor(2000);
    QApplication::processEvents();
    TabRound::LookAt(*window);
  }
}

TEST_P(KeyboardTest, TabGoesRoundEveryQuestion) {
  Asked asked;
  auto& main = delegate.mainWindow();
  main.controller().selectPid(300);
  QApplication::processEvents();
  for (const char* item : {"menu_process_quit_or_kill", "menu_process_signal", "menu_process_halt",
                           "menu_process_scheduling", "menu_process_by_id", "menu_set_save_as",
                           "menu_file_open_fleet"}) {
    SCOPED_TRACE(item);
    const int before = asked.count;
    Choose(item);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked.count > before; }, 2000));
  }
  // Deletes itself.
  (new SignInDialog(QUrl(QStringLiteral("http://monitor:9090")), &main))->open();
  EXPECT_TRUE(QTest::qWaitFor([&] { return asked.count == 8; }, 2000)) << asked.count;
  main.table().selectAll();
  Choose("menu_process_quit_or_kill");
  EXPECT_TRUE(QTest::qWaitFor([&] { return asked.count == 9; }, 2000)) << asked.count;
}

INSTANTIATE_TEST_SUITE_P(Themes, KeyboardTest, testing::Values(Theme::kLight, Theme::kDark),
                         [](const auto& theme) {
                           return theme.param == Theme::kDark ? "Dark" : "Light";
                         });

}  // namespace
}  // namespace lurkwell
