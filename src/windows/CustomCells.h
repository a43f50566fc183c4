#pragma once

#include <QColor>
#include <QRect>
#include <QStyledItemDelegate>
#include <cstdint>
#include <limits>

#include "windows/Contrast.h"
#include "windows/Keys.h"

namespace lurkwell {

/// The drawing of the table's cells; one of each kind serves all rows. Values are set right before
/// drawing. Colours follow the palette where it is dark. Main thread only.

/// What cells draw from, besides the usual roles: the CPU share, the sizes of the inner and the
/// outer memory bar, the text on a bar,
/// whether a figure is an old one, one of a paused table, an ended process's or missing, and
/// whether the row is the idle task's.
enum CellRole {
  kCpuShareRole = Qt::UserRole,
  kResidentSizeRole,
  kVirtualSizeRole,
  kBarTextRole,
  kIsFaintRole,
  kIsIdleTaskRole,
  kHasEndedRole,  ///< the process has ended while its row has to stay
  kLevelRole,     ///< how deep the row lies, from 0; -1 where rows have no places below others
  kFoldRole       ///< RowStanding::Fold as a number
};

/// What the length of memory bars shows; the numbers are remembered. With the virtual size there is
/// a second bar within, the resident one.
enum class MemoryFigure : std::uint8_t { kVirtual = 0, kResident = 1, kProportional = 2 };
inline MemoryFigure gMemoryFigure = MemoryFigure::kVirtual;
/// The property of it.
KeyId MemoryFigureKey();

/// The largest of these sizes among all processes in the last update, in bytes; what memory bars
/// are measured by.
inline std::int64_t gBiggestVSZ = 0;

/// What is larger is no measure for others, and has colours of its own: an address space that no
/// machine could fill would leave nothing to see of all other bars.
inline std::int64_t gMostMeasured = std::numeric_limits<std::int64_t>::max();

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
  static QRect ArrowPlace(const QRect& cell, const QModelIndex& index,
                          Qt::LayoutDirection direction);

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
/// idle task has is the share that no process wanted: faint stripes. The share in per cent stands
/// at its right end, in colours that can be read on the bar and beside it.
class CPUCell final : public QStyledItemDelegate {
 public:
  double cpuPercent() const { return mCpuPercentage; }
  /// From 0 to 1; of the cell that is drawn next.
  void setCpuPercent(double share) const { mCpuPercentage = share; }

  void drawInteriorWithFrame(QPainter& painter, const QRect& frame, bool isDark,
                             bool isIdleTask = false, bool isFaint = false) const;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  mutable double mCpuPercentage = 0.0;
};

/// Resident and virtual size as two bars, measured by gBiggestVSZ; a row larger than that has
/// colours of its own. With gDrawVSZText the size that its length shows stands on it.
class MemGraphCell final : public QStyledItemDelegate {
 public:
  /// Bytes; of the cell that is drawn next.
  void setRSZ(std::int64_t size) const { mRSZ = size; }
  void setVSZ(std::int64_t size) const { mVSZ = size; }

  void drawInteriorWithFrame(QPainter& painter, const QRect& frame, const QPalette& palette,
                             bool isFaint = false) const;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 private:
  struct Bars {
    QRect outer;
    QRect inner;
    QColor outerColour;
    QColor innerColour;
  };
  Bars BarsIn(const QRect& frame, const QPalette& palette, bool isFaint) const;
  /// In colours that can be read on either bar and beside them.
  static void DrawText(QPainter& painter, const QRect& frame, const Bars& bars,
                       const QColor& beside, const QString& text);

  mutable std::int64_t mRSZ = 0;
  mutable std::int64_t mVSZ = 0;
};

}  // namespace lurkwell
