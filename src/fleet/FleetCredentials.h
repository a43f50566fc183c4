#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace lurkwell {

/// What shows a server who asks. It is kept in memory alone and said nowhere. Any thread.
class FleetCredentials {
 public:
  /// Nobody in particular.
  FleetCredentials() = default;

  /// Nothing when a colon in the name, or a control character, makes it impossible to send.
  static std::optional<FleetCredentials> OfUser(const QString& name, const QString& password);
  static std::optional<FleetCredentials> OfToken(const QString& token);
  /// A file of one line, "NAME:PASSWORD" or a token, which may have "Bearer" before it. Nothing,
  /// and why in `complaint`, when it cannot be read, or when others can read it, too. Main thread.
  static std::optional<FleetCredentials> FromFile(const QString& path, QString& complaint);

  bool IsEmpty() const { return mHeader.isEmpty(); }
  /// The value of the header "Authorization".
  const QByteArray& Header() const { return mHeader; }

 private:
  explicit FleetCredentials(QByteArray header) : mHeader(std::move(header)) {}

  QByteArray mHeader;
};

}  // namespace lurkwell
