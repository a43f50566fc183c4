#pragma once

#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include "platform/Uuid.h"

namespace lurkwell {

/// The remembered histories and logs, whether their programs run or not, to be forgotten. It looks
/// again every second while it is open. Deletes itself when it is closed. Main thread only.
class RememberedWindowsPanel final : public QDialog {
  Q_OBJECT

 public:
  /// Shows the panel, a new one or the one that is open.
  static void ShowFor(QWidget* parent);

  explicit RememberedWindowsPanel(QWidget* parent);

  QTreeWidget* List() const { return mList; }
  /// Forgets the selected ones. A window that is open stays so until it is closed.
  void ForgetSelected();

 private:
  void Fill();
  void Validate();

  static QPointer<RememberedWindowsPanel> sPanel;

  QTreeWidget* mList;
  QPushButton* mForget;
  QTimer mTimer;
};

}  // namespace lurkwell
