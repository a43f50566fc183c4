#include "main_window/ActionTexts.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringList>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

/// Names after which a list goes on with dots.
constexpr qsizetype kNamesInReport = 4;

const char* CommandWord(const ActionPlan& plan) {
  switch (plan.command) {
    case ProcessCommand::kKill:
      return IsQuitAlone(plan) ? "quit" : "kill";
    case ProcessCommand::kHalt:
      return "halt";
    default:
      return "lower";
  }
}

QString Text(const char* prefix, const char* word, const char* suffix = "") {
  return LocalizedString((std::string(prefix) + word + suffix).c_str());
}

QString TimesText(int times) {
  if (times == 1) return LocalizedString("times_once");
  if (times == 2) return LocalizedString("times_twice");
  return LocalizedString("times_many").arg(times);
}

const char* StepWord(KillStep step, int timesAsked) {
  switch (step) {
    case KillStep::kQuit:
      return "quit";
    case KillStep::kTerminate:
      return timesAsked == 0 ? "terminate" : "terminate_again";
    case KillStep::kTerminateByHelper:
      return timesAsked == 0 ? "terminate" : "helper";
    case KillStep::kForce:
      return timesAsked == 0 ? "force" : "force_at_last";
  }
  return "terminate";
}

/// The step in whole sentences.
QString StepSentences(const ActionTarget& target) {
  auto text = Text("action_next_", StepWord(target.step, target.timesAsked));
  if (target.timesAsked > 0) text = text.arg(TimesText(target.timesAsked));
  if (target.description.isStopped && target.step != KillStep::kForce)
    text += QLatin1Char(' ') + LocalizedString("action_next_halted");
  return text;
}

const char* OutcomeWord(ProcessCommand command, KillStep step) {
  switch (command) {
    case ProcessCommand::kKill:
      return step == KillStep::kQuit ? "quit" : step == KillStep::kForce ? "force" : "terminate";
    case ProcessCommand::kHalt:
      return "halt";
    case ProcessCommand::kContinue:
      return "continue";
    case ProcessCommand::kHighPriority:
      return "high";
    case ProcessCommand::kNormalPriority:
      return "normal";
    case ProcessCommand::kLowPriority:
      return "low";
  }
  return "terminate";
}

/// Why nothing was done, where the helper says nothing about it.
const char* ReasonWord(ActionResult result) {
  switch (result) {
    case ActionResult::kGone:
      return "gone";
    case ActionResult::kProtected:
      return "protected";
    case ActionResult::kKernelThread:
      return "kernel_thread";
    case ActionResult::kRefused:
      return "refused";
    case ActionResult::kNoHelper:
      return "no_helper";
    case ActionResult::kNoTime:
      return "no_time";
    default:
      return "nobody";
  }
}

QString ReasonText(const ActionOutcome& outcome) {
  if (outcome.helperWords.empty()) return Text("action_reason_", ReasonWord(outcome.result));
  return LocalizedString("action_reason_in_words").arg(QString::fromStdString(outcome.helperWords));
}

QString NameAndPid(const ActionReport& report) {
  return LocalizedString("action_process").arg(PlainText(report.name), QString::number(report.pid));
}

/// "p300 (300)", or "5 processes (p300 (300), p301 (301) …)".
QString Whom(const std::vector<const ActionReport*>& reports) {
  if (reports.size() == 1) return NameAndPid(*reports.front());
  QStringList names;
  for (const auto* report : reports) {
    if (names.size() == kNamesInReport) break;
    names.append(NameAndPid(*report));
  }
  auto list = names.join(QLatin1String(", "));
  if (static_cast<std::size_t>(names.size()) < reports.size()) list += QLatin1String(" …");
  return LocalizedString("action_processes").arg(QString::number(reports.size()), list);
}

}  // namespace

QString QuestionTitle(const ActionPlan& plan) {
  const auto* word = CommandWord(plan);
  if (plan.targets.size() != 1)
    return Text("action_ask_", word, "_several").arg(plan.targets.size());
  const auto& target = plan.targets.front();
  return Text("action_ask_", word, "_one")
      .arg(QString::number(target.process.pid), PlainText(target.name));
}

