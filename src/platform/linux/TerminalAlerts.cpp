#include "platform/linux/TerminalAlerts.h"

#include <cstdio>

namespace lurkwell {

AlertButton TerminalAlerts::RunAlertPanel(const std::string& title, const std::string& message,
                                          const std::string&, const std::string& alternateButton,
                                          const std::string& otherButton) {
  std::string text = "lurkwell: " + title;
  if (message.find_first_not_of(' ') != std::string::npos) text += " " + message;
  const bool isNew = mPrinted.insert(text).second;
  if (!otherButton.empty()) {
    if (isNew) std::fprintf(stderr, "%s (%s)\n", text.c_str(), otherButton.c_str());
    return AlertButton::kOther;
  }
  if (isNew) std::fprintf(stderr, "%s\n", text.c_str());
  return alternateButton.empty() ? AlertButton::kDefault : AlertButton::kAlternate;
}

}  // namespace lurkwell
