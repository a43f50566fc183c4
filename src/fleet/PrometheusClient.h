#pragma once

#include <QByteArray>
#include <QObject>
#include <QUrl>
#include <functional>
#include <memory>
#include <variant>
#include <vector>

#include "fleet/FleetCredentials.h"
#include "fleet/FleetError.h"
#include "fleet/PrometheusAnswer.h"

class QNetworkAccessManager;

namespace lurkwell {

/// A question that has been sent. Destroying it takes it back: nothing is answered any more. It
/// goes before its client.
class PrometheusRequest {
 public:
  virtual ~PrometheusRequest() = default;
};

/// Moments of a history: seconds since the epoch, and between two of them.
struct PrometheusRange {
  double start = 0;
  double end = 0;
  double step = 0;
};

/// Asks a server of Prometheus's API. Nothing waits: answers come from the event loop. Every
/// question ends within its time, whatever the server does, with an answer of bounded size; a
/// redirection is followed within the same server alone, and a certificate that does not hold ends
/// it. Main thread only.
class PrometheusClient final : public QObject {
  Q_OBJECT

 public:
  struct Limits {
    /// Milliseconds from the question to the answer's last byte.
    int time = 30'000;
    /// Of an answer, unpacked.
    qsizetype bytes = qsizetype{8} << 20;
  };
  using Outcome = std::variant<PrometheusAnswer, FleetError>;
  using Answered = std::function<void(Outcome)>;

  /// The address is one of ReadFleetAddress.
  PrometheusClient(QUrl address, Limits limits);
  explicit PrometheusClient(QUrl address);
  ~PrometheusClient() override;

  const QUrl& Address() const { return mAddress; }
  /// For the questions from then on.
  void SetCredentials(FleetCredentials credentials) { mCredentials = std::move(credentials); }
  bool HasCredentials() const { return !mCredentials.IsEmpty(); }

  /// What a query says now. Of each series, the labels that are named are kept; they are texts that
  /// stay. `answered` is called once, from the event loop; it may destroy the request.
  std::unique_ptr<PrometheusRequest> Ask(const QString& query, std::vector<const char*> labels,
                                         Answered answered);
  /// What it said at the moments of a range.
  std::unique_ptr<PrometheusRequest> AskRange(const QString& query, PrometheusRange range,
                                              std::vector<const char*> labels, Answered answered);

 private:
  class Request;

  QUrl mAddress;
  Limits mLimits;
  FleetCredentials mCredentials;
  std::unique_ptr<QNetworkAccessManager> mNetwork;
};

}  // namespace lurkwell
