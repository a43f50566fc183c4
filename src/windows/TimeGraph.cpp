#include "windows/TimeGraph.h"

#include <QDateTime>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStringList>
#include <QStyle>
#include <algorithm>
#include <cmath>
#include <utility>

#include "resources/Resources.h"
#include "resources/UserLocale.h"
#include "windows/CustomCells.h"
#include "windows/FocusStyle.h"

namespace lurkwell {
namespace {

constexpr double kSwatchWidth = 22;
constexpr double kGap = 6;
constexpr double kBetweenEntries = 14;
constexpr double kScaleFontFactor = 0.88;
constexpr double kLeastPlotHeight = 52;
constexpr int kMostScaleSteps = 4;
constexpr int kFarStep = 10;

/// Wide enough for what figures of the unit usually are, so that a legend stands still.
QString WidestFigure(GraphUnit unit) {
  switch (unit) {
    case GraphUnit::kShare:
      return QStringLiteral("100.0 %");
    case GraphUnit::kBytes:
      return QStringLiteral("1023.9 M");
    case GraphUnit::kBytesPerSecond:
      return QStringLiteral("1023.9 M/s");
    case GraphUnit::kNumber:
      return QStringLiteral("1000.00");
  }
  return {};
}

/// In the largest unit of which the whole span has more than one.
QString AgoText(std::int64_t milliseconds, std::int64_t span) {
  if (milliseconds == 0) return LocalizedString("graph_now");
  constexpr std::int64_t kHour = 3'600'000;
  const auto in = [milliseconds](const char* text, std::int64_t unit) {
    const double ago = static_cast<double>(milliseconds) / static_cast<double>(unit);
    return LocalizedString(text).arg(LocalNumber(ago, 'g', 3));
  };
  if (span >= 48 * kHour) return in("graph_days_ago", 24 * kHour);
  if (span >= 2 * kHour) return in("graph_hours_ago", kHour);
  return span >= 120'000 ? in("graph_minutes_ago", 60'000) : in("graph_seconds_ago", 1000);
}

/// With the date where the span has several.
QString CursorText(std::int64_t when, std::int64_t span) {
  constexpr std::int64_t kHalfDay = 12 * 3'600'000;
  if (span < kHalfDay) return MomentText(when);
  return LocalDateTimeText(QDateTime::fromMSecsSinceEpoch(when));
}

/// Behind a name: a figure keeps its order where the name is written from the right.
QString Isolated(const QString& figure, const QString& name) {
  constexpr char16_t kLeftToRightIsolate = 0x2066, kEndOfIsolate = 0x2069;
  if (!name.isRightToLeft()) return QLatin1Char(' ') + figure;
  return QLatin1Char(' ') + QChar(kLeftToRightIsolate) + figure + QChar(kEndOfIsolate);
}

/// A colour between two of the palette.
QColor Mixed(const QColor& one, const QColor& other, double share) {
  const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
  return {mix(one.red(), other.red()), mix(one.green(), other.green()),
          mix(one.blue(), other.blue())};
}

}  // namespace

QString MomentText(std::int64_t when) {
  return LocalTimeText(QDateTime::fromMSecsSinceEpoch(when).time());
}

TimeGraph::TimeGraph(const QString& title, GraphUnit unit, QWidget* parent)
    : QWidget(parent), mTitle(title), mUnit(unit) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAccessibleName(title);
  ServeAssistivePrograms();
}

void TimeGraph::setHistory(const FigureHistory* history, std::vector<Series> series) {
  mHistory = history;
  mSeries = std::move(series);
  mIsLaidOut = false;
  historyHasGrown();
}

void TimeGraph::historyHasGrown() {
  if (mHistory != nullptr && !mHistory->IsEmpty())
    mPlot.end = mHistory->TimeOf(mHistory->Size() - 1);
  if (!isVisible()) return;
  // The pointer rests, and time goes on below it.
  if (mPointer) mCursor = mPlot.TimeAt(*mPointer);
  update();
}

void TimeGraph::setTop(double top) {
  mTop = top;
  update();
}

