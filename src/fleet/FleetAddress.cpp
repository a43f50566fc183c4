#include "fleet/FleetAddress.h"

#include <QHostAddress>
#include <initializer_list>

#include "fleet/FleetError.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr int kUsualPort = 9090;
constexpr qsizetype kLongestAddress = 2000;

std::optional<QUrl> Complain(QString& complaint, const char* id, const QString& text) {
  complaint = LocalizedString(id).replace(QLatin1String("%1"), OneLine(text));
  return std::nullopt;
}

}  // namespace

std::optional<QUrl> ReadFleetAddress(const QString& text, QString& complaint) {
  const auto wanted = text.trimmed();
  if (wanted.isEmpty()) return Complain(complaint, "fleet_address_empty", wanted);
  const bool hasScheme = wanted.contains(QLatin1String("://"));
  QUrl url(hasScheme ? wanted : QLatin1String("http://") + wanted, QUrl::StrictMode);
  // What stands before an "@" may be a password, and is not repeated.
  if (!url.userInfo().isEmpty() || wanted.contains(QLatin1Char('@')))
    return Complain(complaint, "fleet_address_has_password", {});
  if (!url.isValid() || url.host().isEmpty() || wanted.size() > kLongestAddress)
    return Complain(complaint, "fleet_address_wrong", wanted);
  if (url.scheme() != QLatin1String("http") && url.scheme() != QLatin1String("https"))
    return Complain(complaint, "fleet_address_scheme", url.scheme());
  url.setQuery(QString());
  url.setFragment(QString());
  auto path = url.path();
  for (const char* page : {"/graph", "/query", "/targets", "/alerts"})
    if (path.endsWith(QLatin1String(page))) path.chop(QLatin1String(page).size());
  while (path.endsWith(QLatin1Char('/'))) path.chop(1);
  url.setPath(path);
  if (!hasScheme && url.port() < 0) url.setPort(kUsualPort);
  return url;
}

bool IsSentInClear(const QUrl& address) {
  if (address.scheme() == QLatin1String("https")) return false;
  const auto host = address.host();
  return host != QLatin1String("localhost") && !QHostAddress(host).isLoopback();
}

}  // namespace lurkwell
