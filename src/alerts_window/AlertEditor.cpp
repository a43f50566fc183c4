#include "alerts_window/AlertEditor.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <string>
#include <utility>
#include <variant>

#include "alerts/AlertCommands.h"
#include "alerts_window/AlertTexts.h"
#include "resources/Resources.h"
#include "windows/ClearButton.h"
#include "windows/HelpKey.h"

namespace lurkwell {
namespace {

constexpr int kEditorPatience = 500;
constexpr int kEditorWidthInCharacters = 76;
constexpr int kTrialLines = 7;

QLabel* WrappedLabel(const QString& text = {}) {
  auto* label = new QLabel(text);
  label->setWordWrap(true);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  // A form gives its whole width to nothing less.
  auto policy = label->sizePolicy();
  policy.setHorizontalPolicy(QSizePolicy::Expanding);
  label->setSizePolicy(policy);
  return label;
}

}  // namespace

AlertEditor::AlertEditor(const QString& title, const AlertSetting& first, QWidget* parent)
    : QDialog(parent), mSetting(first) {
  setWindowTitle(title);
  mWatcher = new AlertWatcher({[](const RuleWatch&, const AlertEvent&) {}, [this] { ShowTrial(); },
                               [this] { mWatcher = nullptr; }});
  Build(first);
  AddHelpKey(*this, HelpSection::kAlerts);
  mPatience.setSingleShot(true);
  mPatience.setInterval(kEditorPatience);
  connect(&mPatience, &QTimer::timeout, this, &AlertEditor::TellError);
  connect(mRule, &QLineEdit::textChanged, this, &AlertEditor::TakeRule);
  connect(mCommand, &QLineEdit::textChanged, this, &AlertEditor::TakeCommand);
  TakeCommand();
  TakeRule();
  TellError();
}

AlertEditor::~AlertEditor() {
  delete std::exchange(mWatcher, nullptr);
}

void AlertEditor::Build(const AlertSetting& first) {
  auto* layout = new QVBoxLayout(this);
  layout->setSizeConstraint(QLayout::SetMinimumSize);
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  mRule = new QLineEdit(QString::fromStdString(first.rule));
  mRule->setMinimumWidth(fontMetrics().averageCharWidth() * kEditorWidthInCharacters);
  mRule->setPlaceholderText(LocalizedString("alerts_rule_placeholder"));
  AddClearButton(*mRule);
  form->addRow(LocalizedString("alerts_rule_label"), mRule);
  mError = WrappedLabel();
  // Room from the start, so that nothing jumps when there is something to say.
  mError->setMinimumHeight(fontMetrics().lineSpacing() * 2);
  form->addRow(mError);
  mTrial = WrappedLabel();
  mTrial->setMinimumHeight(fontMetrics().lineSpacing() * kTrialLines);
  form->addRow(LocalizedString("alerts_trial_label"), mTrial);
  mCommand = new QLineEdit(QString::fromStdString(first.command));
  mCommand->setPlaceholderText(LocalizedString("alerts_command_placeholder"));
  mCommand->setToolTip(LocalizedString("alerts_command_tip"));
  form->addRow(LocalizedString("alerts_command_label"), mCommand);
  layout->addLayout(form);
  layout->addWidget(WrappedLabel(LocalizedString("alerts_editor_note")));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  mAgree = buttons->button(QDialogButtonBox::Ok);
  connect(buttons, &QDialogButtonBox::accepted, this, &AlertEditor::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  mRule->setFocus();
}

void AlertEditor::TakeRule() {
  const auto text = mRule->text().trimmed().toStdString();
  auto read = AlertRule::Read(text);
  mRuleError.clear();
  mMistakeLength = 0;
  if (const auto* error = std::get_if<AlertRuleError>(&read)) {
    mRuleError = AlertErrorWords(*error);
    // Positions are bytes; the field counts letters.
    const auto letters = [&text](std::size_t bytes) {
      return static_cast<int>(QString::fromStdString(text.substr(0, bytes)).size());
    };
    mMistakeAt = letters(error->position);
    mMistakeLength = letters(error->position + error->length) - mMistakeAt;
    Watch(nullptr);
    mPatience.start();
  } else {
    Watch(std::make_unique<AlertRule>(std::move(std::get<AlertRule>(read))));
    TellError();
  }
  mRule->setAccessibleDescription(mRuleError);
}

void AlertEditor::TakeCommand() {
  const auto text = mCommand->text().trimmed().toStdString();
  mCommandError.clear();
  if (!SplitCommand(text)) mCommandError = LocalizedString("alerts_command_no_end");
  if (text.size() > kLongestAlertCommand) mCommandError = LocalizedString("alerts_command_long");
  mCommand->setAccessibleDescription(mCommandError);
  TellError();
}

void AlertEditor::TellError() {
  mPatience.stop();
  const bool isEmpty = mRule->text().trimmed().isEmpty();
  mError->setText(!mRuleError.isEmpty() && !isEmpty ? mRuleError : mCommandError);
}

void AlertEditor::Watch(std::unique_ptr<AlertRule> rule) {
  mWatch = rule != nullptr ? std::make_shared<RuleWatch>(std::move(*rule)) : nullptr;
  mTrial->setText(mWatch != nullptr ? LocalizedString("alerts_trial_wait") : QString());
  if (mWatcher == nullptr) return;
  mWatcher->SetWatches(mWatch != nullptr ? AlertWatcher::Watches{mWatch} : AlertWatcher::Watches{});
}

void AlertEditor::ShowTrial() {
  if (mWatch != nullptr) mTrial->setText(AlertTrialText(*mWatch));
}

void AlertEditor::SelectMistake() {
  // The field keeps the blanks around the rule.
  const auto text = mRule->text();
  const auto blanks = text.indexOf(text.trimmed());
  mRule->setSelection(static_cast<int>(blanks) + mMistakeAt, mMistakeLength);
  mRule->setFocus();
}

void AlertEditor::accept() {
  mError->setText(mRuleError.isEmpty() ? mCommandError : mRuleError);
  if (!mRuleError.isEmpty()) return SelectMistake();
  if (!mCommandError.isEmpty()) return mCommand->setFocus();
  mSetting.rule = mRule->text().trimmed().toStdString();
  mSetting.command = mCommand->text().trimmed().toStdString();
  mSetting.isDamaged = false;
  QDialog::accept();
}

}  // namespace lurkwell
