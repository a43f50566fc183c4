#pragma once

#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableWidget>
#include <QTimer>
#include <functional>
#include <string>

#include "main_window/MainWindowTest.h"
#include "process_control/ProcessActions.h"
#include "resources/Resources.h"

namespace lurkwell {

/// The main window and what is done in it to selected processes.
class CommandsTest : public MainWindowTest {
 protected:
  /// What was done since the last call; asking for icons and time is not doing.
  std::string Done() {
    std::string text;
    for (const auto& line : machine.log.Lines())
      if (line.starts_with("Helper Lkw") || line.starts_with("Signals") ||
          line.starts_with("Scheduler") || line.starts_with("Show") ||
          line.starts_with("ProcessManager"))
        text += line + "\n";
    machine.log.Clear();
    return text;
  }

  std::string Badge(int pid) {
    const char* name = ProcessIndicatorImageName(pid);
    return name != nullptr ? name : "";
  }

  /// Answers the next question with a button, after noting all that it says and choosing what there
  /// is to choose.
  void Answer(const char* button, const std::function<void(QDialog&)>& choose = {}) {
    QTimer::singleShot(10, &machineRoom, [this, button, choose] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (box == nullptr) return Answer(button, choose);
      if (choose) choose(*box);
      question.clear();
      for (const auto* label : box->findChildren<QLabel*>()) {
        EXPECT_NE(label->textFormat(), Qt::RichText);
        if (!label->text().isEmpty()) question += label->text().toStdString() + "\n";
      }
      for (const auto* field : box->findChildren<QPlainTextEdit*>())
        question += field->toPlainText().toStdString() + "\n";
      for (const auto* list : box->findChildren<QTableWidget*>())
        for (int row = 0; row < list->rowCount(); ++row)
          for (int column = 0; column < list->columnCount(); ++column)
            question += list->item(row, column)->text().toStdString() +
                        (column + 1 == list->columnCount() ? "\n" : "|");
      for (auto* candidate : box->findChildren<QPushButton*>())
        if (candidate->text().remove(QLatin1Char('&')) == QLatin1String(button))
          return candidate->click();
      ADD_FAILURE() << "no button " << button;
      box->reject();
    });
  }

  /// Chooses an item whose question is agreed to.
  void ChooseAndAgree(const char* id, const char* button,
                      const std::function<void(QDialog&)>& choose = {}) {
    question.clear();
    Answer(button, choose);
    Choose(id);
    EXPECT_NE(question, "") << id << " asked nothing";
  }

  /// A window manager would give the keyboard back after a question.
  void PressDelete() {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(&window->table(), Qt::Key_Delete);
  }

  std::string Said() { return window->statusBar()->currentMessage().toStdString(); }

  std::string question;
  /// Answers that are never needed end with it.
  QObject machineRoom;
};

}  // namespace lurkwell
