#include "machine_window/ProcessorGrid.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStringList>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "resources/Resources.h"
#include "windows/CustomCells.h"
#include "windows/FocusStyle.h"
#include "windows/GraphPlot.h"
#include "windows/GraphScale.h"

namespace lurkwell {
namespace {

constexpr double kBestShape = 1.9;  // width by height of a cell
constexpr double kGap = 3;
constexpr double kTextFactor = 0.85;
constexpr double kLeastLineWidth = 28;
constexpr int kTextGround = 215;

}  // namespace

ProcessorGrid::ProcessorGrid(const QString& title, QWidget* parent)
    : QWidget(parent), mTitle(title) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(title);
  ServeAssistivePrograms();
}

void ProcessorGrid::setHistory(const FigureHistory* history, std::vector<Processor> processors) {
  mHistory = history;
  mProcessors = std::move(processors);
  mChosen.reset();
  historyHasGrown();
}

void ProcessorGrid::historyHasGrown() {
  if (mHistory != nullptr && !mHistory->IsEmpty()) mEnd = mHistory->TimeOf(mHistory->Size() - 1);
  if (!isVisible()) return;
  update();
}

void ProcessorGrid::setSpan(std::int64_t milliseconds) {
  mSpan = milliseconds;
  update();
}

void ProcessorGrid::setCursor(std::optional<std::int64_t> when) {
  if (std::exchange(mCursor, when) != when) update();
}

QSize ProcessorGrid::sizeHint() const {
  const QFontMetricsF metrics(font());
  return {static_cast<int>(metrics.averageCharWidth() * 60),
          static_cast<int>(metrics.height() * 8)};
}

QSize ProcessorGrid::minimumSizeHint() const {
  const QFontMetricsF metrics(font());
  return {static_cast<int>(metrics.averageCharWidth() * 26),
          static_cast<int>(metrics.height() * 6)};
}

int ProcessorGrid::columnsFor(int processors, const QSizeF& size) {
  int best = 1;
  double least = HUGE_VAL;
  for (int columns = 1; columns <= processors; ++columns) {
    const int rows = (processors + columns - 1) / columns;
    const double shape = size.width() / columns / std::max(size.height() / rows, 0.01);
    const double empty = static_cast<double>(rows * columns - processors) / processors;
    const double cost = std::abs(std::log(shape / kBestShape)) + empty;
    if (cost >= least) continue;
    least = cost;
    best = columns;
  }
  return best;
}

QRectF ProcessorGrid::Area() const {
  const double top = std::ceil(QFontMetricsF(font()).height()) + 4;
  return {0, top, static_cast<double>(width()), std::max(height() - top, 1.0)};
}

QRectF ProcessorGrid::CellOf(std::size_t place) const {
  const auto area = Area();
  const auto count = static_cast<int>(mProcessors.size());
  const int columns = columnsFor(count, area.size());
  const int rows = (count + columns - 1) / columns;
  const auto number = static_cast<int>(place);
  const double wide = area.width() / columns;
  const double high = area.height() / rows;
  const double gap = std::min(kGap, std::min(wide, high) / 6);
  const int row = number / columns;
  const int column = number % columns;
  return {area.left() + wide * column, area.top() + high * row, wide - gap, high - gap};
}

std::optional<std::size_t> ProcessorGrid::CellAt(const QPointF& place) const {
  for (std::size_t i = 0; i < mProcessors.size(); ++i)
    if (CellOf(i).contains(place)) return i;
  return {};
}

double ProcessorGrid::ShareOf(std::size_t place) const {
  if (mHistory == nullptr || mHistory->IsEmpty()) return FigureHistory::kMissing;
  const auto moment = mCursor ? mHistory->NearestTo(*mCursor) : mHistory->Size() - 1;
  return mHistory->ValueOf(mProcessors[place].series, moment);
}

std::optional<std::size_t> ProcessorGrid::Busiest() const {
  std::optional<std::size_t> busiest;
  for (std::size_t i = 0; i < mProcessors.size(); ++i)
    if (ShareOf(i) >= 0 && (!busiest || ShareOf(i) > ShareOf(*busiest))) busiest = i;
  return busiest;
}

QString ProcessorGrid::FigureOf(std::size_t place) const {
  return LocalizedString("machine_processor")
      .arg(QString::number(mProcessors[place].number),
           GraphFigureText(GraphUnit::kShare, ShareOf(place)));
}

QString ProcessorGrid::figures() const {
  const auto place = mChosen ? mChosen : Busiest();
  return place ? FigureOf(*place) : LocalizedString("machine_no_processors");
}

