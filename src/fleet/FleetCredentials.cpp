#include "fleet/FleetCredentials.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <utility>

#include "fleet/FleetError.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr qint64 kMostBytes = 16'384;

bool CanBeSent(const QString& text) {
  return std::ranges::none_of(text, [](QChar c) { return c.category() == QChar::Other_Control; });
}

}  // namespace

std::optional<FleetCredentials> FleetCredentials::OfUser(const QString& name,
                                                         const QString& password) {
  if (name.contains(QLatin1Char(':')) || !CanBeSent(name) || !CanBeSent(password))
    return std::nullopt;
  return FleetCredentials("Basic " + (name + QLatin1Char(':') + password).toUtf8().toBase64());
}

std::optional<FleetCredentials> FleetCredentials::OfToken(const QString& token) {
  const auto trimmed = token.trimmed();
  const bool isAscii =
      std::ranges::all_of(trimmed, [](QChar c) { return c > QChar(' ') && c < QChar(0x7F); });
  if (trimmed.isEmpty() || !isAscii) return std::nullopt;
  return FleetCredentials("Bearer " + trimmed.toLatin1());
}

std::optional<FleetCredentials> FleetCredentials::FromFile(const QString& path,
                                                           QString& complaint) {
  const auto complain = [&](const char* id, const QString& why = {}) {
    complaint = LocalizedString(id)
                    .replace(QLatin1String("%2"), OneLine(why))
                    .replace(QLatin1String("%1"), OneLine(path));
    return std::optional<FleetCredentials>();
  };
  // Opening a pipe would wait.
  if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
    return complain("fleet_credentials_no_line");
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    return complain("fleet_credentials_unreadable", file.errorString());
  constexpr auto kOthers = QFileDevice::ReadGroup | QFileDevice::WriteGroup |
                           QFileDevice::ReadOther | QFileDevice::WriteOther;
  if ((file.permissions() & kOthers) != 0) return complain("fleet_credentials_open");
  auto line = QString::fromUtf8(file.read(kMostBytes)).trimmed();
  if (line.isEmpty() || line.contains(QLatin1Char('\n')))
    return complain("fleet_credentials_no_line");
  std::optional<FleetCredentials> read;
  if (line.startsWith(QLatin1String("Bearer "), Qt::CaseInsensitive)) {
    read = OfToken(line.mid(7));
  } else if (const auto colon = line.indexOf(QLatin1Char(':')); colon >= 0) {
    read = OfUser(line.left(colon), line.mid(colon + 1));
  } else {
    read = OfToken(line);
  }
  return read ? read : complain("fleet_credentials_no_line");
}

}  // namespace lurkwell
