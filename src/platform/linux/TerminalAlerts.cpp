#include "platform/linux/TerminalAlerts.h"

#include "platform/Diagnostics.h"

namespace lurkwell {

AlertButton TerminalAlerts::RunAlertPanel(const std::string& title, const std::string& message,
                                          const std::string&, const std::string& alternateButton,
                                          const std::string& otherButton) {
  Print(title, message, otherButton);
  if (!otherButton.empty()) return AlertButton::kOther;
  return alternateButton.empty() ? AlertButton::kDefault : AlertButton::kAlternate;
}

std::unique_ptr<Alert> TerminalAlerts::Ask(const AlertText& text,
                                           std::function<void(AlertAnswer)> answered) {
  Print(text.title, text.message, text.otherButton);
  answered(AlertAnswer::kNobody);
  return nullptr;
}

void TerminalAlerts::Print(const std::string& title, const std::string& message,
                           const std::string& otherButton) {
  std::string text = "lurkwell: " + title;
  if (message.find_first_not_of(' ') != std::string::npos) text += " " + message;
  if (!mPrinted.insert(text).second) return;
  if (!otherButton.empty()) text += " (" + otherButton + ")";
  DiagnoseVerbatim("%s", text.c_str());
}

}  // namespace lurkwell
