#include "main_window/ToolbarGauge.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionToolButton>

#include "resources/Resources.h"
#include "windows/Contrast.h"

namespace lurkwell {

ToolbarGauge::ToolbarGauge(QSize size, int iconHeight, const QString& label, const QString& tip)
    : mSize(size), mTip(tip) {
  setIconSize({size.width(), std::max(iconHeight, size.height())});
  setText(label);
  setToolTip(tip);
  setAccessibleName(label);
  ServeAssistivePrograms();
  setAutoRaise(true);
  setFocusPolicy(Qt::NoFocus);
}

void ToolbarGauge::changeEvent(QEvent* event) {
  // The next update draws in the new colours.
  if (event->type() == QEvent::PaletteChange) mShown.clear();
  QToolButton::changeEvent(event);
}

bool ToolbarGauge::IsShown(const QByteArray& picture) {
  const qreal scale = devicePixelRatioF();
  if (picture == mShown && scale == mScale) return true;
  mShown = picture;
  mScale = scale;
  return false;
}

void ToolbarGauge::ShowImage(const SystemInfoImage& image, int usedEnd) {
  if (IsShown({reinterpret_cast<const char*>(image.data()), qsizetype(image.size())})) return;
  const QImage pixels(image.data(), kSystemInfoImageWidth, kSystemInfoImageHeight,
                      qsizetype{4} * kSystemInfoImageWidth, QImage::Format_RGBA8888);
  // Without smoothing: each pixel of the picture becomes a square, or is left alone.
  auto picture = QPixmap::fromImage(pixels.scaled((QSizeF(mSize) * mScale).toSize()));
  DrawMarks(picture, usedEnd);
  Show(picture);
}

void ToolbarGauge::DrawMarks(QPixmap& picture, int end) const {
  // The colours of the bar tell its edges and parts from each other for those alone who see
  // colours.
  const auto colour =
      FaintOn(palette().color(QPalette::WindowText), palette().color(QPalette::Window));
  QPainter painter(&picture);
  painter.scale(static_cast<double>(picture.width()) / kSystemInfoImageWidth,
                static_cast<double>(picture.height()) / kSystemInfoImageHeight);
  const auto frame = kSystemInfoBar.adjusted(-1, -1, 1, 1);
  const int above = frame.top();
  const int below = frame.bottom();
  painter.fillRect(QRect(frame.left(), above, frame.width(), 1), colour);
  painter.fillRect(QRect(frame.left(), below, frame.width(), 1), colour);
  painter.fillRect(QRect(frame.left(), above, 1, frame.height()), colour);
  painter.fillRect(QRect(frame.right(), above, 1, frame.height()), colour);
  // Where what is used ends.
  painter.fillRect(QRect(end - 1, 0, 2, above), colour);
  painter.fillRect(QRect(end - 1, below + 1, 2, kSystemInfoImageHeight - below - 1), colour);
}

void ToolbarGauge::ShowNamedImage(const char* name) {
  if (IsShown(name)) return;
  Show(NamedImage(name).pixmap(mSize, mScale));
}

void ToolbarGauge::Show(const QPixmap& picture) {
  QPixmap pixmap((QSizeF(iconSize()) * mScale).toSize());
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  auto place = QRect({}, picture.size());
  place.moveCenter(pixmap.rect().center());
  painter.drawPixmap(place, picture);
  painter.end();
  pixmap.setDevicePixelRatio(mScale);
  mIcon = QIcon(pixmap);
  // The room for it is the same, so that nothing is laid out anew.
  update();
}

void ToolbarGauge::SetFigures(const QString& figures) {
  if (figures == mFigures) return;
  mFigures = figures;
  setToolTip(figures + QLatin1String("\n\n") + mTip);
}

void ToolbarGauge::initStyleOption(QStyleOptionToolButton* option) const {
  QToolButton::initStyleOption(option);
  option->icon = mIcon;
  option->iconSize = iconSize();
  option->toolButtonStyle = toolButtonStyle();
  option->state &= ~QStyle::State_MouseOver;
}

void ToolbarGauge::mousePressEvent(QMouseEvent* event) {
  event->ignore();
}

}  // namespace lurkwell