QString ProcessorGrid::SpokenFigures() const {
  if (mChosen || mProcessors.empty()) return figures();
  QStringList all;
  for (std::size_t i = 0; i < mProcessors.size(); ++i) all.append(FigureOf(i));
  return all.join(QStringLiteral(", "));
}

void ProcessorGrid::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setLayoutDirection(Qt::LeftToRight);
  auto bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(palette().color(QPalette::WindowText));
  const QRectF header(0, 0, width(), Area().top());
  painter.drawText(header, Qt::AlignLeft | Qt::AlignTop, mTitle);
  const double left = QFontMetricsF(bold).horizontalAdvance(mTitle) + 14;
  painter.setFont(font());
  painter.drawText(header.adjusted(left, 0, 0, 0), Qt::AlignLeft | Qt::AlignTop, figures());
  for (std::size_t i = 0; i < mProcessors.size(); ++i) DrawCell(painter, i);
  if (!mChosen && ShowsFocus(*this))
    DrawFocusFrame(painter, Area(), palette(), palette().color(QPalette::Base));
}

void ProcessorGrid::DrawCell(QPainter& painter, std::size_t place) const {
  const auto cell = CellOf(place);
  painter.fillRect(cell, palette().color(QPalette::Base));
  GraphPlot plot;
  plot.area = cell;
  plot.end = mEnd;
  plot.span = mSpan;
  const auto look = LookOfSeries(0, IsDark(palette()));
  // A line on so few pixels would be a blot: its height at the moment says more.
  if (cell.width() < kLeastLineWidth) {
    const double share = std::clamp(ShareOf(place), 0.0, 1.0);
    if (share > 0)
      painter.fillRect(cell.adjusted(0, cell.height() * (1 - share), 0, 0), look.colour);
  } else if (mHistory != nullptr) {
    plot.Draw(painter, *mHistory, mProcessors[place].series, look);
  }
  auto small = font();
  if (small.pointSizeF() > 0) small.setPointSizeF(small.pointSizeF() * kTextFactor);
  const QFontMetricsF metrics(small);
  const auto number = QString::number(mProcessors[place].number);
  const auto text = number + QStringLiteral("  ") +
                    GraphFigureText(GraphUnit::kShare, std::round(ShareOf(place) * 100) / 100);
  painter.setFont(small);
  painter.setPen(palette().color(QPalette::Text));
  const auto inner = cell.adjusted(3, 1, -2, -1);
  const bool hasRoom = inner.height() > metrics.height() * 1.8;
  const bool fits = inner.width() > metrics.horizontalAdvance(text);
  if (hasRoom && inner.width() > metrics.horizontalAdvance(number)) {
    const auto& shown = fits ? text : number;
    auto ground = palette().color(QPalette::Base);
    ground.setAlpha(kTextGround);
    painter.fillRect(
        QRectF(inner.topLeft(), QSizeF(metrics.horizontalAdvance(shown) + 2, metrics.height())),
        ground);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop, shown);
  }
  if (mChosen != place || !hasFocus()) return;
  DrawFocusFrame(painter, cell, palette(), palette().color(QPalette::Base));
}

bool ProcessorGrid::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const auto place = CellAt(help->pos());
  QToolTip::showText(help->globalPos(), place ? FigureOf(*place) : QString(), this);
  return true;
}

void ProcessorGrid::mousePressEvent(QMouseEvent* event) {
  const auto place = CellAt(event->position());
  if (event->button() != Qt::LeftButton || !place) return event->ignore();
  MoveTo(*place);
  GraphPlot plot;
  plot.area = CellOf(*place);
  plot.end = mEnd;
  plot.span = mSpan;
  Q_EMIT momentChosen(plot.TimeAt(event->position().x()));
}

void ProcessorGrid::MoveTo(std::size_t place) {
  mChosen = place;
  TellFiguresAreOthers(*this);
  update();
}

void ProcessorGrid::keyPressEvent(QKeyEvent* event) {
  const auto count = static_cast<int>(mProcessors.size());
  if (count == 0) return QWidget::keyPressEvent(event);
  const int columns = columnsFor(count, Area().size());
  const int before = mChosen ? static_cast<int>(*mChosen) : 0;
  int place = before;
  switch (event->key()) {
    case Qt::Key_Left:
      place -= 1;
      break;
    case Qt::Key_Right:
      place += mChosen ? 1 : 0;
      break;
    case Qt::Key_Up:
      place -= columns;
      break;
    case Qt::Key_Down:
      place += mChosen ? columns : 0;
      break;
    case Qt::Key_Home:
      place = 0;
      break;
    case Qt::Key_End:
      place = count - 1;
      break;
    default:
      return QWidget::keyPressEvent(event);
  }
  MoveTo(static_cast<std::size_t>(place >= 0 && place < count ? place : before));
}

}  // namespace lurkwell
