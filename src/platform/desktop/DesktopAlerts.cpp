#include "platform/desktop/DesktopAlerts.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <utility>
#include <vector>

namespace lurkwell {
namespace {

QString Plain(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString ButtonText(const std::string& text) {
  return Plain(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// A box with the text and its buttons.
class Box final : public QMessageBox {
 public:
  explicit Box(const AlertText& text) {
    setIcon(QMessageBox::Warning);
    setWindowTitle(QStringLiteral("Lurkwell"));
    setText(Plain(text.title));
    setInformativeText(Plain(text.message));
    // The box has a format for the first text only, and guesses at the second.
    for (auto* label : findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
    Add(AlertButton::kDefault, text.defaultButton, QMessageBox::AcceptRole);
    Add(AlertButton::kAlternate, text.alternateButton, QMessageBox::RejectRole);
    Add(AlertButton::kOther, text.otherButton, QMessageBox::ActionRole);
    setDefaultButton(text.defaultButton.empty() ? mLast : mButtons.front().second);
    setEscapeButton(mLast);
  }

  /// Ended without an answer, as when the program is told to stop: as if it had been closed.
  AlertButton Answer() const {
    for (const auto& [answer, button] : mButtons)
      if (clickedButton() == button) return answer;
    return mButtons.back().first;
  }

 private:
  void Add(AlertButton answer, const std::string& text, QMessageBox::ButtonRole role) {
    if (text.empty()) return;
    mLast = addButton(ButtonText(text), role);
    mButtons.emplace_back(answer, mLast);
  }

  std::vector<std::pair<AlertButton, QPushButton*>> mButtons;
  QPushButton* mLast = nullptr;
};

class OpenAlert final : public Alert {
 public:
  OpenAlert(const AlertText& text, std::function<void(AlertAnswer)> answered) : mBox(text) {
    mBox.setModal(false);
    QObject::connect(&mBox, &QDialog::finished, &mBox, [this, answered = std::move(answered)] {
      answered(static_cast<AlertAnswer>(mBox.Answer()));
    });
    mBox.show();
  }

 private:
  Box mBox;
};

}  // namespace

AlertButton DesktopAlerts::RunAlertPanel(const std::string& title, const std::string& message,
                                         const std::string& defaultButton,
                                         const std::string& alternateButton,
                                         const std::string& otherButton) {
  Box box({title, message, defaultButton, alternateButton, otherButton});
  box.exec();
  return box.Answer();
}

std::unique_ptr<Alert> DesktopAlerts::Ask(const AlertText& text,
                                          std::function<void(AlertAnswer)> answered) {
  return std::make_unique<OpenAlert>(text, std::move(answered));
}

}  // namespace lurkwell