void TimeGraph::setLeastTop(double leastTop) {
  mTop.reset();
  mLeastTop = leastTop;
  update();
}

void TimeGraph::setSpan(std::int64_t milliseconds) {
  mPlot.span = std::max<std::int64_t>(milliseconds, 1);
  update();
}

void TimeGraph::setLongestStep(std::int64_t milliseconds) {
  mPlot.longestStep = milliseconds;
  update();
}

void TimeGraph::setEmptyText(const QString& text) {
  mEmptyText = text;
  update();
}

void TimeGraph::setCursor(std::optional<std::int64_t> when) {
  if (std::exchange(mCursor, when) == when) return;
  update();
}

void TimeGraph::setMarked(std::optional<std::int64_t> when) {
  if (std::exchange(mMarked, when) != when) update();
}

std::optional<std::size_t> TimeGraph::MomentAt(std::int64_t when) const {
  if (mHistory == nullptr || mHistory->IsEmpty()) return {};
  const auto moment = mHistory->NearestTo(when);
  if (std::abs(mHistory->TimeOf(moment) - when) > mPlot.longestStep) return {};
  return moment;
}

double TimeGraph::FigureOf(const Series& series) const {
  if (mHistory == nullptr || mHistory->IsEmpty()) return FigureHistory::kMissing;
  const auto moment = mCursor ? MomentAt(*mCursor) : std::optional(mHistory->Size() - 1);
  return moment ? mHistory->ValueOf(series.number, *moment) : FigureHistory::kMissing;
}

QString TimeGraph::figures() const {
  if (IsEmpty()) return mEmptyText;
  QStringList parts;
  for (const auto& series : mSeries) {
    const auto figure = GraphFigureText(mUnit, FigureOf(series));
    parts += series.name.isEmpty() ? figure : series.name + QLatin1Char(' ') + figure;
  }
  auto text = parts.join(QStringLiteral(", "));
  if (mHistory == nullptr || mHistory->IsEmpty()) return text;
  return CursorText(mCursor.value_or(mHistory->TimeOf(mHistory->Size() - 1)), mPlot.span) +
         QStringLiteral(": ") + text;
}

QString TimeGraph::SpokenFigures() const {
  if (mHistory == nullptr || mHistory->IsEmpty() || IsEmpty()) return figures();
  auto text = figures();
  const auto first = mHistory->FirstSince(mPlot.end - mPlot.span);
  for (const auto& series : mSeries) {
    double least = FigureHistory::kMissing;
    double most = FigureHistory::kMissing;
    for (auto moment = first; moment < mHistory->Size(); ++moment) {
      const double value = mHistory->ValueOf(series.number, moment);
      // Comparisons with what is missing are false.
      if (!(least <= value)) least = std::isnan(value) ? least : value;
      if (!(most >= value)) most = std::isnan(value) ? most : value;
    }
    if (std::isnan(least)) continue;
    const auto range = LocalizedString("graph_spoken_range")
                           .arg(GraphFigureText(mUnit, least), GraphFigureText(mUnit, most));
    text += QStringLiteral("; ") +
            (series.name.isEmpty() ? range : series.name + QLatin1Char(' ') + range);
  }
  // How long it was, not how long ago.
  const auto span = AgoText(mPlot.span, mPlot.span).remove(QChar(0x2212));
  return text + QStringLiteral("; ") + LocalizedString("graph_spoken_span").arg(span);
}

bool TimeGraph::IsEmpty() const {
  if (mEmptyText.isEmpty() || mHistory == nullptr) return !mEmptyText.isEmpty();
  const auto first = mHistory->FirstSince(mPlot.end - mPlot.span);
  return std::ranges::none_of(mSeries, [&](const Series& series) {
    for (auto moment = mHistory->Size(); moment-- > first;)
      if (IsThere(mHistory->ValueOf(series.number, moment))) return true;
    return false;
  });
}

// ---- Drawing
// -------------------------------------------------------------------------------------

double TimeGraph::TextHeight() const {
  return std::ceil(QFontMetricsF(font()).height()) + 2;
}

