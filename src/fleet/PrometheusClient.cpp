#include "fleet/PrometheusClient.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslCertificate>
#include <QSslError>
#include <QSslSocket>
#include <QTimer>
#include <utility>

namespace lurkwell {
namespace {

using Kind = FleetError::Kind;

constexpr int kMostRedirections = 3;
constexpr qint64 kBufferBytes = qint64{1} << 20;
/// A page about a failure is read no further.
constexpr qsizetype kMostBytesOfFailure = 65'536;

bool IsSameServer(const QUrl& one, const QUrl& other) {
  const int usual = one.scheme() == QLatin1String("https") ? 443 : 80;
  return one.scheme() == other.scheme() && one.host() == other.host() &&
         one.port(usual) == other.port(usual);
}

QByteArray FormOf(std::initializer_list<std::pair<const char*, QString>> fields) {
  QByteArray form;
  for (const auto& [name, value] : fields) {
    if (!form.isEmpty()) form += '&';
    form += name + ('=' + QUrl::toPercentEncoding(value));
  }
  return form;
}

QString CertificateComplaint(const QList<QSslError>& errors) {
  QStringList parts;
  for (const auto& error : errors) {
    const auto text = OneLine(error.errorString(), 120);
    if (!parts.contains(text)) parts.append(text);
    if (parts.size() == 3) break;
  }
  const auto certificate = errors.isEmpty() ? QSslCertificate() : errors.front().certificate();
  if (!certificate.isNull()) {
    const auto names = certificate.subjectInfo(QSslCertificate::CommonName);
    parts.append(OneLine(names.join(QLatin1String(", ")), 120) + QLatin1String(" < ") +
                 OneLine(certificate.issuerDisplayName(), 120));
  }
  return parts.join(QLatin1String("; "));
}

}  // namespace

class PrometheusClient::Request final : public QObject, public PrometheusRequest {
 public:
  Request(PrometheusClient& client, const char* path, QByteArray form,
          std::vector<const char*> labels, Answered answered)
      : mClient(client),
        mForm(std::move(form)),
        mLabels(std::move(labels)),
        mAnswered(std::move(answered)) {
    mDeadline.setSingleShot(true);
    connect(&mDeadline, &QTimer::timeout, this, [this] {
      Finish(FleetError{Kind::kTimedOut, QString::number(mClient.mLimits.time / 1000)});
    });
    mDeadline.start(mClient.mLimits.time);
    auto url = mClient.mAddress;
    url.setPath(url.path() + QLatin1String(path));
    if (url.scheme() == QLatin1String("https") && !QSslSocket::supportsSsl()) {
      // Not before the caller has this.
      QTimer::singleShot(0, this, [this] { Finish(FleetError{Kind::kNoEncryption, {}}); });
      return;
    }
    Send(url);
  }

  ~Request() override { LetGo(); }

 private:
  void LetGo() {
    if (auto* reply = std::exchange(mReply, nullptr)) {
      reply->disconnect(this);
      if (reply->isRunning()) reply->abort();
      reply->deleteLater();
    }
  }

  void Send(const QUrl& url) {
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QByteArrayLiteral("application/x-www-form-urlencoded"));
    request.setRawHeader("Accept", "application/json");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    if (mClient.HasCredentials())
      request.setRawHeader("Authorization", mClient.mCredentials.Header());
    mBody.clear();
    mReply = mClient.mNetwork->post(request, mForm);
    mReply->setReadBufferSize(kBufferBytes);
    connect(mReply, &QNetworkReply::readyRead, this, [this] { Take(); });
    connect(mReply, &QNetworkReply::finished, this, [this] { End(); });
    connect(mReply, &QNetworkReply::sslErrors, this, [this](const QList<QSslError>& errors) {
      mCertificate = CertificateComplaint(errors);
    });
  }

  int Status() const { return mReply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(); }

  /// False when that was the end, and perhaps this one's.
  bool Take() {
    mBody += mReply->readAll();
    if (Status() != 200 && mBody.size() > kMostBytesOfFailure) {
      mBody.truncate(kMostBytesOfFailure);
      Finish(ReadPrometheusAnswer(mBody, Status(), mLabels));
      return false;
    }
    if (mBody.size() <= mClient.mLimits.bytes) return true;
    Finish(FleetError{Kind::kTooLarge, QString::number(mClient.mLimits.bytes >> 20)});
    return false;
  }

  void End() {
    if (!Take()) return;
    const int status = Status();
    if (!mCertificate.isEmpty()) return Finish(FleetError{Kind::kCertificate, mCertificate});
    if (status >= 300 && status < 400) return FollowRedirection();
    const bool hasAnswer = status == 200 && mReply->error() == QNetworkReply::NoError;
    const bool isRefused = status >= 400;
    if (hasAnswer || isRefused) return Finish(ReadPrometheusAnswer(mBody, status, mLabels));
    Finish(FleetError{Kind::kUnreachable, OneLine(mReply->errorString())});
  }

  void FollowRedirection() {
    const auto from = mReply->url();
    const auto to =
        from.resolved(mReply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl());
    if (!IsSameServer(from, to) || ++mRedirections > kMostRedirections) {
      return Finish(FleetError{Kind::kRedirected, OneLine(to.toDisplayString(QUrl::RemoveUserInfo |
                                                                             QUrl::RemoveQuery))});
    }
    LetGo();
    Send(to);
  }

  /// Nothing of this may be used afterwards.
  void Finish(Outcome outcome) {
    mDeadline.stop();
    LetGo();
    // That may destroy this, and what is called with it.
    const auto answered = std::exchange(mAnswered, nullptr);
    if (answered) answered(std::move(outcome));
  }

  PrometheusClient& mClient;
  QByteArray mForm;
  std::vector<const char*> mLabels;
  Answered mAnswered;
  QTimer mDeadline;
  QNetworkReply* mReply = nullptr;
  QByteArray mBody;
  QString mCertificate;
  int mRedirections = 0;
};

PrometheusClient::PrometheusClient(QUrl address) : PrometheusClient(std::move(address), Limits()) {}

PrometheusClient::PrometheusClient(QUrl address, Limits limits)
    : mAddress(std::move(address)),
      mLimits(limits),
      mNetwork(std::make_unique<QNetworkAccessManager>()) {}

PrometheusClient::~PrometheusClient() = default;

std::unique_ptr<PrometheusRequest> PrometheusClient::Ask(const QString& query,
                                                         std::vector<const char*> labels,
                                                         Answered answered) {
  const auto seconds = QString::number((mLimits.time + 999) / 1000);
  return std::make_unique<Request>(*this, "/api/v1/query",
                                   FormOf({{"query", query}, {"timeout", seconds + 's'}}),
                                   std::move(labels), std::move(answered));
}

std::unique_ptr<PrometheusRequest> PrometheusClient::AskRange(const QString& query,
                                                              PrometheusRange range,
                                                              std::vector<const char*> labels,
                                                              Answered answered) {
  const auto number = [](double value) { return QString::number(value, 'f', 3); };
  const auto seconds = QString::number((mLimits.time + 999) / 1000);
  return std::make_unique<Request>(*this, "/api/v1/query_range",
                                   FormOf({{"query", query},
                                           {"start", number(range.start)},
                                           {"end", number(range.end)},
                                           {"step", number(range.step)},
                                           {"timeout", seconds + 's'}}),
                                   std::move(labels), std::move(answered));
}

}  // namespace lurkwell
