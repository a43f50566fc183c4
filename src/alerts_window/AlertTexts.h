#pragma once

#include <QString>
#include <chrono>

#include "alerts/AlertCentre.h"

namespace lurkwell {

/// What people read about alerts. Main thread.

/// What is wrong with a rule, in a sentence.
QString AlertErrorWords(const AlertRuleError& error);

/// 5 s, 3 min, 2 h 5 min, 1 d 3 h.
QString AlertSpanText(std::chrono::milliseconds span);

/// "postgres (1234)"; for an alert of the machine, what it is about.
QString AlertSubjectText(const AlertOccurrence& occurrence);

/// The figures with their titles: "Resident size 4.2 GB, Owner root". `most` of them at most.
QString AlertFiguresText(const AlertSubject& subject, int most = 4);

/// What a rule says at present.
QString AlertStateText(const AlertCentre::Rule& rule);

/// Why processes could not be judged; empty when all could.
QString AlertGapsText(const AlertGaps& gaps);

/// What became of a rule's command; for a failure.
QString AlertCommandText(const AlertCommands::Failure& failure);

/// How long it lasted, and why it ended; so far, while it goes on.
QString AlertLastedText(const AlertOccurrence& occurrence);

/// What a rule sees at present: how many processes meet it, and some of them by name.
QString AlertTrialText(const RuleWatch& watch);

/// A rule to begin with for what is like a process: its name, and its share of a processor or its
/// memory, whichever stands out. Empty when there is no such process.
QString ProposedAlertRule(std::int32_t pid);

}  // namespace lurkwell