QFont TimeGraph::ScaleFont() const {
  auto smaller = font();
  if (smaller.pointSizeF() > 0) smaller.setPointSizeF(smaller.pointSizeF() * kScaleFontFactor);
  return smaller;
}

QSize TimeGraph::minimumSizeHint() const {
  const QFontMetricsF metrics(font());
  return {static_cast<int>(metrics.averageCharWidth() * 26),
          static_cast<int>(TextHeight() * (mLegendRows + 2) + kLeastPlotHeight + kGap)};
}

QSize TimeGraph::sizeHint() const {
  const QFontMetricsF metrics(font());
  return {static_cast<int>(metrics.averageCharWidth() * 60), static_cast<int>(TextHeight() * 8)};
}

/// The title and the legend take the rows they need; the scale stands at the left, the times below.
void TimeGraph::LayOut() {
  if (std::exchange(mIsLaidOut, true)) return;
  mLegend.clear();
  auto bold = font();
  bold.setBold(true);
  const QFontMetricsF metrics(font());
  const double figure = std::max(metrics.horizontalAdvance(WidestFigure(mUnit)),
                                 metrics.horizontalAdvance(LocalizedString("graph_missing")));
  const double height = TextHeight();
  double x = QFontMetricsF(bold).horizontalAdvance(mTitle) + kBetweenEntries;
  double y = 0;
  for (std::size_t i = 0; i < mSeries.size(); ++i) {
    const double wide = kSwatchWidth + kGap +
                        metrics.horizontalAdvance(mSeries[i].name + QLatin1Char(' ')) + figure;
    if (x > 0 && x + wide > width()) {
      x = 0;
      y += height;
    }
    mLegend.push_back({QRectF(x, y, wide, height), i});
    x += wide + kBetweenEntries;
  }
  const int rows = static_cast<int>(y / height) + 1;
  if (std::exchange(mLegendRows, rows) != rows) updateGeometry();
  const QFontMetricsF scale(ScaleFont());
  const double left = std::ceil(scale.horizontalAdvance(QStringLiteral("1000 M/s"))) + kGap;
  const double top = y + height + kGap;
  const double below = this->height() - top > kLeastPlotHeight + height ? scale.height() : 0;
  mPlot.area = QRectF(left, top, std::max(width() - left - 1, 1.0),
                      std::max(this->height() - top - below - 2, 1.0));
}

GraphScale TimeGraph::CurrentScale() const {
  const auto room = static_cast<int>(mPlot.area.height() / (TextHeight() * 1.4));
  const int steps = std::clamp(room, 1, kMostScaleSteps);
  if (mTop) return GraphScaleTo(*mTop, mUnit, steps);
  double most = mLeastTop;
  if (mHistory != nullptr)
    for (const auto& series : mSeries)
      most = std::max(most, mPlot.Greatest(*mHistory, series.number));
  return NiceGraphScale(most, mUnit, steps);
}

void TimeGraph::paintEvent(QPaintEvent*) {
  LayOut();
  QPainter painter(this);
  // Time goes on to the right in every language, and the scale stands at the left.
  painter.setLayoutDirection(Qt::LeftToRight);
  DrawHeader(painter);
  if (IsEmpty()) {
    painter.fillRect(mPlot.area, palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Text));
    if (mEmptyText.isRightToLeft()) painter.setLayoutDirection(Qt::RightToLeft);
    painter.drawText(mPlot.area, Qt::AlignCenter | Qt::TextWordWrap, mEmptyText);
    return DrawFocus(painter);
  }
  const auto scale = CurrentScale();
  mPlot.top = scale.top;
  DrawGround(painter, scale);
  DrawTimes(painter);
  const bool isDark = IsDark(palette());
  // The first lies on top.
  if (mHistory != nullptr)
    for (auto i = mSeries.size(); i-- > 0;)
      mPlot.Draw(painter, *mHistory, mSeries[i].number, LookOfSeries(i, isDark));
  if (mMarked) DrawLineAt(painter, *mMarked, Qt::SolidLine);
  DrawCursor(painter);
  DrawFocus(painter);
}

void TimeGraph::DrawFocus(QPainter& painter) const {
  if (ShowsFocus(*this))
    DrawFocusFrame(painter, mPlot.area.toAlignedRect(), palette(), palette().color(QPalette::Base));
}

