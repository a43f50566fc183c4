#include "main_window/ActionQuestion.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "main_window/ActionTexts.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr int kWidestText = 480;

QLabel* MakeLabel(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMinimumWidth(kWidestText);
  label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
  return label;
}

constexpr int kLeastListWidth = 600;
constexpr int kMostRowsInSight = 8;

QString OwnerText(const ProcessDescription& description) {
  if (description.owner.empty()) return LocalizedString("action_unknown");
  return PlainText(description.owner);
}

QString CommandText(const ProcessDescription& description) {
  if (description.commandLine.empty()) return LocalizedString("action_unknown");
  return PlainText(description.commandLine);
}

QWidget* MakeDetails(const ActionPlan& plan, QWidget* parent) {
  auto* details = new QWidget(parent);
  auto* form = new QFormLayout(details);
  form->setContentsMargins(0, 0, 0, 0);
  const auto& description = plan.targets.front().description;
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

QWidget* MakeList(const ActionPlan& plan, QWidget* parent) {
  const bool hasSteps = plan.command == ProcessCommand::kKill;
  QStringList titles{LocalizedString("action_column_name"), LocalizedString("action_column_pid"),
                     LocalizedString("action_column_owner")};
  if (hasSteps) titles.append(LocalizedString("action_column_step"));
  titles.append(LocalizedString("action_column_command"));
  const auto rows = static_cast<int>(plan.targets.size());
  auto* list = new QTableWidget(rows, static_cast<int>(titles.size()), parent);
  list->setObjectName(QStringLiteral("action_list"));
  list->setAccessibleName(QuestionTitle(plan));
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
    const auto& target = plan.targets[static_cast<std::size_t>(row)];
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
  list->setMinimumWidth(kLeastListWidth);
  return list;
}

/// Of one process the owner and the command line, of several a list with those.
QWidget* MakeTargets(const ActionPlan& plan, QWidget* parent) {
  return plan.targets.size() == 1 ? MakeDetails(plan, parent) : MakeList(plan, parent);
}

}  // namespace

ActionQuestion::ActionQuestion(const ActionPlan& plan, QWidget* parent) : QDialog(parent) {
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
  mContents = new QVBoxLayout;
  layout->addLayout(mContents, 1);
  auto* title = MakeLabel(QuestionTitle(plan), this);
  title->setObjectName(QStringLiteral("action_title"));
  auto font = title->font();
  font.setBold(true);
  title->setFont(font);
  mContents->addWidget(title);
  auto* text = MakeLabel(QuestionText(plan), this);
  text->setObjectName(QStringLiteral("action_text"));
  mContents->addWidget(text);
  if (const auto warning = QuestionWarning(plan); !warning.isEmpty()) {
    auto* label = MakeLabel(warning, this);
    label->setObjectName(QStringLiteral("action_warning"));
    label->setFont(font);
    mContents->addWidget(label);
  }
  mContents->addWidget(MakeTargets(plan, this), 1);
  auto* buttons = new QDialogButtonBox(this);
  mAgree = buttons->addButton(QuestionButton(plan), QDialogButtonBox::AcceptRole);
  mAgree->setAutoDefault(false);
  auto* cancel = buttons->addButton(QDialogButtonBox::Cancel);
  cancel->setDefault(true);
  cancel->setFocus();
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  mContents->addWidget(buttons);
  // For screen readers: the title is the dialog's, the sentences what it says.
  setAccessibleName(title->text());
  setAccessibleDescription(text->text());
}

void ActionQuestion::AddChoices(QWidget* choices) {
  // Above the processes and the buttons.
  mContents->insertWidget(mContents->count() - 2, choices, 2);
  choices->setFocus();
}

void ActionQuestion::AgreeByDefault() {
  mAgree->setAutoDefault(true);
  mAgree->setDefault(true);
}

}  // namespace lurkwell
