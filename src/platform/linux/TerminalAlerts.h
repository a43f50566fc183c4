#pragma once

#include <set>
#include <string>

#include "platform/Alerts.h"

namespace lurkwell {

/// Alerts of a program that has no windows and nobody to answer: each is printed on standard error
/// once, and the last of its buttons, the one that goes on without, is taken; whoever can go on
/// without an answer hears that there is nobody.
class TerminalAlerts final : public Alerts {
 public:
  AlertButton RunAlertPanel(const std::string& title, const std::string& message,
                            const std::string& defaultButton, const std::string& alternateButton,
                            const std::string& otherButton) override;
  std::unique_ptr<Alert> Ask(const AlertText& text,
                             std::function<void(AlertAnswer)> answered) override;

 private:
  void Print(const std::string& title, const std::string& message, const std::string& otherButton);

  std::set<std::string> mPrinted;
};

}  // namespace lurkwell
