#pragma once

#include <QWidget>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "windows/Accessibility.h"
#include "windows/FigureHistory.h"

namespace lurkwell {

/// A small graph for each processor, as many side by side as fill the widget best: from one to
/// hundreds. Where there is room each tells its number and its share, at the newest moment or at
/// the cursor; where there is none, the pointer tells it, and so do the arrow keys. Main thread
/// only.
class ProcessorGrid final : public QWidget, public FigureSpeaker {
  Q_OBJECT

 public:
  explicit ProcessorGrid(const QString& title, QWidget* parent = nullptr);

  struct Processor {
    int number = 0;
    /// Of the history.
    std::size_t series = 0;
  };
  /// The history outlives this, or is taken back with null.
  void setHistory(const FigureHistory* history, std::vector<Processor> processors);
  std::size_t count() const { return mProcessors.size(); }
  /// To be called when the history has a further moment.
  void historyHasGrown();
  /// Milliseconds.
  void setSpan(std::int64_t milliseconds);
  void setCursor(std::optional<std::int64_t> when);

  /// "Processor 3: 12.5 %" for the processor that is pointed at, else the busiest one's.
  QString figures() const;
  /// That of the processor that is pointed at, else of all.
  QString SpokenFigures() const override;
  /// How many stand side by side in a widget of that size. Pure.
  static int columnsFor(int processors, const QSizeF& size);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  void momentChosen(qint64 when);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QRectF Area() const;
  QRectF CellOf(std::size_t place) const;
  std::optional<std::size_t> CellAt(const QPointF& place) const;
  double ShareOf(std::size_t place) const;
  QString FigureOf(std::size_t place) const;
  std::optional<std::size_t> Busiest() const;
  void DrawCell(QPainter& painter, std::size_t place) const;
  void MoveTo(std::size_t place);

  QString mTitle;
  const FigureHistory* mHistory = nullptr;
  std::vector<Processor> mProcessors;
  std::int64_t mEnd = 0;
  std::int64_t mSpan = 60'000;
  std::optional<std::int64_t> mCursor;
  /// By the arrow keys.
  std::optional<std::size_t> mChosen;
};

}  // namespace lurkwell
