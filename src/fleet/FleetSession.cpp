#include "fleet/FleetSession.h"

#include <QDateTime>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace lurkwell {
namespace {

/// Servers ask machines no more often.
constexpr std::int64_t kLeastStep = 15'000;
/// A rate needs two of a server's visits, which are a minute apart at most.
constexpr double kLeastWindow = 150;
constexpr int kMostHistoryPoints = 4000;

}  // namespace

FleetSession::FleetSession(QUrl address, QObject* parent)
    : FleetSession(std::move(address), PrometheusClient::Limits(), parent) {}

FleetSession::FleetSession(QUrl address, PrometheusClient::Limits limits, QObject* parent)
    : QObject(parent), mClient(std::move(address), limits) {
  mNext.setSingleShot(true);
  connect(&mNext, &QTimer::timeout, this, &FleetSession::Ask);
}

FleetSession::~FleetSession() = default;

void FleetSession::SetCredentials(FleetCredentials credentials) {
  mClient.SetCredentials(std::move(credentials));
}

void FleetSession::Show(const FleetView& view, const FleetFilter& filter) {
  mView = view;
  mFilter = filter;
  mIsCurrent = false;
  Ask();
}

void FleetSession::Refresh() {
  Ask();
}

void FleetSession::SetInterval(int milliseconds) {
  mInterval = milliseconds;
  if (mInterval <= 0) {
    mNext.stop();
  } else if (!IsAsking() && (mTable || mError)) {
    mNext.start(mInterval);
  }
}

void FleetSession::Ask() {
  mNext.stop();
  mRequest =
      mClient.Ask(TableQuery(mView, mFilter), {kFigureLabel, RowLabel(mView.level)},
                  [this](PrometheusClient::Outcome outcome) { TakeTable(std::move(outcome)); });
  Q_EMIT changed();
}

void FleetSession::TakeTable(PrometheusClient::Outcome outcome) {
  mRequest.reset();
  if (auto* error = std::get_if<FleetError>(&outcome)) {
    mError = std::move(*error);
  } else {
    mTable = ReadFleetTable(std::get<PrometheusAnswer>(outcome), mView);
    mError.reset();
    mIsCurrent = true;
    FillInSeen();
    AskWhenSeen();
  }
  // The same name and password once more would be taken for an attack.
  const bool maySucceed = !mError || mError->kind != FleetError::Kind::kCredentials;
  if (mInterval > 0 && maySucceed) mNext.start(mInterval);
  Q_EMIT changed();
}

void FleetSession::FillInSeen() {
  if (mView.level != FleetLevel::kMachines) return;
  for (auto& row : mTable->rows) {
    if (!row.IsDown()) {
      // Of a machine that is there for seconds alone the server has no answer afterwards.
      if (const auto now = row.Of(FleetFigure::kSeen); std::isfinite(now)) {
        mSeen[row.name] = now;
      } else {
        mSeen.remove(row.name);
      }
    } else if (const auto seen = mSeen.constFind(row.name);
               seen != mSeen.cend() && *seen > 0 && !std::isfinite(row.Of(FleetFigure::kSeen))) {
      row.Set(FleetFigure::kSeen, *seen);
    }
  }
}

void FleetSession::AskWhenSeen() {
  // That takes its time, and may last longer than tables are apart.
  if (mSeenRequest != nullptr) return;
  QStringList unknown;
  for (const auto& row : mTable->rows)
    if (row.IsDown() && !mSeen.contains(row.name) && unknown.size() < kMostDownRows)
      unknown.append(row.name);
  if (unknown.isEmpty() || mView.level != FleetLevel::kMachines) return;
  mSeenRequest = mClient.Ask(SeenQuery(unknown), {"instance"},
                             [this, unknown](const PrometheusClient::Outcome& outcome) {
                               mSeenRequest.reset();
                               const auto* answer = std::get_if<PrometheusAnswer>(&outcome);
                               if (answer == nullptr) return;
                               for (const auto& name : unknown) mSeen[name] = 0;
                               for (const auto& series : answer->series)
                                 if (mSeen.contains(series.labels[0]))
                                   mSeen[series.labels[0]] = series.points.front().second;
                               FillInSeen();
                               Q_EMIT changed();
                             });
}

void FleetSession::AskHistory(const QString& row, std::vector<FleetFigure> figures,
                              std::int64_t span, int points) {
  FleetHistory asked;
  asked.span = span;
  const auto steps = std::clamp(points, 10, kMostHistoryPoints);
  asked.step = std::max(kLeastStep, (span + steps - 1) / steps / 1000 * 1000);
  asked.figures = std::move(figures);
  const double step = static_cast<double>(asked.step) / 1000;
  // By its own clock the server might have nothing yet of the last moments.
  const double now = static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000;
  const double known = mTable && mTable->time > 0 ? mTable->time : now;
  const double end = std::floor(known / step) * step;
  const auto query = HistoryQuery(mView, row, asked.figures, std::max(step, kLeastWindow));
  const PrometheusRange range{end - static_cast<double>(span) / 1000, end, step};
  mHistoryRequest = mClient.AskRange(query, range, {kFigureLabel},
                                     [this, asked, end](PrometheusClient::Outcome outcome) {
                                       TakeHistory(std::move(outcome), asked, end);
                                     });
  Q_EMIT historyChanged();
}

void FleetSession::ForgetHistory() {
  mHistoryRequest.reset();
  mHistory.reset();
  mHistoryError.reset();
  Q_EMIT historyChanged();
}

void FleetSession::TakeHistory(PrometheusClient::Outcome outcome, const FleetHistory& asked,
                               double end) {
  mHistoryRequest.reset();
  if (auto* error = std::get_if<FleetError>(&outcome)) {
    mHistoryError = std::move(*error);
    Q_EMIT historyChanged();
    return;
  }
  mHistoryError.reset();
  const auto count = static_cast<std::size_t>(asked.span / asked.step) + 1;
  const std::vector<float> nothing(count, FigureHistory::kMissing);
  std::vector<std::vector<float>> columns(asked.figures.size(), nothing);
  for (const auto& series : std::get<PrometheusAnswer>(outcome).series) {
    const auto figure = FleetFigureNamed(series.labels[0].toStdString());
    const auto place = std::ranges::find(asked.figures, figure.value_or(FleetFigure::kUp));
    if (!figure || place == asked.figures.end()) continue;
    auto& column = columns[static_cast<std::size_t>(place - asked.figures.begin())];
    for (const auto& [time, value] : series.points) {
      const double ago = (end - time) * 1000 / static_cast<double>(asked.step);
      if (ago < -0.5 || ago > static_cast<double>(count) - 0.5 || value < 0) continue;
      column[count - 1 - static_cast<std::size_t>(std::llround(std::max(ago, 0.0)))] =
          static_cast<float>(
              std::min(value, static_cast<double>(std::numeric_limits<float>::max())));
    }
  }
  mHistory.emplace(asked);
  mHistory->history = FigureHistory(count);
  for (std::size_t i = 0; i < columns.size(); ++i) mHistory->history.AddSeries();
  std::vector<float> values(columns.size());
  // Moments without figures are told, too: the graph ends now, whatever the machine does.
  for (std::size_t moment = 0; moment < count; ++moment) {
    for (std::size_t i = 0; i < columns.size(); ++i) values[i] = columns[i][moment];
    const auto ago = static_cast<std::int64_t>(count - 1 - moment) * asked.step;
    mHistory->history.Add(std::llround(end * 1000) - ago, values);
  }
  Q_EMIT historyChanged();
}

}  // namespace lurkwell
