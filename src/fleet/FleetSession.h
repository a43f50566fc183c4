#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "fleet/FleetFilter.h"
#include "fleet/FleetTable.h"
#include "fleet/PrometheusClient.h"
#include "windows/FigureHistory.h"

namespace lurkwell {

/// Figures of one row over time.
struct FleetHistory {
  FigureHistory history{1};
  /// Which figures the series of the history are, in their order.
  std::vector<FleetFigure> figures;
  /// Milliseconds.
  std::int64_t span = 0;
  std::int64_t step = 0;
};

/// What a window on a fleet shows: asks one server again and again, and keeps the last figures that
/// it gave. One question for the table and one for a history are on their way at most; a newer one
/// takes the older one back. Main thread only.
class FleetSession final : public QObject {
  Q_OBJECT

 public:
  explicit FleetSession(QUrl address, QObject* parent = nullptr);
  FleetSession(QUrl address, PrometheusClient::Limits limits, QObject* parent);
  ~FleetSession() override;

  const QUrl& Address() const { return mClient.Address(); }
  void SetCredentials(FleetCredentials credentials);
  bool HasCredentials() const { return mClient.HasCredentials(); }

  const FleetView& View() const { return mView; }
  /// Asks at once.
  void Show(const FleetView& view, const FleetFilter& filter);
  /// Asks once more.
  void Refresh();
  /// How long after an answer it asks again, in milliseconds; 0 for never.
  void SetInterval(int milliseconds);

  /// The last that was given; nothing before the first. It may be of another view, see IsCurrent.
  const std::optional<FleetTable>& Table() const { return mTable; }
  /// Whether the table is what was asked for last and nothing has failed since.
  bool IsCurrent() const { return mTable && mIsCurrent && !mError; }
  bool IsAsking() const { return mRequest != nullptr; }
  /// Why the last question has no answer; nothing when it has.
  const std::optional<FleetError>& Error() const { return mError; }

  /// Asks for figures of a row of the view over the last `span` milliseconds, in about `points`
  /// steps.
  void AskHistory(const QString& row, std::vector<FleetFigure> figures, std::int64_t span,
                  int points);
  void ForgetHistory();
  /// Null until it has been answered.
  const FleetHistory* History() const { return mHistory ? &*mHistory : nullptr; }
  const std::optional<FleetError>& HistoryError() const { return mHistoryError; }
  bool IsAskingHistory() const { return mHistoryRequest != nullptr; }

 Q_SIGNALS:
  /// Something of the table, the error or the asking is different.
  void changed();
  /// The same for the history.
  void historyChanged();

 private:
  void Ask();
  void TakeTable(PrometheusClient::Outcome outcome);
  void FillInSeen();
  void AskWhenSeen();
  void TakeHistory(PrometheusClient::Outcome outcome, const FleetHistory& asked, double end);

  PrometheusClient mClient;
  FleetView mView;
  FleetFilter mFilter;
  QTimer mNext;
  int mInterval = 0;
  std::optional<FleetTable> mTable;
  std::optional<FleetError> mError;
  bool mIsCurrent = false;
  /// When machines were seen last; 0 for longer ago than is asked for.
  QHash<QString, double> mSeen;
  std::optional<FleetHistory> mHistory;
  std::optional<FleetError> mHistoryError;
  // Go before the client.
  std::unique_ptr<PrometheusRequest> mRequest, mSeenRequest, mHistoryRequest;
};

}  // namespace lurkwell
