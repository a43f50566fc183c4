// Every window in every language, and in one that is written from the right.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFontDatabase>
#include <QMenu>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <initializer_list>
#include <memory>
#include <string>

#include "alerts_window/AlertsWindow.h"
#include "app/SplashScreen.h"
#include "app/VisibleTexts.h"
#include "app/appDelegate.h"
#include "fleet_window/FleetWindow.h"
#include "fleet_window/SignInDialog.h"
#include "machine_window/MachineWindow.h"
#include "platform/ApplicationQuitting.h"
#include "platform/simulated/SimulatedMachine.h"
#include "preferences/PreferencesRetrieval.h"
#include "preferences_window/PreferencesUI.h"
#include "resources/Resources.h"
#include "windows/StripedTableView.h"

namespace lurkwell {
namespace {

constexpr const char* kMadeUp = "fa";

/// Each window that comes is looked at with all of its pages, and questions are taken back.
class Reader final : public QObject {
 public:
  Reader() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(object);
    if (event->type() == QEvent::Show && widget != nullptr && widget->isWindow() &&
        widget->windowType() != Qt::ToolTip)
      QTimer::singleShot(0, widget, [this, widget] {
        // Wide texts may make a window grow once it is there.
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        Read(*widget);
        if (auto* dialog = qobject_cast<QDialog*>(widget); dialog != nullptr && dialog->isModal())
          dialog->reject();
      });
    return false;
  }

  void Read(QWidget& window) {
    windows.insert(QString::fromLatin1(window.metaObject()->className()));
    Look(window);
    for (auto* pages : window.findChildren<QTabWidget*>()) {
      const int shown = pages->currentIndex();
      for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        Look(window);
      }
      pages->setCurrentIndex(shown);
    }
  }

  QSet<QString> windows;

 private:
  void Look(const QWidget& window) {
    for (const auto& wrong : VisibleTexts::WrongIn(window)) {
      if (mSaid.contains(wrong)) continue;
      mSaid.insert(wrong);
      ADD_FAILURE() << qPrintable(wrong) << " in " << qPrintable(window.windowTitle()) << " ("
                    << window.metaObject()->className() << ", " << window.width() << " wide)";
    }
  }

  QSet<QString> mSaid;
};

class LanguagesTest : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    const QString language = QLatin1String(GetParam());
    const auto folder = language == QLatin1String(kMadeUp) ? QStringLiteral(LANGUAGES_FOLDER)
                                                           : QStringLiteral(":/strings");
    ASSERT_TRUE(InstallLanguage(*qApp, language, folder));
    const auto system = language == QLatin1String("ja")      ? QFontDatabase::Japanese
                        : language == QLatin1String("zh_CN") ? QFontDatabase::SimplifiedChinese
                        : language == QLatin1String(kMadeUp) ? QFontDatabase::Hebrew
                                                             : QFontDatabase::Latin;
    ASSERT_FALSE(QFontDatabase::families(system).isEmpty())
        << "without a font for it nothing can be measured";
    machine.namedPipes.SetHelper(
        [this](std::string_view request) { return machine.helper.Answer(request); });
    machine.helper.SetRecordsFigures(false);
    machine.processTable.TellFigures(true);
    machine.processTable.Birth(300, "server");
    machine.processTable.Birth(301, "worker");
    gApplicationQuitting = false;
    delegate = std::make_unique<vqAppDelegate>();
    delegate->init();
    delegate->applicationDidFinishLaunching();
    Pass(3000);
  }

  void TearDown() override {
    if (delegate != nullptr) delegate->applicationWillTerminate();
    delegate.reset();
    InstallLanguage(*qApp, QStringLiteral("en"));
  }

  void Pass(std::int64_t milliseconds) {
    machine.runLoop.RunFor(milliseconds);
    // Modal questions come and go meanwhile.
    QTest::qWait(1);
    QApplication::processEvents();
  }

  void Select(std::initializer_list<int> pids) {
    auto& window = delegate->mainWindow();
    window.table().clearSelection();
    for (const int pid : pids)
      window.table().selectionModel()->select(
          window.controller().index(window.controller().rows().Find(pid)->shownIndex, 0),
          QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }

  void Choose(const char* id) {
    auto& window = delegate->mainWindow();
    const auto text = LocalizedString(id);
    for (auto* action : window.findChildren<QAction*>()) {
      if (action->text() != text) continue;
      EXPECT_TRUE(action->isEnabled()) << id;
      action->trigger();
      return Pass(0);
    }
    ADD_FAILURE() << "no item " << id;
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  Reader reader;
  std::unique_ptr<vqAppDelegate> delegate;
};

TEST_P(LanguagesTest, EveryWindowShowsItsTextsWhole) {
  auto& main = delegate->mainWindow();
  Select({300});
  Pass(0);
  for (const char* item :
       {"menu_application_about", "menu_application_preferences", "menu_window_show_machine",
        "menu_window_show_alerts", "menu_window_remembered", "menu_file_details",
        "menu_file_new_cpu_history", "menu_file_new_logging", "menu_process_quit_or_kill",
        "menu_process_signal", "menu_process_halt", "menu_process_low_priority",
        "menu_process_scheduling", "menu_process_by_id", "menu_set_save_as",
        "menu_view_customise_toolbar", "menu_file_open_fleet"})
    Choose(item);
  gThePreferencesUI->showAllSettings();
  AlertsWindow::IfOpen()->AskForRule(QStringLiteral("name=server for 30s"));
  // Deletes itself.
  (new SignInDialog(QUrl(QStringLiteral("http://monitor:9090")), &main))->show();
  Pass(4000);
  Select({300, 301});
  Choose("menu_process_quit_or_kill");
  for (auto* window : QApplication::topLevelWidgets())
    if (window->isVisible()) reader.Read(*window);
  EXPECT_GE(reader.windows.size(), 17) << qPrintable(reader.windows.values().join(' '));
}

INSTANTIATE_TEST_SUITE_P(All, LanguagesTest,
                         testing::Values("en", "de", "fr", "es", "pt", "ja", "zh_CN", kMadeUp),
                         [](const auto& its) { return std::string(its.param); });

}  // namespace
}  // namespace lurkwell
