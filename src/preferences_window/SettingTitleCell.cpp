#include "preferences_window/SettingTitleCell.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "preferences_window/SettingsModel.h"

namespace lurkwell {
namespace {

constexpr int kMargin = 4;

QFont Small(QFont font) {
  if (font.pointSizeF() > 0)
    font.setPointSizeF(font.pointSizeF() * 0.8);
  else
    font.setPixelSize(std::max(1, font.pixelSize() * 8 / 10));
  return font;
}

QString KeyAt(const QModelIndex& index) {
  return index.data(SettingsModel::kKeyRole).toString();
}

}  // namespace

int SettingTitleCell::HeightOfRow(const QFont& font) {
  return QFontMetrics(font).height() + QFontMetrics(Small(font)).height() + kMargin;
}

int SettingTitleCell::WidthOf(const QFont& font, const QModelIndex& index) {
  return 2 * kMargin + std::max(QFontMetrics(font).horizontalAdvance(index.data().toString()),
                                QFontMetrics(Small(font)).horizontalAdvance(KeyAt(index)));
}

void SettingTitleCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  auto cell = option;
  initStyleOption(&cell, index);
  const auto title = std::exchange(cell.text, {});
  const auto* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
  const auto group =
      cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  const auto colour =
      cell.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
  auto quiet = colour;
  quiet.setAlphaF(0.72F);
  const QRect area = cell.rect.adjusted(kMargin, kMargin / 2, -kMargin, -kMargin / 2);
  painter->save();
  const auto draw = [&](const QFont& font, const QColor& pen, int place, const QString& text) {
    painter->setFont(font);
    painter->setPen(pen);
    const auto shown = QFontMetrics(font).elidedText(text, Qt::ElideRight, area.width());
    painter->drawText(area, Qt::AlignLeft | place, shown);
  };
  draw(cell.font, colour, Qt::AlignTop, title);
  draw(Small(cell.font), quiet, Qt::AlignBottom, KeyAt(index));
  painter->restore();
}

}  // namespace lurkwell