QString QuestionText(const ActionPlan& plan) {
  if (plan.command != ProcessCommand::kKill) return Text("action_next_", CommandWord(plan));
  if (plan.targets.size() == 1) return StepSentences(plan.targets.front());
  const bool forces = std::ranges::any_of(
      plan.targets, [](const auto& target) { return target.step == KillStep::kForce; });
  return LocalizedString(forces ? "action_next_several_forced" : "action_next_several");
}

QString QuestionButton(const ActionPlan& plan) {
  return Text("action_button_", CommandWord(plan));
}

QString StepText(const ActionTarget& target) {
  return Text("action_step_", StepWord(target.step, target.timesAsked));
}

QString QuestionWarning(const ActionPlan& plan) {
  QStringList warnings;
  const auto own = static_cast<std::int32_t>(::getpid());
  const bool isOne = plan.targets.size() == 1;
  if (std::ranges::any_of(plan.targets, [own](const auto& t) { return t.process.pid == own; }))
    warnings.append(LocalizedString(isOne ? "action_warn_own" : "action_warn_own_among"));
  const auto others = CountOthers(plan);
  if (others > 0 && !isOne)
    warnings.append(
        LocalizedString(others == 1 ? "action_warn_others_one" : "action_warn_others").arg(others));
  return warnings.join(QLatin1Char(' '));
}

QString ReportText(ProcessCommand command, const std::vector<ActionReport>& reports) {
  std::map<std::string, std::vector<const ActionReport*>> done;
  std::map<std::pair<ActionResult, QString>, std::vector<const ActionReport*>> failed;
  for (const auto& report : reports) {
    if (report.outcome == ActionResult::kDone)
      done[OutcomeWord(command, report.step)].push_back(&report);
    else
      failed[{report.outcome.result, ReasonText(report.outcome)}].push_back(&report);
  }
  QStringList sentences;
  for (const auto& [why, whom] : failed)
    sentences.append(LocalizedString("action_failed").arg(Whom(whom), why.second));
  for (const auto& [word, whom] : done)
    sentences.append(
        Text("action_done_", word.c_str(), whom.size() == 1 ? "_one" : "_several").arg(Whom(whom)));
  return sentences.join(QLatin1Char(' '));
}

namespace {

constexpr int kWidestText = 480;
constexpr int kMostRowsInSight = 8;

QLabel* MakeLabel(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMinimumWidth(kWidestText);
  label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
  return label;
}

QString OwnerText(const ProcessDescription& description) {
  if (description.owner.empty()) return LocalizedString("action_unknown");
  return PlainText(description.owner);
}

QString CommandText(const ProcessDescription& description) {
  if (description.commandLine.empty()) return LocalizedString("action_unknown");
  return PlainText(description.commandLine);
}

}  // namespace

ActionQuestion::ActionQuestion(const ActionPlan& plan, QWidget* parent)
    : QDialog(parent), mPlan(plan) {
  setObjectName(QStringLiteral("action_question"));
  setWindowTitle(LocalizedString("action_ask_window"));
  setWindowModality(Qt::WindowModal);
  auto* layout = new QHBoxLayout(this);
  auto* picture = new QLabel(this);
  const int side = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
  picture->setPixmap(style()
                         ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
                         .pixmap(QSize(side, side), devicePixelRatioF()));
  layout->addWidget(picture, 0, Qt::AlignTop);
  auto* contents = new QVBoxLayout;
  layout->addLayout(contents, 1);
  auto* title = MakeLabel(QuestionTitle(plan), this);
  title->setObjectName(QStringLiteral("action_title"));
  auto font = title->font();
  font.setBold(true);
  title->setFont(font);
  contents->addWidget(title);
  auto* text = MakeLabel(QuestionText(plan), this);
  text->setObjectName(QStringLiteral("action_text"));
  contents->addWidget(text);
  if (const auto warning = QuestionWarning(plan); !warning.isEmpty()) {
    auto* label = MakeLabel(warning, this);
    label->setObjectName(QStringLiteral("action_warning"));
    label->setFont(font);
    contents->addWidget(label);
  }
  contents->addWidget(plan.targets.size() == 1 ? MakeDetails() : MakeList(), 1);
  auto* buttons = new QDialogButtonBox(this);
  auto* agree = buttons->addButton(QuestionButton(plan), QDialogButtonBox::AcceptRole);
  agree->setAutoDefault(false);
  auto* cancel = buttons->addButton(QDialogButtonBox::Cancel);
  cancel->setDefault(true);
  cancel->setFocus();
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  contents->addWidget(buttons);
  // For screen readers: the title is the dialog's, the sentences what it says.
  setAccessibleName(title->text());
  setAccessibleDescription(text->text());
}

