#include "main_window/AskForText.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace lurkwell {
namespace {

/// More than any question allows: what is too long is said, not cut.
constexpr int kMostLetters = 200;

class TextDialog final : public QDialog {
 public:
  TextDialog(QWidget* parent, const TextQuestion& question,
             const std::function<QString(const QString&)>& complaint)
      : QDialog(parent), mComplaintAbout(complaint) {
    setWindowTitle(question.title);
    auto* form = new QFormLayout(this);
    mField->setMaxLength(kMostLetters);
    mField->setText(question.first);
    mField->selectAll();
    form->addRow(question.label, mField);
    mComplaint->setWordWrap(true);
    mComplaint->setTextFormat(Qt::PlainText);
    mComplaint->setMinimumWidth(mComplaint->fontMetrics().averageCharWidth() * 44);
    // Room from the start, so that nothing jumps when it has something to say.
    mComplaint->setMinimumHeight(mComplaint->fontMetrics().lineSpacing() * 2);
    mComplaint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    form->addRow(mComplaint);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* agree = buttons->button(QDialogButtonBox::Ok);
    agree->setText(question.agree);
    agree->setEnabled(!Text().isEmpty());
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &TextDialog::Try);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(mField, &QLineEdit::textChanged, this, [this, agree] {
      mComplaint->clear();
      mField->setAccessibleDescription({});
      agree->setEnabled(!Text().isEmpty());
    });
    mField->setFocus();
  }

  QString Text() const { return mField->text().simplified(); }

 private:
  void Try() {
    const auto complaint = mComplaintAbout(Text());
    if (complaint.isEmpty()) return accept();
    mComplaint->setText(complaint);
    mField->setAccessibleDescription(complaint);
    mField->selectAll();
    mField->setFocus();
  }

  const std::function<QString(const QString&)>& mComplaintAbout;
  QLineEdit* mField = new QLineEdit(this);
  QLabel* mComplaint = new QLabel(this);
};

}  // namespace

QString AskForText(QWidget* parent, const TextQuestion& question,
                   const std::function<QString(const QString&)>& complaint) {
  TextDialog dialog(parent, question, complaint);
  return dialog.exec() == QDialog::Accepted ? dialog.Text() : QString();
}

}  // namespace lurkwell
