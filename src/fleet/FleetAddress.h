#pragma once

#include <QString>
#include <QUrl>
#include <optional>

namespace lurkwell {

/// The server that a user means: http or https, a host, perhaps a port and a path below which the
/// server lies. Without a scheme it is http, without scheme and port it is port 9090; what a
/// browser shows of one of the server's pages will do. Nothing, and why in `complaint`, for all
/// else, as well as for an address with a name or a password in it, which would be kept and shown
/// with it. Main thread.
std::optional<QUrl> ReadFleetAddress(const QString& text, QString& complaint);

/// Whether what is sent there can be read on the way: it is not encrypted and leaves this machine.
bool IsSentInClear(const QUrl& address);

}  // namespace lurkwell
