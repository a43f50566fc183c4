#pragma once

#include <QHeaderView>

namespace lurkwell {

/// The table's titles. The arrow of the sort column stands beside its title where there is room for
/// both, else small above it, and never on it. Main thread only.
class TableHeader final : public QHeaderView {
  Q_OBJECT

 public:
  explicit TableHeader(QWidget* parent = nullptr);

  /// What a title takes together with the arrow and all margins, in points.
  int widthForTitle(const QString& title) const;

 protected:
  void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
  void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

 private:
  bool HasRoomForArrow(const QRect& rect, int logicalIndex) const;
};

}  // namespace lurkwell
