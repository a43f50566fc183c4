// The Tab key in every window: it comes round, and reaches whatever a click does something with.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <functional>
#include <memory>
#include <set>
#include <string>

#include "alerts_window/AlertsWindow.h"
#include "app/appDelegate.h"
#include "consolidator/PI_Consolidator.h"
#include "platform/ApplicationQuitting.h"
#include "platform/simulated/SimulatedMachine.h"
#include "preferences_window/PreferencesUI.h"

namespace lurkwell {
namespace {

using Widgets = std::set<const QWidget*>;

std::string NameOf(const QWidget& widget) {
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  const auto name = widget.accessibleName().isEmpty() && button != nullptr
                        ? button->text()
                        : widget.accessibleName() + '/' + widget.objectName();
  return std::string(widget.metaObject()->className()) + " '" + name.toStdString() + "'";
}

bool TakesClicks(const QWidget& widget) {
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
         qobject_cast<const QTextBrowser*>(&widget) != nullptr ||
         qobject_cast<const QTabBar*>(&widget) != nullptr ||
         (qobject_cast<const QAbstractItemView*>(&widget) != nullptr &&
          qobject_cast<const QHeaderView*>(&widget) == nullptr) ||
         (qobject_cast<const QAbstractSlider*>(&widget) != nullptr &&
          qobject_cast<const QScrollBar*>(&widget) == nullptr);
}

/// Whether another one stands for it: the one that it is a part of, or one of its group.
bool IsServed(const QWidget& widget, const Widgets& visited) {
  for (const auto* of = &widget; of != nullptr && !of->isWindow(); of = of->parentWidget()) {
    if (visited.contains(of)) return true;
    if (qobject_cast<const QAbstractSpinBox*>(of) != nullptr && visited.contains(of->focusProxy()))
      return true;
    // Arrows go on from there.
    if (qobject_cast<const QToolBar*>(of) != nullptr)
      for (const auto* item : visited)
        if (of->isAncestorOf(item)) return true;
    // What scrolls them has a key of its own.
    if (qobject_cast<const QTabBar*>(of->parentWidget()) != nullptr) return true;
    // A field's own buttons do what keys do in it.
    if (qobject_cast<const QLineEdit*>(of->parentWidget()) != nullptr) return true;
  }
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  if (button == nullptr || !(button->autoExclusive() || button->group() != nullptr)) return false;
  for (const auto* other : widget.parentWidget()->findChildren<QAbstractButton*>())
    if (other->autoExclusive() == button->autoExclusive() && other->group() == button->group() &&
        visited.contains(other))
      return true;
  return false;
}

class KeyboardTest : public testing::Test {
 protected:
  KeyboardTest() {
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
  ~KeyboardTest() override { delegate.applicationWillTerminate(); }

  static void LookAt(QWidget& window) {
    SCOPED_TRACE(window.windowTitle().toStdString());
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    if (QApplication::focusWidget() == nullptr) QTest::keyClick(&window, Qt::Key_Tab);
    const auto* first = QApplication::focusWidget();
    ASSERT_NE(first, nullptr);
    for (const auto key : {Qt::Key_Tab, Qt::Key_Backtab}) {
      Widgets visited;
      constexpr int kMost = 150;
      int steps = 0;
      do {
        visited.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), key,
                        key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        QApplication::processEvents();
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        ASSERT_EQ(QApplication::focusWidget()->window(), &window);
      } while (QApplication::focusWidget() != first && ++steps < kMost);
      EXPECT_EQ(QApplication::focusWidget(), first)
          << "it does not come round, but back to " << NameOf(*QApplication::focusWidget());
      for (const auto* widget : window.findChildren<QWidget*>())
        if (TakesClicks(*widget) && widget->isVisible() && widget->isEnabled() &&
            widget->window() == &window && !IsServed(*widget, visited))
          ADD_FAILURE() << NameOf(*widget) << " is not reached, in "
                        << NameOf(*widget->parentWidget());
    }
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

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  vqAppDelegate delegate;
};

TEST_F(KeyboardTest, TabGoesRoundEveryWindow) {
  auto& main = delegate.mainWindow();
  main.resize(1100, 700);
  main.controller().selectPid(300);
  QApplication::processEvents();
  LookAt(main);
  QTest::keyClick(&main.table(), Qt::Key_F, Qt::ControlModifier);
  QApplication::processEvents();
  LookAt(main);
  const auto choose = [&main](const char* id) {
    main.menus().ValidateAll();
    main.findChild<QAction*>(QLatin1String(id))->trigger();
  };
  const std::pair<const char*, std::function<void()>> kWindows[] = {
      {"preferences", [&] { delegate.doThePrefs(); }},
      {"all settings", [&] { gThePreferencesUI->showAllSettings(); }},
      {"machine", [&] { delegate.doShowMachineWindow(); }},
      {"alerts", [&] { delegate.doShowAlerts(); }},
      {"details", [&] { choose("menu_file_details"); }},
      {"remembered windows", [&] { choose("menu_window_remembered"); }},
      {"customise", [&] { choose("menu_view_customise_toolbar"); }},
      {"log", [&] { choose("menu_file_new_logging"); }},
      {"rule", [&] { delegate.doAlertAbout(300); }},
  };
  for (const auto& [name, open] : kWindows) {
    auto* window = Opened(open);
    ASSERT_NE(window, nullptr) << name;
    machine.runLoop.RunFor(2000);
    QApplication::processEvents();
    if (std::string_view(name) == "log") continue;
    LookAt(*window);
  }
}

}  // namespace
}  // namespace lurkwell
