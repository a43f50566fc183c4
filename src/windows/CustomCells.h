#pragma once

#include <QStyledItemDelegate>
#include <cstdint>

namespace lurkwell {

/// The drawing of the table's cells; one of each kind serves all rows. Values are set right before
/// drawing. Colours follow the palette where it is dark. Main thread only.

/// What cells draw from, besides the usual roles: the CPU share, resident and virtual size,
/// whether a figure is an old one, one of a paused table, an ended process's or missing, and
/// whether the row is the idle task's.
enum CellRole {
  kCpuShareRole = Qt::UserRole,
  kResidentSizeRole,
  kVirtualSizeRole,
  kIsFaintRole,
  kIsIdleTaskRole,
  kHasEndedRole,  ///< the process has ended while its row has to stay
  kLevelRole,     ///< how deep the row lies, from 0; -1 where rows have no places below others
  kFoldRole       ///< RowStanding::Fold as a number
};

/// The largest virtual size among all processes in the last update, in bytes; what memory bars are
/// measured by.
inline std::int64_t gBiggestVSZ = 0;

/// Whether memory bars carry their size as text; as of the last update.
inline bool gDrawVSZText = false;

/// One line of text, cut at the end, with the selection behind it; what is old, ended or missing
/// stands in a fainter colour, and what ended while it had to stay is struck through.
class TextCell : public QStyledItemDelegate {
  Q_OBJECT

 public:
  /// The margins at both sides, and the grid line, in points.
  static constexpr int kWidthBesideText = 9;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 protected:
  /// The text alone.
  static void DrawText(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place,
                       const QModelIndex& index);
};

/// A text that stands the further to the right the deeper its row lies, with an arrow before it
/// where something lies below: to the right when folded, else down.
class TreeCell final : public TextCell {
  Q_OBJECT

 public:
  /// What level and arrow take of the cell, in points; 0 where rows have no places below others.
  static int InsetOf(const QModelIndex& index);
  /// Where a click folds and unfolds, in a cell that lies at `cell`; nowhere for an empty one.
  static QRect ArrowPlace(const QRect& cell, const QModelIndex& index);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

/// A small picture in the middle.
class ImageCell final : public QStyledItemDelegate {
 public:
  /// Points.
  static constexpr int kSize = 16;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

/// A share of one CPU as a bar from the left; an idle process has a sliver of one point. What the
/// idle task has is the share that no process wanted: faint stripes.
class CPUCell final : public QStyledItemDelegate {
 public:
  double cpuPercent() const { return mCpuPercentage; }
  /// From 0 to 1; of the cell that is drawn next.
  void setCpuPercent(double share) const { mCpuPercentage = share; }

  void drawInteriorWithFrame(QPainter& painter, const QRect& frame, bool isDark,
                             bool isIdleTask = false) const;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  mutable double mCpuPercentage = 0.0;
};

/// Resident and virtual size as two bars, measured by gBiggestVSZ; a row larger than that has
/// colours of its own. With gDrawVSZText the virtual size stands on it.
class MemGraphCell final : public QStyledItemDelegate {
 public:
  /// Bytes; of the cell that is drawn next.
  void setRSZ(std::int64_t size) const { mRSZ = size; }
  void setVSZ(std::int64_t size) const { mVSZ = size; }

  void drawInteriorWithFrame(QPainter& painter, const QRect& frame, const QPalette& palette) const;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  void DrawText(QPainter& painter, const QRect& frame, const QPalette& palette) const;

  mutable std::int64_t mRSZ = 0;
  mutable std::int64_t mVSZ = 0;
};

/// Whether texts of the palette are lighter than what they stand on.
bool IsDark(const QPalette& palette);

}  // namespace lurkwell
