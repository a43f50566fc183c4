#pragma once

#include <deque>
#include <string>
#include <utility>

#include "platform/Alerts.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// A user who answers alerts from a list; when it is used up, with the last button that is there.
class SimulatedAlerts final : public Alerts {
 public:
  explicit SimulatedAlerts(AccessLog& log) : mLog(log) {}

  AlertButton RunAlertPanel(const std::string& title, const std::string& message,
                            const std::string& defaultButton, const std::string& alternateButton,
                            const std::string& otherButton) override {
    mLog.Add("Alerts.RunAlertPanel \"" + title + "\" \"" + message + "\" [" + defaultButton + "|" +
             alternateButton + "|" + otherButton + "]");
    if (!mAnswers.empty()) {
      const AlertButton answer = mAnswers.front();
      mAnswers.pop_front();
      return answer;
    }
    if (!otherButton.empty()) return AlertButton::kOther;
    return alternateButton.empty() ? AlertButton::kDefault : AlertButton::kAlternate;
  }

  /// Answered at once, as RunAlertPanel is.
  std::unique_ptr<Alert> Ask(const AlertText& text,
                             std::function<void(AlertAnswer)> answered) override {
    const auto button = RunAlertPanel(text.title, text.message, text.defaultButton,
                                      text.alternateButton, text.otherButton);
    answered(static_cast<AlertAnswer>(button));
    return nullptr;
  }

  void WillAnswer(std::deque<AlertButton> answers) { mAnswers = std::move(answers); }

 private:
  AccessLog& mLog;
  std::deque<AlertButton> mAnswers;
};

}  // namespace lurkwell
