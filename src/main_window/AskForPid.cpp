#include "main_window/AskForPid.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

#include "platform/Machine.h"
#include "platform/ProcessIdentity.h"
#include "platform/ProcessTable.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

class PidDialog final : public QDialog {
 public:
  PidDialog(QWidget* parent, const std::function<bool(std::int32_t)>& isThere)
      : QDialog(parent), mIsThere(isThere) {
    setWindowTitle(LocalizedString("main_window_by_id_title"));
    auto* form = new QFormLayout(this);
    mField->setInputMethodHints(Qt::ImhDigitsOnly);
    mField->setMaxLength(32);
    form->addRow(LocalizedString("main_window_by_id_label"), mField);
    mComplaint->setWordWrap(true);
    mComplaint->setTextFormat(Qt::PlainText);
    mComplaint->setMinimumWidth(mComplaint->fontMetrics().averageCharWidth() * 44);
    // Room from the start, so that nothing jumps when it has something to say.
    mComplaint->setMinimumHeight(mComplaint->fontMetrics().lineSpacing() * 2);
    mComplaint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    form->addRow(mComplaint);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    mFind = buttons->button(QDialogButtonBox::Ok);
    mFind->setText(LocalizedString("main_window_by_id_find"));
    mFind->setEnabled(false);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &PidDialog::Try);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(mField, &QLineEdit::textChanged, this, [this](const QString& text) {
      mComplaint->clear();
      mFind->setEnabled(!text.trimmed().isEmpty());
    });
    mField->setFocus();
  }

  std::int32_t Pid() const { return mPid; }

 private:
  void Try() {
    const auto text = mField->text().trimmed();
    const int highest = TheMachine().processTable.MaximumPid();
    bool isNumber = false;
    const int pid = text.toInt(&isNumber);
    if (!isNumber || pid < 0 || pid > highest)
      return Complain(LocalizedString("main_window_by_id_no_number").arg(highest));
    if (!mIsThere(pid)) return Complain(LocalizedString("main_window_by_id_not_found").arg(pid));
    mPid = pid;
    accept();
  }

  void Complain(const QString& text) {
    mComplaint->setText(text);
    mField->setAccessibleDescription(text);
    mField->selectAll();
    mField->setFocus();
  }

  const std::function<bool(std::int32_t)>& mIsThere;
  QLineEdit* mField = new QLineEdit(this);
  QLabel* mComplaint = new QLabel(this);
  QPushButton* mFind = nullptr;
  std::int32_t mPid = kInvalidPID;
};

}  // namespace

std::int32_t AskForPid(QWidget* parent, const std::function<bool(std::int32_t)>& isThere) {
  PidDialog dialog(parent, isThere);
  return dialog.exec() == QDialog::Accepted ? dialog.Pid() : kInvalidPID;
}

}  // namespace lurkwell
