#pragma once

#include <QDialog>
#include <QString>
#include <QTimer>
#include <memory>

#include "alerts/AlertSettings.h"
#include "alerts/AlertWatcher.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace lurkwell {

/// Asks for a rule and its command. While a rule is being typed it says what is wrong with it, or
/// which processes meet it now. Nothing is kept before it is accepted. Main thread.
class AlertEditor final : public QDialog {
  Q_OBJECT

 public:
  /// Of a new rule, `first` has what to begin with.
  AlertEditor(const QString& title, const AlertSetting& first, QWidget* parent);
  ~AlertEditor() override;

  /// As it was accepted; on, and not damaged.
  const AlertSetting& Setting() const { return mSetting; }

 protected:
  void accept() override;

 private:
  void Build(const AlertSetting& first);
  void TakeRule();
  void TakeCommand();
  void TellError();
  void Watch(std::unique_ptr<AlertRule> rule);
  void ShowTrial();
  void SelectMistake();

  AlertSetting mSetting;
  QLineEdit* mRule = nullptr;
  QLineEdit* mCommand = nullptr;
  QLabel* mError = nullptr;
  QLabel* mTrial = nullptr;
  QPushButton* mAgree = nullptr;
  /// A word is usually wrong until it has been typed to its end.
  QTimer mPatience;
  QString mRuleError;
  QString mCommandError;
  int mMistakeAt = 0;
  int mMistakeLength = 0;
  std::shared_ptr<RuleWatch> mWatch;
  /// Deleted with the dialog, or with all clients before it.
  AlertWatcher* mWatcher = nullptr;
};

}  // namespace lurkwell
