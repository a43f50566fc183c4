#include "main_window/SchedulingQuestion.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <algorithm>
#include <span>

#include "platform/Machine.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr int kUnchanged = -1;
constexpr int kLeastNice = -20, kMostNice = 19;
constexpr int kBestEffort = 2, kIORealTime = 1;

struct Choice {
  const char* text;
  int number;
};

/// The kernel's numbers.
constexpr Choice kPolicies[] = {{"scheduling_policy_normal", 0},
                                {"scheduling_policy_batch", 3},
                                {"scheduling_policy_idle", 5},
                                {"scheduling_policy_round_robin", 2},
                                {"scheduling_policy_fifo", 1}};
constexpr Choice kIOClasses[] = {{"scheduling_io_none", 0},
                                 {"scheduling_io_best_effort", kBestEffort},
                                 {"scheduling_io_idle", 3},
                                 {"scheduling_io_real_time", kIORealTime}};

/// A box of choices at the one that counts now, or at leaving it.
QComboBox* MakeBox(std::span<const Choice> choices, int now, QWidget* parent) {
  auto* box = new QComboBox(parent);
  for (const auto& choice : choices) box->addItem(LocalizedString(choice.text), choice.number);
  if (box->findData(now) < 0)
    box->insertItem(0, LocalizedString("scheduling_unchanged"), kUnchanged);
  box->setCurrentIndex(std::max(box->findData(now), 0));
  return box;
}

QSpinBox* MakeSpin(int least, int most, int value, QWidget* parent) {
  auto* spin = new QSpinBox(parent);
  spin->setRange(least, most);
  spin->setValue(value);
  return spin;
}

/// Two controls on one line, of which the second has a name of its own.
QWidget* Beside(QWidget* first, const char* text, QWidget* second, QWidget* parent) {
  auto* line = new QWidget(parent);
  auto* layout = new QHBoxLayout(line);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(first, 1);
  auto* label = new QLabel(LocalizedString(text), line);
  label->setBuddy(second);
  layout->addWidget(label);
  layout->addWidget(second);
  return line;
}

bool IsRealTime(int policy) {
  return policy == 1 || policy == 2;
}

bool HasLevels(int ioClass) {
  return ioClass == kIORealTime || ioClass == kBestEffort;
}

}  // namespace

SchedulingQuestion::SchedulingQuestion(const ActionPlan& plan, QWidget* parent)
    : ActionQuestion(plan, parent) {
  if (plan.targets.size() == 1) {
    const auto& target = plan.targets.front();
    mNiceNow = target.description.nice;
    mNow = TheMachine().scheduler.StateOf(target.process);
  }
  auto* choices = new QWidget(this);
  auto* form = new QFormLayout(choices);
  form->setContentsMargins(0, 0, 0, 0);
  AddNice(*form);
  AddPolicy(*form);
  AddIOPriority(*form);
  AddProcessors(*form);
  mComplaint = new QLabel(choices);
  mComplaint->setObjectName(QStringLiteral("scheduling_complaint"));
  mComplaint->setTextFormat(Qt::PlainText);
  mComplaint->setWordWrap(true);
  // Room from the start, so that nothing jumps when it has something to say.
  mComplaint->setMinimumHeight(mComplaint->fontMetrics().lineSpacing());
  form->addRow(mComplaint);
  connect(mPolicy, &QComboBox::currentIndexChanged, this, &SchedulingQuestion::Update);
  connect(mIOClass, &QComboBox::currentIndexChanged, this, &SchedulingQuestion::Update);
  connect(mProcessors, &QLineEdit::textEdited, mComplaint, &QLabel::clear);
  Update();
  AddChoices(choices);
  AgreeByDefault();
  mNice->setFocus();
  mNice->selectAll();
}

void SchedulingQuestion::AddNice(QFormLayout& form) {
  mNice = MakeSpin(kLeastNice, kMostNice, 0, this);
  if (!mNiceNow) {
    mNice->setMinimum(kLeastNice - 1);
    mNice->setSpecialValueText(LocalizedString("scheduling_unchanged"));
  }
  mNice->setValue(mNiceNow.value_or(kLeastNice - 1));
  mNice->setObjectName(QStringLiteral("scheduling_nice"));
  mNice->setToolTip(LocalizedString("scheduling_nice_tip"));
  form.addRow(LocalizedString("scheduling_nice"), mNice);
}

