#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "platform/desktop/DesktopAlerts.h"

namespace lurkwell {
namespace {

/// Shows an alert and does something to it.
AlertButton AnswerOf(const std::array<const char*, 3>& buttons,
                     const std::function<void(QMessageBox&)>& act) {
  // Once a loop has been told to end, the next one does not begin, and nothing is done to it.
  const QObject context;
  QTimer::singleShot(0, &context, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    act(*box);
  });
  return DesktopAlerts().RunAlertPanel("<b>Title</b>", "<i>a</i> & <img src='/x'>", buttons[0],
                                       buttons[1], buttons[2]);
}

std::function<void(QMessageBox&)> Press(Qt::Key key) {
  return [key](QMessageBox& box) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&box, &press);
  };
}

std::function<void(QMessageBox&)> Click(const QString& text) {
  return [text](QMessageBox& box) {
    for (auto* button : box.buttons()) {
      if (button->text() == text) return button->click();
    }
    ADD_FAILURE() << text.toStdString();
    box.reject();
  };
}

TEST(DesktopAlerts, GiveTheButtonThatWasChosen) {
  EXPECT_EQ(AnswerOf({"Yes", "No", "May&be"}, Click("Yes")), AlertButton::kDefault);
  EXPECT_EQ(AnswerOf({"Yes", "No", "May&be"}, Click("No")), AlertButton::kAlternate);
  EXPECT_EQ(AnswerOf({"Yes", "No", "May&be"}, Click("May&&be")), AlertButton::kOther);
  EXPECT_EQ(AnswerOf({"Yes", "", "Other"}, Click("Other")), AlertButton::kOther);
  EXPECT_EQ(AnswerOf({"Yes", "No", "Other"}, Press(Qt::Key_Return)), AlertButton::kDefault);
}

TEST(DesktopAlerts, EscapeIsTheLastButtonHoweverItComes) {
  const auto close = [](QMessageBox& box) { box.close(); };
  const auto end = [](QMessageBox&) { QApplication::exit(); };
  for (const auto& act : {Press(Qt::Key_Escape), std::function<void(QMessageBox&)>(close),
                          std::function<void(QMessageBox&)>(end)}) {
    EXPECT_EQ(AnswerOf({"Yes", "No", "Other"}, act), AlertButton::kOther);
    EXPECT_EQ(AnswerOf({"Yes", "No", ""}, act), AlertButton::kAlternate);
    EXPECT_EQ(AnswerOf({"Yes", "", ""}, act), AlertButton::kDefault);
  }
}

TEST(DesktopAlerts, TextsAreNoMarkup) {
  AnswerOf({"OK", "", ""}, [](QMessageBox& box) {
    EXPECT_EQ(box.buttons().size(), 1);
    int texts = 0;
    for (const auto* label : box.findChildren<QLabel*>()) {
      if (label->text().isEmpty()) continue;
      ++texts;
      EXPECT_EQ(label->textFormat(), Qt::PlainText);
    }
    EXPECT_EQ(texts, 2);
    box.close();
  });
}

}  // namespace
}  // namespace lurkwell
