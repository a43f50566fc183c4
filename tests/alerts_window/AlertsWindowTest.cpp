// From a rule that a user types to the notification, on a simulated machine.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "alerts_window/AlertEditor.h"
#include "alerts_window/AlertNotifier.h"
#include "alerts_window/AlertTexts.h"
#include "alerts_window/AlertsWindow.h"
#include "preferences/PreferenceArrays.h"
#include "support/ConsolidatorTest.h"

namespace lurkwell {
namespace {

class AlertsWindowTest : public ConsolidatorTest {
 protected:
  void SetUp() override {
    machine.processTable.TellFigures(true);
    machine.processTable.Birth(300, "compiler");
    machine.processTable.Birth(301, "<b>evil</b>\n");
    (*machine.processTable.Find(300))["pid_rsz"] = 100 << 20;
    Start();
    centre = std::make_unique<AlertCentre>();
    notifier = std::make_unique<AlertNotifier>(*centre, [this](const AlertOccurrence& occurrence) {
      chosen.push_back(occurrence.subject.process.pid);
    });
    window = &AlertsWindow::Open(*centre,
                                 {[this](std::int32_t pid) {
                                    shown.push_back(pid);
                                    return pid != 301;
                                  },
                                  [this] { return QString::fromStdString(notifier->Problem()); }});
  }
  void TearDown() override {
    delete AlertsWindow::IfOpen();
    notifier.reset();
    centre.reset();
  }

  void Pass(int seconds) {
    machine.runLoop.RunFor(seconds * 1000);
    QCoreApplication::processEvents();
  }
  QTableWidget& TableOf(int columns) const {
    for (auto* table : window->findChildren<QTableWidget*>())
      if (table->columnCount() == columns) return *table;
    throw std::runtime_error("no such table");
  }
  QTableWidget& Rules() const { return TableOf(3); }
  QTableWidget& Occurrences() const { return TableOf(5); }
  static std::string Cell(const QTableWidget& table, int row, int column) {
    return table.item(row, column)->text().toStdString();
  }
  void Press(const char* text) const {
    for (auto* button : window->findChildren<QPushButton*>())
      if (button->text() == QString::fromUtf8(text))
        return QTest::mouseClick(button, Qt::LeftButton);
    FAIL() << text;
  }
  AlertEditor* Editor() const {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return window->findChild<AlertEditor*>();
  }
  static std::string Said(const QWidget* within) {
    QStringList texts;
    for (const auto* label : within->findChildren<QLabel*>())
      if (!label->isHidden()) texts += label->text();
    return texts.join(QLatin1Char('\n')).toStdString();
  }
  static bool Has(const std::string& text, std::string_view part) {
    return text.find(part) != text.npos;
  }
  std::vector<std::string> Notified() {
    std::vector<std::string> shows;
    for (const auto& line : machine.log.Lines())
      if (line.starts_with("Notifications")) shows.push_back(line);
    machine.log.Clear();
    return shows;
  }

