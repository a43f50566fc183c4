#include "fleet_window/SignInDialog.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <optional>

#include "fleet/FleetAddress.h"
#include "resources/Resources.h"

namespace lurkwell {

SignInDialog::SignInDialog(const QUrl& address, QWidget* parent)
    : QDialog(parent),
      mName(new QLineEdit),
      mPassword(new QLineEdit),
      mToken(new QLineEdit),
      mFile(new QLineEdit),
      mComplaint(new QLabel) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(LocalizedString("fleet_sign_in_title").arg(address.authority()));
  mPassword->setEchoMode(QLineEdit::Password);
  mToken->setEchoMode(QLineEdit::Password);
  auto* form = new QFormLayout;
  form->addRow(LocalizedString("fleet_sign_in_name"), mName);
  form->addRow(LocalizedString("fleet_sign_in_password"), mPassword);
  form->addRow(LocalizedString("fleet_sign_in_token"), mToken);
  auto* choose = new QPushButton(LocalizedString("fleet_sign_in_choose"));
  choose->setAutoDefault(false);
  connect(choose, &QPushButton::clicked, this, &SignInDialog::ChooseFile);
  auto* file = new QHBoxLayout;
  file->addWidget(mFile, 1);
  file->addWidget(choose);
  form->addRow(LocalizedString("fleet_sign_in_file"), file);
  mFile->setAccessibleName(LocalizedString("fleet_sign_in_file"));
  auto* words = new QLabel(
      LocalizedString(IsSentInClear(address) ? "fleet_sign_in_in_clear" : "fleet_sign_in_words"));
  for (auto* label : {words, mComplaint}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
  }
  mComplaint->hide();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &SignInDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(words);
  layout->addLayout(form);
  layout->addWidget(mComplaint);
  layout->addWidget(buttons);
  setMinimumWidth(fontMetrics().averageCharWidth() * 70);
}

void SignInDialog::ChooseFile() {
  const auto file =
      QFileDialog::getOpenFileName(this, LocalizedString("fleet_sign_in_file"), QString());
  if (!file.isEmpty()) mFile->setText(file);
}

void SignInDialog::accept() {
  QString complaint;
  std::optional<FleetCredentials> read;
  if (!mFile->text().isEmpty()) {
    read = FleetCredentials::FromFile(mFile->text(), complaint);
  } else if (!mToken->text().isEmpty()) {
    read = FleetCredentials::OfToken(mToken->text());
  } else if (!mName->text().isEmpty()) {
    read = FleetCredentials::OfUser(mName->text(), mPassword->text());
  } else {
    complaint = LocalizedString("fleet_sign_in_nothing");
  }
  if (!read && complaint.isEmpty()) complaint = LocalizedString("fleet_sign_in_wrong");
  mComplaint->setText(complaint);
  mComplaint->setVisible(!complaint.isEmpty());
  if (!read) return;
  mCredentials = *read;
  QDialog::accept();
}

}  // namespace lurkwell
