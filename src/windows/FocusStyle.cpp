#include "windows/FocusStyle.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QPen>
#include <QStyleOption>
#include <QTextFormat>
#include <QWidget>

#include "windows/Contrast.h"

namespace lurkwell {
namespace {

constexpr int kFocusWidth = 2;

void DrawFrame(QPainter& painter, const QRectF& place, const QColor& colour) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  QPen pen(colour, kFocusWidth);
  pen.setJoinStyle(Qt::MiterJoin);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  constexpr double kHalf = kFocusWidth / 2.0;
  painter.drawRect(place.adjusted(kHalf, kHalf, -kHalf, -kHalf));
  painter.restore();
}

bool HasFocus(const QStyleOption& option) {
  return option.state.testFlag(QStyle::State_HasFocus) &&
         option.state.testFlag(QStyle::State_Enabled);
}

bool HasFocusByKeys(const QStyleOption& option) {
  return HasFocus(option) && option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

bool IsView(const QWidget* widget) {
  return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
}

bool WorksWithKeys(const QWidget* widget) {
  return widget != nullptr && widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

}  // namespace

FocusStyle::FocusStyle(QStyle* base)
    : QProxyStyle(base), mIsToolkits(baseStyle()->name() == QLatin1String("fusion")) {}

void FocusStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  if (!mIsToolkits || element != PE_FrameFocusRect) {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    // A cursor within is too little to be found by.
    const bool isField = mIsToolkits && element == PE_FrameLineEdit && HasFocus(*option);
    if (isField) DrawFrame(*painter, option->rect, FocusColour(option->palette));
    return;
  }
  if (!option->state.testFlag(State_Item)) {
    if (option->state.testFlag(State_KeyboardFocusChange))
      DrawFrame(*painter, option->rect, FocusColour(option->palette));
    return;
  }
  // Items have it after a click, too, when their selection tells enough.
  if (!WorksWithKeys(widget)) return;
  const auto* frame = qstyleoption_cast<const QStyleOptionFocusRect*>(option);
  const bool isSelected = option->state.testFlag(State_Selected) && frame != nullptr;
  DrawFocusFrame(*painter, option->rect, option->palette,
                 isSelected ? frame->backgroundColor : option->palette.color(QPalette::Base));
}

void FocusStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  if (!mIsToolkits || !HasFocusByKeys(*option)) return;
  constexpr int kInsideTab = 3;
  const auto& place = option->rect;
  const bool isView = element == CE_ShapedFrame && IsView(widget);
  if (isView || element == CE_PushButton)
    DrawFrame(*painter, place, FocusColour(option->palette));
  else if (element == CE_TabBarTabLabel)
    DrawFrame(*painter, place.adjusted(kInsideTab, kInsideTab, -kInsideTab, -kInsideTab),
              FocusColour(option->palette));
}

void FocusStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
  if (mIsToolkits && control == CC_ToolButton && button != nullptr) {
    // Around the picture, not over it.
    auto without = *button;
    without.state.setFlag(State_HasFocus, false);
    QProxyStyle::drawComplexControl(control, &without, painter, widget);
    if (HasFocusByKeys(*option)) DrawFrame(*painter, option->rect, FocusColour(option->palette));
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  const bool isTyped = control == CC_SpinBox || (list != nullptr && list->editable);
  const bool isFramed = control == CC_SpinBox || control == CC_ComboBox || control == CC_Slider;
  if (mIsToolkits && isFramed && (isTyped ? HasFocus(*option) : HasFocusByKeys(*option)))
    DrawFrame(*painter, option->rect, FocusColour(option->palette));
}

int FocusStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
  // Room for the frame beside what they show.
  if (mIsToolkits && metric == PM_DefaultFrameWidth && IsView(widget)) return kFocusWidth;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

int FocusStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* answer) const {
  auto* format = qstyleoption_cast<QStyleHintReturnVariant*>(answer);
  if (!mIsToolkits || hint != SH_TextControl_FocusIndicatorTextCharFormat || format == nullptr ||
      option == nullptr)
    return QProxyStyle::styleHint(hint, option, widget, answer);
  QTextCharFormat link;
  link.setProperty(QTextFormat::OutlinePen, QPen(FocusColour(option->palette), kFocusWidth));
  format->variant = link;
  return 1;
}

bool ShowsFocus(const QWidget& widget) {
  return widget.hasFocus() && WorksWithKeys(&widget);
}

void DrawFocusFrame(QPainter& painter, const QRectF& place, const QPalette& palette,
                    const QColor& ground) {
  DrawFrame(painter, place, FocusColour(palette, ground));
}

}  // namespace lurkwell
