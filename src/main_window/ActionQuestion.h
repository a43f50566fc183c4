#pragma once

#include <QDialog>

#include "process_control/ActionPlan.h"

namespace lurkwell {

/// Asks whether to carry out a plan. Says what will happen to which process: its name, pid, owner
/// and command line, and, for a kill, the step that is next and what has been tried; of several, a
/// list. Return alone refuses. Main thread.
class ActionQuestion final : public QDialog {
  Q_OBJECT

 public:
  ActionQuestion(const ActionPlan& plan, QWidget* parent);

 private:
  QWidget* MakeDetails();
  QWidget* MakeList();

  const ActionPlan& mPlan;
};

}  // namespace lurkwell
