#pragma once

#include <QDialog>
#include <QString>
#include <vector>

#include "process_control/ActionPlan.h"

namespace lurkwell {

// Plans and their outcome in words. Main thread.

/// "Kill process 300 (p300)?"
QString QuestionTitle(const ActionPlan& plan);
/// What will happen, in a sentence or a few: for one process all of it, for several what they have
/// in common.
QString QuestionText(const ActionPlan& plan);
/// What the button that agrees says.
QString QuestionButton(const ActionPlan& plan);
/// The next step of one among several.
QString StepText(const ActionTarget& target);
/// Those whose end or halt the user may not have in mind; "" for none.
QString QuestionWarning(const ActionPlan& plan);

/// What became of a command, on one line; "" when there is nothing to say.
QString ReportText(ProcessCommand command, const std::vector<ActionReport>& reports);

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
