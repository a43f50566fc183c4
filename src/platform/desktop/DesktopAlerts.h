#pragma once

#include "platform/Alerts.h"

namespace lurkwell {

/// Alerts in windows. Texts are shown as they are, never taken for markup, and an ampersand in a
/// button's text is one. Return stands for the default button, or
/// the last one where there is no such; Escape and closing the window for
/// the last one that is there (other, else alternate, else default), since callers put the button
/// that does the least there. Needs a QApplication, but no window of it.
class DesktopAlerts final : public Alerts {
 public:
  AlertButton RunAlertPanel(const std::string& title, const std::string& message,
                            const std::string& defaultButton, const std::string& alternateButton,
                            const std::string& otherButton) override;
  std::unique_ptr<Alert> Ask(const AlertText& text,
                             std::function<void(AlertAnswer)> answered) override;
};

}  // namespace lurkwell
