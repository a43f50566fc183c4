#pragma once

#include <QDialog>
#include <QUrl>

#include "fleet/FleetCredentials.h"

class QLabel;
class QLineEdit;

namespace lurkwell {

/// Asks for a name and a password, a token, or a file with either, for one server. What is typed
/// stays in memory alone. Deletes itself. Main thread only.
class SignInDialog final : public QDialog {
  Q_OBJECT

 public:
  SignInDialog(const QUrl& address, QWidget* parent);

  /// Once it has been accepted.
  const FleetCredentials& Credentials() const { return mCredentials; }

 public Q_SLOTS:
  void accept() override;

 private:
  void ChooseFile();

  QLineEdit* mName;
  QLineEdit* mPassword;
  QLineEdit* mToken;
  QLineEdit* mFile;
  QLabel* mComplaint;
  FleetCredentials mCredentials;
};

}  // namespace lurkwell
