#include "fleet_window/FleetHistoryPane.h"

#include <QButtonGroup>
#include <QDateTime>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <string>
#include <utility>

#include "resources/Resources.h"
#include "windows/CheckedButtons.h"

namespace lurkwell {
namespace {

constexpr struct {
  int hours;
  const char* text;
} kHistorySpans[] = {{1, "fleet_span_hour"},
                     {6, "fleet_span_6_hours"},
                     {24, "fleet_span_day"},
                     {168, "fleet_span_week"}};
/// A row that is passed by with the arrow keys is not asked for.
constexpr int kPatience = 250;
constexpr std::int64_t kHour = 3'600'000;

struct GraphRow {
  const char* title;
  GraphUnit unit;
  std::vector<FleetFigure> figures;
};

std::vector<GraphRow> GraphsOf(FleetLevel level) {
  using enum FleetFigure;
  if (level == FleetLevel::kMachines)
    return {{"fleet_graph_cpu_machine", GraphUnit::kShare, {kCpu}},
            {"fleet_memory", GraphUnit::kBytes, {kMemory, kMemoryAll}},
            {"fleet_graph_waits", GraphUnit::kShare, {kWaitsCpu, kWaitsMemory, kWaitsDisk}},
            {"fleet_graph_traffic",
             GraphUnit::kBytesPerSecond,
             {kDiskRead, kDiskWritten, kReceived, kSent}}};
  return {{"fleet_graph_cpu", GraphUnit::kShare, {kCpu}},
          {"fleet_memory", GraphUnit::kBytes, {kMemory, kSwap}},
          {"fleet_graph_traffic",
           GraphUnit::kBytesPerSecond,
           {kDiskRead, kDiskWritten, kReceived, kSent}}};
}

}  // namespace

FleetHistoryPane::FleetHistoryPane(QWidget* parent)
    : QWidget(parent),
      mGraphArea(new QWidget),
      mTitle(new QLabel),
      mNote(new QLabel),
      mSpans(new QButtonGroup(this)) {
  auto bold = mTitle->font();
  bold.setBold(true);
  mTitle->setFont(bold);
  for (auto* label : {mTitle, mNote}) label->setTextFormat(Qt::PlainText);
  mNote->setWordWrap(true);
  auto* top = new QHBoxLayout;
  top->setSpacing(0);
  top->addWidget(mTitle);
  top->addSpacing(12);
  top->addWidget(mNote, 1);
  for (const auto& [hours, text] : kHistorySpans) {
    auto* button = new QToolButton;
    button->setText(LocalizedString(text));
    button->setAccessibleName(LocalizedString("fleet_span") + QLatin1Char(' ') + button->text());
    button->setCheckable(true);
    button->setChecked(hours == mHours);
    button->setFocusPolicy(Qt::StrongFocus);
    mSpans->addButton(button, hours);
    top->addWidget(button);
  }
  connect(mSpans, &QButtonGroup::idClicked, this, &FleetHistoryPane::SetHours);
  auto* graphs = new QHBoxLayout(mGraphArea);
  graphs->setContentsMargins(0, 0, 0, 0);
  graphs->setSpacing(16);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(8, 4, 8, 4);
  layout->addLayout(top);
  layout->addWidget(mGraphArea, 1);
  mPatience.setSingleShot(true);
  mPatience.setInterval(kPatience);
  connect(&mPatience, &QTimer::timeout, this, &FleetHistoryPane::Ask);
  MarkChecked(*mSpans);
  BuildGraphs(FleetLevel::kMachines);
  ShowRow({}, {});
}

void FleetHistoryPane::BuildGraphs(FleetLevel level) {
  const bool isSame =
      mLevel && (*mLevel == FleetLevel::kMachines) == (level == FleetLevel::kMachines);
  mLevel = level;
  if (isSame) return;
  for (const auto& [graph, figures] : mGraphs) delete graph;
  mGraphs.clear();
  for (auto& row : GraphsOf(level)) {
    auto* graph = new TimeGraph(LocalizedString(row.title), row.unit);
    graph->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    if (row.unit == GraphUnit::kBytesPerSecond) graph->setLeastTop(1024);
    if (row.unit == GraphUnit::kShare) graph->setLeastTop(0.01);
    connect(graph, &TimeGraph::cursorMoved, this, [this, graph] {
      for (const auto& other : mGraphs) other.graph->setCursor(graph->cursor());
    });
    mGraphArea->layout()->addWidget(graph);
    mGraphs.push_back({graph, std::move(row.figures)});
  }
}

void FleetHistoryPane::SetSession(FleetSession* session) {
  if (mSession != nullptr) mSession->disconnect(this);
  mSession = session;
  ShowRow({}, {});
  if (mSession != nullptr)
    connect(mSession, &FleetSession::historyChanged, this, &FleetHistoryPane::ShowAnswer);
}

void FleetHistoryPane::ShowRow(const QString& row, const QString& title) {
  mRow = row;
  mTitleText = title;
  if (mSession != nullptr) BuildGraphs(mSession->View().level);
  for (const auto& [graph, figures] : mGraphs) graph->setHistory(nullptr, {});
  mShown.reset();
  if (mSession != nullptr) mSession->ForgetHistory();
  mPatience.stop();
  if (!row.isEmpty()) mPatience.start();
  ShowAnswer();
}

void FleetHistoryPane::SetHours(int hours) {
  mHours = hours;
  MarkChecked(*mSpans);
  Ask();
}

void FleetHistoryPane::TableHasCome() {
  if (mRow.isEmpty() || mSession == nullptr || mSession->IsAskingHistory()) return;
  // A graph over a week is the same for minutes.
  const auto since = QDateTime::currentMSecsSinceEpoch() - mAskedAt;
  if (!mShown || since >= mShown->step) Ask();
}

void FleetHistoryPane::Ask() {
  if (mSession == nullptr || mRow.isEmpty() || !isVisible()) return;
  mPatience.stop();
  std::vector<FleetFigure> figures;
  for (const auto& graph : mGraphs)
    figures.insert(figures.end(), graph.figures.begin(), graph.figures.end());
  mAskedAt = QDateTime::currentMSecsSinceEpoch();
  const double pixels = mGraphs.front().graph->width() * devicePixelRatioF();
  mSession->AskHistory(mRow, std::move(figures), mHours * kHour, static_cast<int>(pixels));
}

void FleetHistoryPane::ShowAnswer() {
  mTitle->setText(mRow.isEmpty() ? LocalizedString("fleet_no_row") : mTitleText);
  const bool isAsking =
      mSession != nullptr && (mSession->IsAskingHistory() || mPatience.isActive());
  QString note;
  if (!mRow.isEmpty() && mSession != nullptr) {
    if (isAsking)
      note = LocalizedString("fleet_asking");
    else if (mSession->HistoryError())
      note = mSession->HistoryError()->Text();
  }
  mNote->setText(note);
  const auto* history = mSession != nullptr && !mRow.isEmpty() ? mSession->History() : nullptr;
  const auto empty =
      mRow.isEmpty() || isAsking ? QStringLiteral(" ") : LocalizedString("fleet_no_history");
  for (const auto& [graph, figures] : mGraphs) graph->setEmptyText(empty);
  if (history == nullptr || isAsking) return;
  for (const auto& [graph, figures] : mGraphs) graph->setHistory(nullptr, {});
  mShown = *history;
  std::size_t number = 0;
  for (const auto& [graph, figures] : mGraphs) {
    std::vector<TimeGraph::Series> series;
    for (const auto figure : figures) {
      const auto name =
          figures.size() > 1
              ? LocalizedString((std::string(RowOf(figure).title) + "_series").c_str())
              : QString();
      series.push_back({name, number++});
    }
    graph->setSpan(mShown->span);
    graph->setLongestStep(mShown->step * 5 / 2);
    graph->setHistory(&mShown->history, std::move(series));
  }
}

void FleetHistoryPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  // As many moments as there are pixels.
  if (mShown && mSession != nullptr && !mRow.isEmpty()) mPatience.start();
}

void FleetHistoryPane::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) MarkChecked(*mSpans);
}

void FleetHistoryPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!mRow.isEmpty() && !mShown) mPatience.start();
}

}  // namespace lurkwell