QWidget* ActionQuestion::MakeDetails() {
  auto* details = new QWidget(this);
  auto* form = new QFormLayout(details);
  form->setContentsMargins(0, 0, 0, 0);
  const auto& description = mPlan.targets.front().description;
  auto* owner = new QLabel(OwnerText(description), details);
  owner->setObjectName(QStringLiteral("action_owner"));
  owner->setTextFormat(Qt::PlainText);
  form->addRow(LocalizedString("action_owner"), owner);
  // As long as it likes: it breaks anywhere, and scrolls.
  auto* command = new QPlainTextEdit(CommandText(description), details);
  command->setObjectName(QStringLiteral("action_command_line"));
  command->setReadOnly(true);
  command->setTabChangesFocus(true);
  command->setWordWrapMode(QTextOption::WrapAnywhere);
  command->setFixedHeight(command->fontMetrics().lineSpacing() * 3 +
                          2 * static_cast<int>(command->document()->documentMargin()) +
                          2 * command->frameWidth());
  form->addRow(LocalizedString("action_command_line"), command);
  return details;
}

QWidget* ActionQuestion::MakeList() {
  const bool hasSteps = mPlan.command == ProcessCommand::kKill;
  QStringList titles{LocalizedString("action_column_name"), LocalizedString("action_column_pid"),
                     LocalizedString("action_column_owner")};
  if (hasSteps) titles.append(LocalizedString("action_column_step"));
  titles.append(LocalizedString("action_column_command"));
  const auto rows = static_cast<int>(mPlan.targets.size());
  auto* list = new QTableWidget(rows, static_cast<int>(titles.size()), this);
  list->setObjectName(QStringLiteral("action_list"));
  list->setAccessibleName(QuestionTitle(mPlan));
  list->setHorizontalHeaderLabels(titles);
  list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  list->verticalHeader()->hide();
  list->verticalHeader()->setMinimumSectionSize(1);
  list->verticalHeader()->setDefaultSectionSize(list->fontMetrics().height() + 6);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list->setSelectionMode(QAbstractItemView::NoSelection);
  list->setTabKeyNavigation(false);
  list->setWordWrap(false);
  for (int row = 0; row < rows; ++row) {
    const auto& target = mPlan.targets[static_cast<std::size_t>(row)];
    QStringList cells{PlainText(target.name), QString::number(target.process.pid),
                      OwnerText(target.description)};
    if (hasSteps) cells.append(StepText(target));
    cells.append(CommandText(target.description));
    for (int column = 0; column < cells.size(); ++column) {
      auto* cell = new QTableWidgetItem(cells[column]);
      cell->setToolTip(cells[column]);
      list->setItem(row, column, cell);
    }
  }
  list->resizeColumnsToContents();
  list->horizontalHeader()->setStretchLastSection(true);
  const int seen = std::min(rows, kMostRowsInSight);
  list->setMinimumHeight(list->horizontalHeader()->sizeHint().height() +
                         seen * list->verticalHeader()->defaultSectionSize() +
                         2 * list->frameWidth());
  list->setMinimumWidth(kWidestText + 120);
  return list;
}

}  // namespace lurkwell