void TimeGraph::DrawHeader(QPainter& painter) const {
  painter.setPen(palette().color(QPalette::WindowText));
  auto bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.drawText(QRectF(0, 0, width(), TextHeight()), Qt::AlignLeft | Qt::AlignVCenter, mTitle);
  painter.setFont(font());
  if (IsEmpty()) return;
  const PixelGrid grid(painter);
  const double wide = grid.WholeWidth(2);
  for (const auto& [place, number] : mLegend) {
    const auto& series = mSeries[number];
    const auto look = LookOfSeries(number, IsDark(palette()));
    const double y = grid.Y(place.center().y(), wide);
    painter.setPen(grid.Pen(look.colour, wide, look.style));
    painter.drawLine(QPointF(place.left(), y), QPointF(place.left() + kSwatchWidth, y));
    painter.setPen(palette().color(QPalette::WindowText));
    const auto text = place.adjusted(kSwatchWidth + kGap, 0, 0, 0);
    const auto figure = GraphFigureText(mUnit, FigureOf(series));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                     series.name.isEmpty() ? figure : series.name + Isolated(figure, series.name));
  }
}

void TimeGraph::DrawGround(QPainter& painter, const GraphScale& scale) const {
  const auto& area = mPlot.area;
  const auto base = palette().color(QPalette::Base);
  const auto text = palette().color(QPalette::Text);
  painter.fillRect(area, base);
  const PixelGrid grid(painter);
  const double wide = grid.WholeWidth(1);
  painter.setFont(ScaleFont());
  const double half = QFontMetricsF(painter.font()).height() / 2;
  for (int step = 0; step * scale.step <= scale.top * (1 + 1e-9); ++step) {
    const double value = step * scale.step;
    const double y = grid.Y(mPlot.YOf(value), wide);
    painter.setPen(grid.Pen(Mixed(base, text, step == 0 ? 0.5 : 0.18), wide));
    painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
    const double top = std::clamp(y - half, area.top() - half, height() - 2 * half);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(0, top, area.left() - kGap, 2 * half),
                     Qt::AlignRight | Qt::AlignVCenter, GraphScaleText(mUnit, value));
  }
}

/// At the left border how long ago that is, and the same at parts of it.
void TimeGraph::DrawTimes(QPainter& painter) const {
  const auto& area = mPlot.area;
  if (height() - area.bottom() < QFontMetricsF(ScaleFont()).height()) return;
  const auto base = palette().color(QPalette::Base);
  const PixelGrid grid(painter);
  const double wide = grid.WholeWidth(1);
  painter.setFont(ScaleFont());
  constexpr int kParts = 5;
  double free = 0;
  const double last =
      width() - kGap - QFontMetricsF(painter.font()).horizontalAdvance(AgoText(0, mPlot.span));
  for (int part = 0; part <= kParts; ++part) {
    const auto ago = mPlot.span * (kParts - part) / kParts;
    const double x = grid.X(mPlot.XOf(mPlot.end - ago), wide);
    painter.setPen(grid.Pen(Mixed(base, palette().color(QPalette::Text), 0.18), wide));
    painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
    const auto text = AgoText(ago, mPlot.span);
    painter.setPen(palette().color(QPalette::WindowText));
    const double textWidth = QFontMetricsF(painter.font()).horizontalAdvance(text) + 2;
    const double left = std::clamp(x - textWidth / 2, area.left(), width() - textWidth);
    // Where there is no room for all, those at the borders stay.
    const bool hasRoom = left >= free && (part == kParts || left + textWidth <= last);
    if (!hasRoom) continue;
    free = left + textWidth + kGap;
    painter.drawText(QRectF(left, area.bottom() + 1, textWidth, height() - area.bottom() - 1),
                     Qt::AlignCenter, text);
  }
}

