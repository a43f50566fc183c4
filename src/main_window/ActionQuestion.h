#pragma once

#include <QDialog>

#include "process_control/ActionPlan.h"

class QPushButton;
class QVBoxLayout;

namespace lurkwell {

/// Asks whether to carry out a plan. Says what will happen to which process: its name, pid, owner
/// and command line, and, for a kill, the step that is next and what has been tried; of several, a
/// list. Return alone refuses. A question that leaves something to choose derives from this. Main
/// thread.
class ActionQuestion : public QDialog {
  Q_OBJECT

 public:
  ActionQuestion(const ActionPlan& plan, QWidget* parent);

 protected:
  /// Puts something above the processes, and the keyboard there.
  void AddChoices(QWidget* choices);
  /// Return alone agrees.
  void AgreeByDefault();

 private:
  QVBoxLayout* mContents;
  QPushButton* mAgree;
};

}  // namespace lurkwell