  std::unique_ptr<AlertCentre> centre;
  std::unique_ptr<AlertNotifier> notifier;
  AlertsWindow* window = nullptr;
  std::vector<std::int32_t> shown, chosen;
};

TEST_F(AlertsWindowTest, ARuleIsTypedTriedAndToldOnce) {
  Press("Add…");
  auto* editor = Editor();
  ASSERT_NE(editor, nullptr);
  auto& field = *editor->findChildren<QLineEdit*>().front();
  // A mistake is said, and nothing is lost by agreeing to it.
  QTest::keyClicks(&field, "pid:300 mem>lots for 1m");
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_TRUE(Has(Said(editor), "lots")) << Said(editor);
  EXPECT_EQ(field.selectedText(), "lots");
  QTest::keyClicks(&field, "50M");
  Pass(3);
  EXPECT_TRUE(Has(Said(editor), "Processes that meet it: 1\ncompiler (300): ")) << Said(editor);
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(Editor(), nullptr);
  ASSERT_EQ(Rules().rowCount(), 1);
  EXPECT_EQ(Cell(Rules(), 0, 0), "pid:300 mem>50M for 1m");
  EXPECT_EQ(Rules().item(0, 0)->checkState(), Qt::Checked);
  Pass(30);
  EXPECT_TRUE(Has(Cell(Rules(), 0, 1), "Met for ")) << Cell(Rules(), 0, 1);
  EXPECT_TRUE(Notified().empty());
  Pass(60);
  const auto notified = Notified();
  ASSERT_EQ(notified.size(), 1u);
  EXPECT_TRUE(
      notified[0].starts_with("Notifications.Show alert-1 \"compiler (300)\" \"Resident size 100"))
      << notified[0];
  EXPECT_TRUE(Has(notified[0], "\npid:300 mem>50M for 1m\" [Show process]")) << notified[0];
  EXPECT_EQ(Cell(Rules(), 0, 1), "Alert");
  ASSERT_EQ(Occurrences().rowCount(), 1);
  EXPECT_EQ(Cell(Occurrences(), 0, 1), "compiler (300)");
  machine.notifications.Choose("alert-1");
  EXPECT_EQ(chosen, (std::vector<std::int32_t>{300}));
  Pass(600);
  EXPECT_TRUE(Notified().empty());
  // The process is shown while it is there.
  Occurrences().selectRow(0);
  Press("Show process");
  EXPECT_EQ(shown, (std::vector<std::int32_t>{300}));
  machine.processTable.Death(300);
  Pass(10);
  EXPECT_TRUE(Has(Cell(Occurrences(), 0, 2), "the process ended"));
  QTest::keyClick(&Occurrences(), Qt::Key_Return);
  EXPECT_EQ(shown.size(), 1u);
  EXPECT_TRUE(Has(Said(window), "compiler (300) has ended.")) << Said(window);
}

TEST_F(AlertsWindowTest, RulesAreSwitchedChangedAndRemovedWithKeys) {
  centre->Add({"name:compiler", "", true});
  Pass(10);
  EXPECT_EQ(centre->CountFiring(), 1u);
  Rules().setCurrentCell(0, 0);
  QTest::keyClick(&Rules(), Qt::Key_Space);
  EXPECT_EQ(Cell(Rules(), 0, 1), "Off");
  EXPECT_EQ(centre->CountFiring(), 0u);
  EXPECT_TRUE(Has(Cell(Occurrences(), 0, 2), "the rule was changed"));
  QTest::keyClick(&Rules(), Qt::Key_Return);
  ASSERT_NE(Editor(), nullptr);
  const auto fields = Editor()->findChildren<QLineEdit*>();
  EXPECT_EQ(fields[0]->text(), "name:compiler");
  fields[1]->setText("beep \"twice");
  QTest::keyClick(fields[1], Qt::Key_Return);
  ASSERT_NE(Editor(), nullptr) << "the command has a mistake";
  fields[1]->setText("beep \"twice\"");
  QTest::keyClick(fields[1], Qt::Key_Return);
  EXPECT_EQ(centre->Rules()[0].setting, (AlertSetting{"name:compiler", "beep \"twice\"", false}));
  for (const bool agrees : {false, true}) {
    Rules().setCurrentCell(0, 0);
    QTest::keyClick(&Rules(), Qt::Key_Delete);
    auto* question = window->findChild<QMessageBox*>();
    ASSERT_NE(question, nullptr);
    for (auto* button : question->buttons())
      if ((question->standardButton(button) == QMessageBox::Cancel) != agrees) {
        QTest::mouseClick(button, Qt::LeftButton);
        break;
      }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(centre->Rules().size(), agrees ? 0u : 1u);
  }
  EXPECT_EQ(GetPrefArrayCount("ALERT_RULES"), 0);
}

TEST_F(AlertsWindowTest, AStormIsSummedUpAndSilenceIsKept) {
  for (std::int32_t pid = 400; pid < 500; ++pid) machine.processTable.Birth(pid, "worker");
  centre->Add({"name:worker", "", true});
  Pass(5);
  const auto first = Notified();
  ASSERT_EQ(first.size(), 4u);
  EXPECT_TRUE(
      first[3].starts_with("Notifications.Show rule-1 \"97 more alerts\" \"The latest: worker ("))
      << first[3];
  Pass(600);
  EXPECT_TRUE(Notified().empty());
  auto& notifies = *window->findChild<QCheckBox*>();
  notifies.setChecked(false);
  machine.processTable.Birth(500, "worker");
  Pass(10);
  EXPECT_TRUE(Notified().empty());
  EXPECT_EQ(centre->Occurrences().size(), 101u);
  notifies.setChecked(true);
  machine.notifications.Refuse("nobody is there");
  machine.processTable.Birth(501, "worker");
  Pass(10);
  EXPECT_TRUE(Has(Said(window), "nobody is there"));
}

TEST_F(AlertsWindowTest, ARuleBeginsWithAProcess) {
  // Has the figures read, as the table does.
  centre->Add({"mem>900G", "", true});
  Pass(5);
  EXPECT_EQ(ProposedAlertRule(300).toStdString(), "name=\"compiler\" mem>150M for 5m");
  EXPECT_EQ(ProposedAlertRule(999).toStdString(), "");
  // Whatever a process is called, the rule is about that name and nothing else.
  machine.processTable.Birth(302, "a\" | \\ b");
  Pass(5);
  const auto proposed = ProposedAlertRule(302);
  ASSERT_TRUE(std::holds_alternative<AlertRule>(AlertRule::Read(proposed.toStdString())));
  centre->Add({proposed.section(' ', 0, -4).toStdString(), "", true});
  Pass(10);
  ASSERT_EQ(centre->Occurrences().size(), 1u);
  EXPECT_EQ(centre->Occurrences()[0].subject.process.pid, 302);
  centre->Add({"pid:301", "", true});
  Pass(10);
  EXPECT_EQ(AlertSubjectText(centre->Occurrences()[0]).toStdString(), "<b>evil</b>\\012 (301)");
}

}  // namespace
}  // namespace lurkwell