void SchedulingQuestion::AddPolicy(QFormLayout& form) {
  mPolicy = MakeBox(kPolicies, mNow ? mNow->policy.policy : kUnchanged, this);
  mPolicy->setObjectName(QStringLiteral("scheduling_policy"));
  mPolicy->setToolTip(LocalizedString("scheduling_policy_tip"));
  mPriority = MakeSpin(1, 99, mNow ? std::max(mNow->policy.priority, 1) : 1, this);
  mPriority->setObjectName(QStringLiteral("scheduling_priority"));
  form.addRow(LocalizedString("scheduling_policy"),
              Beside(mPolicy, "scheduling_priority", mPriority, this));
  static_cast<QLabel*>(form.labelForField(mPolicy->parentWidget()))->setBuddy(mPolicy);
}

void SchedulingQuestion::AddIOPriority(QFormLayout& form) {
  constexpr IOPriority kUsual{kUnchanged, 4};
  const auto now = mNow ? mNow->ioPriority : kUsual;
  mIOClass = MakeBox(kIOClasses, now.classNumber, this);
  mIOClass->setObjectName(QStringLiteral("scheduling_io_class"));
  mIOClass->setToolTip(LocalizedString("scheduling_io_tip"));
  mIOLevel = MakeSpin(0, 7, HasLevels(now.classNumber) ? now.level : kUsual.level, this);
  mIOLevel->setObjectName(QStringLiteral("scheduling_io_level"));
  form.addRow(LocalizedString("scheduling_io_class"),
              Beside(mIOClass, "scheduling_io_level", mIOLevel, this));
  static_cast<QLabel*>(form.labelForField(mIOClass->parentWidget()))->setBuddy(mIOClass);
}

void SchedulingQuestion::AddProcessors(QFormLayout& form) {
  mProcessors = new QLineEdit(this);
  mProcessors->setObjectName(QStringLiteral("scheduling_processors"));
  const auto all = QString::fromStdString(ListOfProcessors(TheMachine().scheduler.Processors()));
  if (mNow) mProcessors->setText(QString::fromStdString(ListOfProcessors(mNow->processors)));
  mProcessors->setPlaceholderText(LocalizedString("scheduling_unchanged"));
  mProcessors->setToolTip(LocalizedString("scheduling_processors_tip").arg(all));
  form.addRow(LocalizedString("scheduling_processors").arg(all), mProcessors);
}

void SchedulingQuestion::Update() {
  mPriority->setEnabled(IsRealTime(mPolicy->currentData().toInt()));
  mIOLevel->setEnabled(HasLevels(mIOClass->currentData().toInt()));
}

std::vector<std::pair<ProcessCommand, CommandArgument>> SchedulingQuestion::Changes() const {
  std::vector<std::pair<ProcessCommand, CommandArgument>> changes;
  const auto change = [&changes](SchedulingChange what) {
    changes.push_back({ProcessCommand::kScheduling, {0, std::move(what)}});
  };
  const int nice = mNice->value();
  if (nice >= kLeastNice && nice != mNiceNow)
    changes.push_back({ProcessCommand::kNice, {nice, {}}});
  const int number = mPolicy->currentData().toInt();
  const SchedulingPolicy policy{number, IsRealTime(number) ? mPriority->value() : 0};
  if (number != kUnchanged && (!mNow || policy != mNow->policy)) change(policy);
  const int ioClass = mIOClass->currentData().toInt();
  const IOPriority ioPriority{ioClass, HasLevels(ioClass) ? mIOLevel->value() : 0};
  const bool isIOAsNow = mNow && ioClass == mNow->ioPriority.classNumber &&
                         (!HasLevels(ioClass) || ioPriority.level == mNow->ioPriority.level);
  if (ioClass != kUnchanged && !isIOAsNow) change(ioPriority);
  const auto processors = ProcessorsOfList(mProcessors->text().toStdString());
  if (processors && (!mNow || ListOfProcessors(*processors) != ListOfProcessors(mNow->processors)))
    change(*processors);
  return changes;
}

void SchedulingQuestion::accept() {
  const auto text = mProcessors->text().trimmed();
  const auto all = TheMachine().scheduler.Processors();
  const auto chosen = ProcessorsOfList(text.toStdString());
  const bool isAsItWas = text.isEmpty() && !mNow;
  if (isAsItWas || (chosen && AreAmong(*chosen, all))) return ActionQuestion::accept();
  mComplaint->setText(LocalizedString("scheduling_no_processors")
                          .arg(QString::fromStdString(ListOfProcessors(all))));
  mProcessors->setAccessibleDescription(mComplaint->text());
  mProcessors->selectAll();
  mProcessors->setFocus();
}

}  // namespace lurkwell
