#include "platform/desktop/DesktopAlerts.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <array>
#include <utility>

namespace lurkwell {
namespace {

QString Plain(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString ButtonText(const std::string& text) {
  return Plain(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

AlertButton DesktopAlerts::RunAlertPanel(const std::string& title, const std::string& message,
                                         const std::string& defaultButton,
                                         const std::string& alternateButton,
                                         const std::string& otherButton) {
  QMessageBox box;
  box.setIcon(QMessageBox::Warning);
  box.setText(Plain(title));
  box.setInformativeText(Plain(message));
  // The box has a format for the first text only, and guesses at the second.
  for (auto* label : box.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  const std::array<std::pair<const std::string*, QMessageBox::ButtonRole>, 3> wanted = {
      {{&defaultButton, QMessageBox::AcceptRole},
       {&alternateButton, QMessageBox::RejectRole},
       {&otherButton, QMessageBox::ActionRole}}};
  std::array<QAbstractButton*, 3> buttons{};
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    if (wanted[i].first->empty()) continue;
    auto* button = box.addButton(ButtonText(*wanted[i].first), wanted[i].second);
    if (buttons[0] == nullptr && i == 0) box.setDefaultButton(button);
    box.setEscapeButton(button);
    buttons[i] = button;
  }
  box.exec();
  constexpr std::array kAnswers = {AlertButton::kDefault, AlertButton::kAlternate,
                                   AlertButton::kOther};
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    if (buttons[i] != nullptr && box.clickedButton() == buttons[i]) return kAnswers[i];
  }
  // Ended without an answer, as when the program is told to stop: as if it had been closed.
  if (!otherButton.empty()) return AlertButton::kOther;
  return alternateButton.empty() ? AlertButton::kDefault : AlertButton::kAlternate;
}

}  // namespace lurkwell
