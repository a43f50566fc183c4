#pragma once

#include <functional>
#include <memory>
#include <string>

namespace lurkwell {

enum class AlertButton { kDefault, kAlternate, kOther };

/// What a question shows; a button with an empty text is not there.
struct AlertText {
  std::string title, message;
  std::string defaultButton, alternateButton, otherButton;
};

/// A question that is open; goes from the screen with this object, unanswered.
class Alert {
 public:
  virtual ~Alert() = default;
};

/// kNobody: there is nobody here who could answer.
enum class AlertAnswer { kDefault, kAlternate, kOther, kNobody };

/// Questions to the user. Main thread only.
class Alerts {
 public:
  virtual ~Alerts() = default;

  /// Shows a title, a message and one to three buttons (an empty text: no such button), stops
  /// everything else, and waits for the answer.
  virtual AlertButton RunAlertPanel(const std::string& title, const std::string& message,
                                    const std::string& defaultButton,
                                    const std::string& alternateButton,
                                    const std::string& otherButton) = 0;

  /// The same without waiting: the program goes on beside the question. `answered` is called once,
  /// perhaps before this returns, and never after the alert has been destroyed, which it may not do
  /// itself. The alert belongs to the caller; null when it has been answered already.
  virtual std::unique_ptr<Alert> Ask(const AlertText& text,
                                     std::function<void(AlertAnswer)> answered) = 0;
};

}  // namespace lurkwell
