#pragma once

#include <string>

namespace lurkwell {

enum class AlertButton { kDefault, kAlternate, kOther };

/// Questions that stop everything until the user has answered. Main thread only.
class Alerts {
 public:
  virtual ~Alerts() = default;

  /// Shows a title, a message and one to three buttons (an empty text: no such button) and waits
  /// for the answer.
  virtual AlertButton RunAlertPanel(const std::string& title, const std::string& message,
                                    const std::string& defaultButton,
                                    const std::string& alternateButton,
                                    const std::string& otherButton) = 0;
};

}  // namespace lurkwell