void TimeGraph::DrawLineAt(QPainter& painter, std::int64_t when, Qt::PenStyle style) const {
  const PixelGrid grid(painter);
  const double wide = grid.WholeWidth(1);
  const double x = grid.X(mPlot.XOf(when), wide);
  if (x < mPlot.area.left() || x > mPlot.area.right() + 1) return;
  painter.setPen(grid.Pen(palette().color(QPalette::Text), wide, style));
  painter.drawLine(QPointF(x, mPlot.area.top()), QPointF(x, mPlot.area.bottom()));
}

void TimeGraph::DrawCursor(QPainter& painter) const {
  if (!mCursor) return;
  DrawLineAt(painter, *mCursor, Qt::DashLine);
  if (!hasFocus() && !mPointer) return;
  painter.setFont(ScaleFont());
  const auto text = CursorText(*mCursor, mPlot.span);
  const QFontMetricsF metrics(painter.font());
  const double wide = metrics.horizontalAdvance(text) + 2 * kGap;
  const auto& area = mPlot.area;
  const double x = mPlot.XOf(*mCursor);
  if (x < area.left() - 1) return;
  const double left = x + wide < area.right() ? x + 2 : x - wide - 2;
  const QRectF box(std::max(left, area.left()), area.top() + 2, wide, metrics.height());
  painter.fillRect(box, palette().color(QPalette::ToolTipBase));
  painter.setPen(palette().color(QPalette::ToolTipText));
  painter.drawText(box, Qt::AlignCenter, text);
}

// ---- Pointer and keys
// ----------------------------------------------------------------------------

void TimeGraph::MoveCursorTo(std::optional<std::int64_t> when) {
  if (std::exchange(mCursor, when) == when) return;
  update();
  if (hasFocus()) TellFiguresAreOthers(*this);
  Q_EMIT cursorMoved();
}

void TimeGraph::MoveCursorUnder(double x) {
  LayOut();
  if (mHistory == nullptr || mHistory->IsEmpty()) return;
  mPointer = x;
  MoveCursorTo(mPlot.TimeAt(x));
}

void TimeGraph::mouseMoveEvent(QMouseEvent* event) {
  MoveCursorUnder(event->position().x());
}

void TimeGraph::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  MoveCursorUnder(event->position().x());
  if (mCursor) Q_EMIT momentChosen(*mCursor);
}

void TimeGraph::leaveEvent(QEvent*) {
  if (!std::exchange(mPointer, std::nullopt)) return;
  MoveCursorTo(std::nullopt);
}

void TimeGraph::StepCursor(int key, bool isFar) {
  if (mHistory == nullptr || mHistory->IsEmpty()) return;
  mPointer.reset();
  const auto last = static_cast<std::int64_t>(mHistory->Size()) - 1;
  const auto first = std::min<std::int64_t>(
      static_cast<std::int64_t>(mHistory->FirstSince(mPlot.end - mPlot.span)), last);
  auto place = mCursor ? static_cast<std::int64_t>(mHistory->NearestTo(*mCursor)) : last;
  const int step = isFar ? kFarStep : 1;
  if (key == Qt::Key_Home) place = first;
  if (key == Qt::Key_End) place = last;
  // Without a cursor the newest figures are shown: they are where it begins.
  if (key == Qt::Key_Left && (mCursor || isFar)) place -= step;
  if (key == Qt::Key_Right) place += step;
  MoveCursorTo(mHistory->TimeOf(static_cast<std::size_t>(std::clamp(place, first, last))));
}

void TimeGraph::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
      return StepCursor(event->key(), event->modifiers().testFlag(Qt::ControlModifier));
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (mCursor) Q_EMIT momentChosen(*mCursor);
      return;
    case Qt::Key_Escape:
      if (!mCursor) break;
      mPointer.reset();
      return MoveCursorTo(std::nullopt);
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

bool TimeGraph::event(QEvent* event) {
  if (event->type() == QEvent::Resize) {
    mIsLaidOut = false;
    LayOut();
  }
  // The window's own use of the key comes after the cursor's.
  if (event->type() == QEvent::ShortcutOverride && mCursor &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
    event->accept();
  return QWidget::event(event);
}

void TimeGraph::changeEvent(QEvent* event) {
  mIsLaidOut = false;
  QWidget::changeEvent(event);
}

}  // namespace lurkwell
