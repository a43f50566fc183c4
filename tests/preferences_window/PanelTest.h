#pragma once

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <optional>
#include <string>

#include "preferences/PreferencesRetrieval.h"
#include "preferences_window/PreferencesUI.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {

/// The preferences window over a simulated machine, with a client of every class that it tells.
class PanelTest : public ConsolidatorTest {
 protected:
  PanelTest() {
    Start();
    for (const char* name : {"VQTarvMainWindowInfoSynch", "QuintessentialInformationClient",
                             "CPUHistoryWindowInformationClient", "Bystander"})
      Add(name, 600'000);
    Heard();
  }
  ~PanelTest() override { Close(); }

  void Open(int tab = 0) {
    vqPreferencesUI::runWithTab(tab);
    ASSERT_NE(gThePreferencesUI, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  }
  static void Close() {
    vqPreferencesUI::closeIfOpen();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  static QWidget& Window() { return gThePreferencesUI->window(); }

  template <typename Widget = QWidget>
  static Widget& Find(const char* name) {
    auto* widget = Window().findChild<Widget*>(QLatin1String(name));
    if (widget == nullptr) ADD_FAILURE() << name;
    return *widget;
  }
  static std::string Text(const char* name) { return Find<QLabel>(name).text().toStdString(); }
  static int At(const char* slider) { return Find<QSlider>(slider).value(); }
  static void Move(const char* slider, int position) { Find<QSlider>(slider).setValue(position); }

  /// What is stored; nothing when nothing is.
  static std::optional<double> Stored(const std::string& key) {
    std::uint8_t found = 0;
    const double value = GetPrefDouble(key.c_str(), &found, false, 0);
    return found != 0 ? std::optional(value) : std::nullopt;
  }

  /// Who was told since it was asked last, newest client first.
  std::string Heard() { return told.Take(); }
};

}  // namespace lurkwell
