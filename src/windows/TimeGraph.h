#pragma once

#include <QString>
#include <QWidget>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "windows/Accessibility.h"
#include "windows/FigureHistory.h"
#include "windows/GraphPlot.h"
#include "windows/GraphScale.h"

namespace lurkwell {

/// Figures over time as lines, with a scale, a legend that tells the newest figures, and a cursor
/// that tells those of any moment: the pointer moves it, or Left, Right, Home and End. The right
/// border is the newest moment. What was not known is a gap. Nothing is drawn, and nothing done,
/// while the graph cannot be seen. Times are those of its history, milliseconds of Clock::Now, and
/// shown as calendar time. Main thread only.
class TimeGraph final : public QWidget, public FigureSpeaker {
  Q_OBJECT

 public:
  struct Series {
    /// In the legend; empty where there is but one.
    QString name;
    /// Of the history.
    std::size_t number = 0;
  };

  /// The title stands above the graph, and names it for screen readers.
  TimeGraph(const QString& title, GraphUnit unit, QWidget* parent = nullptr);

  /// What is shown; null for nothing. The history stays the caller's, outlives this or is taken
  /// back, and may be shown by any number of graphs.
  void setHistory(const FigureHistory* history, std::vector<Series> series);
  /// To be called when the history has a further moment; redraws what can be seen.
  void historyHasGrown();

  /// The scale ends there, whatever the figures are: a size that they are a part of.
  void setTop(double top);
  /// The scale grows with the figures that are shown, and is no lower than that. As at the
  /// beginning, with 0.
  void setLeastTop(double leastTop);

  /// How much time is shown, in milliseconds; a minute at the beginning.
  void setSpan(std::int64_t milliseconds);
  std::int64_t span() const { return mPlot.span; }
  /// Moments that are further apart are not joined, in milliseconds; 15 seconds at the beginning.
  void setLongestStep(std::int64_t milliseconds);

  /// Stands in the middle while no figure is known; for why there is none.
  void setEmptyText(const QString& text);

  /// The time that the cursor points at, nothing without one. Setting it sends no signal.
  std::optional<std::int64_t> cursor() const { return mCursor; }
  void setCursor(std::optional<std::int64_t> when);
  /// Another line that stays with a time, for what is shown elsewhere of it.
  void setMarked(std::optional<std::int64_t> when);

  /// The figures at the cursor, or the newest, in words.
  QString figures() const;
  /// The same, and between which values each series was in the time that is shown.
  QString SpokenFigures() const override;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  /// The user has moved the cursor, or taken it away.
  void cursorMoved();
  /// A click, or Return at the cursor.
  void momentChosen(qint64 when);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct LegendEntry {
    QRectF place;
    std::size_t series;
  };

  void LayOut();
  double TextHeight() const;
  QFont ScaleFont() const;
  GraphScale CurrentScale() const;
  /// Whether the text for that case stands in the middle.
  bool IsEmpty() const;
  /// Of a series at the cursor, or the newest; not a number where there is none.
  double FigureOf(const Series& series) const;
  std::optional<std::size_t> MomentAt(std::int64_t when) const;

  void DrawHeader(QPainter& painter) const;
  void DrawGround(QPainter& painter, const GraphScale& scale) const;
  void DrawTimes(QPainter& painter) const;
  void DrawLineAt(QPainter& painter, std::int64_t when, Qt::PenStyle style) const;
  void DrawCursor(QPainter& painter) const;
  void DrawFocus(QPainter& painter) const;

  void MoveCursorTo(std::optional<std::int64_t> when);
  void MoveCursorUnder(double x);
  void StepCursor(int key, bool isFar);

  QString mTitle;
  GraphUnit mUnit;
  const FigureHistory* mHistory = nullptr;
  std::vector<Series> mSeries;
  std::vector<LegendEntry> mLegend;
  GraphPlot mPlot;
  std::optional<double> mTop;
  double mLeastTop = 0;
  QString mEmptyText;
  std::optional<std::int64_t> mCursor;
  /// Where the pointer holds the cursor while time goes on.
  std::optional<double> mPointer;
  std::optional<std::int64_t> mMarked;
  bool mIsLaidOut = false;
  int mLegendRows = 1;
};

/// "14:02:11" for a time of a history.
QString MomentText(std::int64_t when);

}  // namespace lurkwell
