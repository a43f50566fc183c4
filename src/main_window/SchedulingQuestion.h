#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "main_window/ActionQuestion.h"
#include "platform/Scheduler.h"

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace lurkwell {

/// Asks how the processes of a plan are to stand at processors and disks. Shows how one stands now;
/// of several everything is left as it is at first. Main thread.
class SchedulingQuestion final : public ActionQuestion {
  Q_OBJECT

 public:
  SchedulingQuestion(const ActionPlan& plan, QWidget* parent);

  /// A command for each thing that is to become another.
  std::vector<std::pair<ProcessCommand, CommandArgument>> Changes() const;

  /// Complains instead where a text makes no sense.
  void accept() override;

 private:
  void AddNice(QFormLayout& form);
  void AddPolicy(QFormLayout& form);
  void AddIOPriority(QFormLayout& form);
  void AddProcessors(QFormLayout& form);
  void Update();

  std::optional<std::int32_t> mNiceNow;
  std::optional<SchedulingState> mNow;
  QSpinBox* mNice;
  QComboBox* mPolicy;
  QSpinBox* mPriority;
  QComboBox* mIOClass;
  QSpinBox* mIOLevel;
  QLineEdit* mProcessors;
  QLabel* mComplaint;
};

}  // namespace lurkwell
