#include "monitor_windows/Satellite.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

namespace lurkwell {

Satellite::Satellite(QWidget& group, const QRect& bounds, const QFont& font, QPoint baseline)
    : QWidget(&group), mBaseline(baseline) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFont(font);
  setGeometry(bounds);
}

void Satellite::SetColours(const QColor& background, const QColor& text) {
  if (background == mBackground && text == mTextColour) return;
  mBackground = background;
  mTextColour = text;
  update();
}

void Satellite::SetText(const QString& text, const QColor& colour) {
  if (text == mText && colour == mTextColour) return;
  mText = text;
  mTextColour = colour;
  update();
}

void Satellite::SetPicture(const QPixmap& picture) {
  mPicture = picture;
  update();
}

void Satellite::SetAlpha(double alpha) {
  // What is no number counts as 0.
  alpha = alpha > 0.0 ? std::min(alpha, 1.0) : 0.0;
  if (alpha == mAlpha) return;
  mAlpha = alpha;
  update();
}

void Satellite::SetLine(const QString& text, const QColor& colour, int most) {
  constexpr int kMargins = 10;
  const QFontMetrics metrics(font());
  const auto line = metrics.elidedText(text, Qt::ElideMiddle, std::max(0, most - kMargins));
  resize(std::min(most, metrics.horizontalAdvance(line) + kMargins), height());
  SetText(line, colour);
}

void Satellite::paintEvent(QPaintEvent*) {
  if (mAlpha <= 0.0) return;
  QPainter painter(this);
  painter.setOpacity(mAlpha);
  painter.fillRect(rect(), mBackground);
  if (!mPicture.isNull()) {
    const auto size = mPicture.deviceIndependentSize();
    painter.drawPixmap(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2),
                       mPicture);
  }
  painter.setPen(mTextColour);
  painter.drawText(mBaseline, mText);
}

}  // namespace lurkwell
