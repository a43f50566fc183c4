#pragma once

#include <QDialog>
#include <QUrl>
#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;

namespace lurkwell {

/// Asks for the address of a metrics server, and offers the last ones. A wrong one is told, and the
/// question stays. Deletes itself. Main thread only.
class OpenFleetDialog final : public QDialog {
  Q_OBJECT

 public:
  explicit OpenFleetDialog(QWidget* parent);

  QComboBox& Address() { return *mAddress; }
  QString Complaint() const;

 Q_SIGNALS:
  void chosen(const QUrl& address);

 public Q_SLOTS:
  void accept() override;

 private:
  QComboBox* mAddress;
  QLabel* mComplaint;
};

}  // namespace lurkwell
