#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace lurkwell {

/// The host that a machine's label names, without the port; nothing when it is no host: what a
/// server says may hold anything, and no option of a program or word of a shell passes here. Pure.
std::optional<QString> HostOfMachine(const QString& machine);

/// The command that opens a terminal in which ssh goes to the host, as an argument vector; empty
/// when there is no terminal. Terminals are looked for as desktops do: the user's default one, the
/// variable TERMINAL, the system's default, then those that are known. `find` gives a program's
/// path, or an empty text.
QStringList TerminalCommand(const QString& host, const QString& terminalVariable,
                            const std::function<QString(const QString&)>& find);

/// Opens it, in the user's own environment and without a shell. Says why not, in the user's words;
/// an empty text when it runs. Main thread.
QString OpenRemoteShell(const QString& machine);

}  // namespace lurkwell
