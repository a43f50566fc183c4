#pragma once

#include <cstdint>

#include "main_window/ActionQuestion.h"

class QTableWidget;

namespace lurkwell {

/// Asks which signal to send to the processes of a plan, from all that the machine has, each with
/// what it does. Main thread.
class SignalQuestion final : public ActionQuestion {
  Q_OBJECT

 public:
  SignalQuestion(const ActionPlan& plan, QWidget* parent);

  /// The chosen one, SIGTERM at first.
  std::int32_t Signal() const;

 private:
  QTableWidget* mList;
};

}  // namespace lurkwell
