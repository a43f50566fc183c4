#pragma once

#include <QProxyStyle>

namespace lurkwell {

/// The toolkit's own style with a frame around what has the keyboard that can be seen on every
/// ground, of kMarkContrast at least. What another style draws is left as it is. Main thread only.
class FocusStyle : public QProxyStyle {
  Q_OBJECT

 public:
  /// Takes `base`; without one it is the desktop's style.
  explicit FocusStyle(QStyle* base = nullptr);

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget = nullptr) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget = nullptr) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;

 private:
  bool mIsToolkits;
};

/// Whether the widget has the keyboard, and the user works with keys.
bool ShowsFocus(const QWidget& widget);

/// A frame of two points within `place`, for what is drawn upon `ground`.
void DrawFocusFrame(QPainter& painter, const QRectF& place, const QPalette& palette,
                    const QColor& ground);

}  // namespace lurkwell
