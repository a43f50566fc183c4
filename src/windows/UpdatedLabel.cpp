#include "windows/UpdatedLabel.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>
#include <QStyle>

namespace lurkwell {
namespace {

class AccessibleLine final : public QAccessibleWidget {
 public:
  explicit AccessibleLine(QLabel& label)
      : QAccessibleWidget(&label, QAccessible::StaticText), mLabel(label) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? mLabel.text() : QString();
  }

 private:
  const QLabel& mLabel;
};

}  // namespace

UpdatedLabel::UpdatedLabel(QWidget* parent) : QLabel(parent) {
  ServeAssistivePrograms();
  setTextFormat(Qt::PlainText);
  // Nobody is told this one, but a label that has one does not tell each change by itself.
  setAccessibleName(QStringLiteral("-"));
}

QAccessibleInterface* UpdatedLabel::MakeInterface() {
  return new AccessibleLine(*this);
}

void UpdatedLabel::Show(const QString& text) {
  if (text != this->text()) {
    setText(text);
    setToolTip(text);
  }
  if (text == mTold || !mTellings.IsTime()) return;
  mTold = text;
  mTellings.HasTold();
  QAccessibleEvent event(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

void UpdatedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const auto place = contentsRect();
  style()->drawItemText(&painter, place, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                        fontMetrics().elidedText(text(), Qt::ElideRight, place.width()),
                        foregroundRole());
}

}  // namespace lurkwell
