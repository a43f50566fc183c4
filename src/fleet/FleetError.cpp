#include "fleet/FleetError.h"

#include "resources/Resources.h"

namespace lurkwell {

QString FleetError::Text() const {
  const auto with = [this](const char* id) {
    return LocalizedString(id).replace(QLatin1String("%1"), detail);
  };
  switch (kind) {
    case Kind::kUnreachable:
      return with("fleet_error_unreachable");
    case Kind::kTimedOut:
      return with("fleet_error_timed_out");
    case Kind::kTooLarge:
      return with("fleet_error_too_large");
    case Kind::kCertificate:
      return with("fleet_error_certificate");
    case Kind::kNoEncryption:
      return with("fleet_error_no_encryption");
    case Kind::kCredentials:
      return with("fleet_error_credentials");
    case Kind::kRedirected:
      return with("fleet_error_redirected");
    case Kind::kNotPrometheus:
      return with("fleet_error_not_prometheus");
    case Kind::kServer:
      return with("fleet_error_server");
    case Kind::kQuery:
      return with("fleet_error_query");
  }
  return {};
}

QString OneLine(const QString& text, int most) {
  QString line;
  for (const QChar c : text) {
    if (line.size() >= most) return line + QChar(0x2026);
    // Marks that turn the direction of what follows around would do so beyond their text.
    const auto category = c.category();
    const bool isControl = category == QChar::Other_Control || category == QChar::Other_Format ||
                           category == QChar::Separator_Line ||
                           category == QChar::Separator_Paragraph;
    line += isControl ? QLatin1Char(' ') : c;
  }
  return line.simplified();
}

}  // namespace lurkwell
