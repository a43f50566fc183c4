#pragma once

#include <QLabel>

#include "windows/Accessibility.h"

namespace lurkwell {

/// A line of plain text that updates change. What does not fit has dots at its end, and stands in
/// the tip. Assistive programs read it when they ask; unasked they are told it as UnaskedTellings
/// has it. Main thread only.
class UpdatedLabel final : public QLabel, public InterfaceMaker {
  Q_OBJECT

 public:
  explicit UpdatedLabel(QWidget* parent = nullptr);

  /// To be called with each update, so that the last of several changes is told, too.
  void Show(const QString& text);

  QAccessibleInterface* MakeInterface() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  UnaskedTellings mTellings;
  QString mTold;
};

}  // namespace lurkwell
