#include "fleet_window/RemoteShell.h"

#include <QHostAddress>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>

#include "fleet/FleetError.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

/// Of the DNS.
constexpr qsizetype kLongestHost = 253;

bool IsHostName(const QString& text) {
  const auto isOfHosts = [](QChar c) {
    return (c.unicode() < 0x80 && c.isLetterOrNumber()) || c == QLatin1Char('-') ||
           c == QLatin1Char('.') || c == QLatin1Char('_');
  };
  return !text.isEmpty() && text.size() <= kLongestHost && text[0] != QLatin1Char('-') &&
         text[0] != QLatin1Char('.') && std::ranges::all_of(text, isOfHosts);
}

bool IsPort(const QString& text) {
  bool isNumber = false;
  const auto port = text.toUInt(&isNumber);
  return isNumber && port > 0 && port < 65'536 && text[0].isDigit();
}

}  // namespace

std::optional<QString> HostOfMachine(const QString& machine) {
  auto host = machine;
  if (host.startsWith(QLatin1Char('['))) {
    const auto end = host.indexOf(QLatin1Char(']'));
    const auto rest = host.mid(end + 1);
    if (end < 0 || !(rest.isEmpty() || (rest[0] == QLatin1Char(':') && IsPort(rest.mid(1)))))
      return std::nullopt;
    host = host.mid(1, end - 1);
    const QHostAddress address(host);
    if (address.protocol() != QAbstractSocket::IPv6Protocol || !address.scopeId().isEmpty())
      return std::nullopt;
    return address.toString();
  }
  if (const QHostAddress address(host);
      address.protocol() == QAbstractSocket::IPv6Protocol && address.scopeId().isEmpty())
    return address.toString();
  if (const auto colon = host.indexOf(QLatin1Char(':')); colon >= 0) {
    if (!IsPort(host.mid(colon + 1))) return std::nullopt;
    host.truncate(colon);
  }
  if (!IsHostName(host)) return std::nullopt;
  return host;
}

QStringList TerminalCommand(const QString& host, const QString& terminalVariable,
                            const std::function<QString(const QString&)>& find) {
  const QStringList ssh{QStringLiteral("ssh"), QStringLiteral("--"), host};
  struct Terminal {
    QString name;
    /// Before the command; null where nothing is.
    const char* option;
  };
  const Terminal kTerminals[] = {{QStringLiteral("xdg-terminal-exec"), nullptr},
                                 {terminalVariable.trimmed(), "-e"},
                                 {QStringLiteral("x-terminal-emulator"), "-e"},
                                 {QStringLiteral("gnome-terminal"), "--"},
                                 {QStringLiteral("konsole"), "-e"},
                                 {QStringLiteral("xfce4-terminal"), "-x"},
                                 {QStringLiteral("foot"), nullptr},
                                 {QStringLiteral("kitty"), nullptr},
                                 {QStringLiteral("alacritty"), "-e"},
                                 {QStringLiteral("xterm"), "-e"}};
  for (const auto& [name, option] : kTerminals) {
    const auto path = name.isEmpty() ? QString() : find(name);
    if (path.isEmpty()) continue;
    QStringList command{path};
    if (option != nullptr) command.append(QLatin1String(option));
    return command + ssh;
  }
  return {};
}

QString OpenRemoteShell(const QString& machine) {
  const auto host = HostOfMachine(machine);
  if (!host)
    return LocalizedString("fleet_ssh_no_host").replace(QLatin1String("%1"), OneLine(machine, 80));
  const auto find = [](const QString& name) { return QStandardPaths::findExecutable(name); };
  if (find(QStringLiteral("ssh")).isEmpty()) return LocalizedString("fleet_ssh_no_ssh");
  auto command = TerminalCommand(*host, qEnvironmentVariable("TERMINAL"), find);
  if (command.isEmpty()) return LocalizedString("fleet_ssh_no_terminal");
  const auto program = command.takeFirst();
  if (QProcess::startDetached(program, command)) return {};
  return LocalizedString("fleet_ssh_failed").replace(QLatin1String("%1"), program);
}

}  // namespace lurkwell
