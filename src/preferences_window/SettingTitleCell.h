#pragma once

#include <QStyledItemDelegate>

namespace lurkwell {

/// The cell of a setting's name: its title, and small below it the key that the file has it under.
/// Main thread.
class SettingTitleCell final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

  /// Points, for a view with that font.
  static int HeightOfRow(const QFont& font);
  /// What a title and its key need in width.
  static int WidthOf(const QFont& font, const QModelIndex& index);
};

}  // namespace lurkwell
