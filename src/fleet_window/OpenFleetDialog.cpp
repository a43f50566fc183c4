#include "fleet_window/OpenFleetDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "fleet/FleetAddress.h"
#include "fleet_window/RecentFleets.h"
#include "resources/Resources.h"

namespace lurkwell {

OpenFleetDialog::OpenFleetDialog(QWidget* parent)
    : QDialog(parent), mAddress(new QComboBox), mComplaint(new QLabel) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(LocalizedString("fleet_open_title"));
  auto* words = new QLabel(LocalizedString("fleet_open_words"));
  words->setWordWrap(true);
  words->setBuddy(mAddress);
  mAddress->setEditable(true);
  mAddress->addItems(RecentFleets());
  mAddress->setAccessibleName(LocalizedString("fleet_address"));
  mAddress->lineEdit()->setAccessibleName(LocalizedString("fleet_address"));
  mAddress->lineEdit()->setPlaceholderText(QStringLiteral("http://monitor:9090"));
  mAddress->lineEdit()->selectAll();
  mAddress->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
  mComplaint->setTextFormat(Qt::PlainText);
  mComplaint->setWordWrap(true);
  mComplaint->hide();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel);
  connect(buttons, &QDialogButtonBox::accepted, this, &OpenFleetDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(words);
  layout->addWidget(mAddress);
  layout->addWidget(mComplaint);
  layout->addWidget(buttons);
  mAddress->setFocus();
}

QString OpenFleetDialog::Complaint() const {
  return mComplaint->text();
}

void OpenFleetDialog::accept() {
  QString complaint;
  const auto address = ReadFleetAddress(mAddress->currentText(), complaint);
  mComplaint->setText(complaint);
  mComplaint->setVisible(!complaint.isEmpty());
  if (!address) return mAddress->setFocus();
  Q_EMIT chosen(*address);
  QDialog::accept();
}

}  // namespace lurkwell
