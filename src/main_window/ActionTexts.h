#pragma once

#include <QString>
#include <cstdint>
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
QString ReportText(const ActionPlan& plan, const std::vector<ActionReport>& reports);

/// "TERM", "RTMIN+3".
QString SignalName(std::int32_t signal);
/// What it is for, and what happens to a program that is not prepared for it.
QString SignalText(std::int32_t signal);

}  // namespace lurkwell
