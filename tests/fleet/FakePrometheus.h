#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>
#include <QUrlQuery>
#include <functional>
#include <memory>

namespace lurkwell {

/// A server of Prometheus's API on the loopback interface that says whatever a test wants it to,
/// from the test's own event loop.
class FakePrometheus : public QObject {
 public:
  struct Question {
    QByteArray path;
    QByteArray headers;
    QUrlQuery form;
    QString Query() const {
      return form.queryItemValue(QStringLiteral("query"), QUrl::FullyDecoded);
    }
  };
  /// Writes the whole answer, with its headers, or a part of it; the socket may be kept.
  using Handler = std::function<void(QTcpSocket&, const Question&)>;

  explicit FakePrometheus(Handler handler)
      : FakePrometheus(std::make_unique<QTcpServer>(), std::move(handler)) {}

  /// On a server of the caller's, such as one with TLS.
  FakePrometheus(std::unique_ptr<QTcpServer> server, Handler handler)
      : handle(std::move(handler)), mServer(std::move(server)) {
    connect(mServer.get(), &QTcpServer::pendingConnectionAvailable, this, &FakePrometheus::Accept);
    mServer->listen(QHostAddress::LocalHost);
  }

  QString Address(const char* scheme = "http") const {
    return QStringLiteral("%1://127.0.0.1:%2")
        .arg(QLatin1String(scheme))
        .arg(mServer->serverPort());
  }
  QUrl Url(const char* scheme = "http") const { return QUrl(Address(scheme)); }

  /// Nobody answers from now on.
  void Stop() { mServer->close(); }

  /// With all headers.
  static QByteArray Whole(const QByteArray& body, const QByteArray& status = "200 OK",
                          const QByteArray& more = {}) {
    return "HTTP/1.1 " + status + "\r\nContent-Type: application/json\r\n" + more +
           "Connection: close\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" +
           body;
  }
  static void Answer(QTcpSocket& socket, const QByteArray& whole) {
    socket.write(whole);
    socket.disconnectFromHost();
  }
  /// A handler that always says the same.
  static Handler Always(const QByteArray& whole) {
    return [whole](QTcpSocket& socket, const Question&) { Answer(socket, whole); };
  }

  Handler handle;
  int questions = 0;

 private:
  void Accept() {
    while (auto* socket = mServer->nextPendingConnection()) {
      connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
      const auto read = [this, socket] { Read(*socket); };
      connect(socket, &QTcpSocket::readyRead, this, read);
      read();
    }
  }

  void Read(QTcpSocket& socket) {
    auto bytes = socket.property("bytes").toByteArray() + socket.readAll();
    socket.setProperty("bytes", bytes);
    const auto end = bytes.indexOf("\r\n\r\n");
    if (end < 0) return;
    const auto headers = bytes.left(end);
    const auto lower = headers.toLower();
    const auto at = lower.indexOf("content-length:");
    const auto length =
        at < 0 ? 0 : lower.mid(at + 15, lower.indexOf('\r', at) - at - 15).trimmed().toInt();
    if (bytes.size() < end + 4 + length) return;
    socket.setProperty("bytes", QByteArray());
    ++questions;
    // A form's blank is a plus, which QUrlQuery leaves as it is.
    const auto body = bytes.mid(end + 4, length).replace('+', "%20");
    handle(socket, {headers.split(' ').value(1), headers, QUrlQuery(QString::fromLatin1(body))});
  }

  std::unique_ptr<QTcpServer> mServer;
};

}  // namespace lurkwell
