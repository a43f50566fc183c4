#pragma once

#include <QUrl>
#include <optional>

#include "app/CommandLine.h"
#include "fleet/FleetCredentials.h"

namespace lurkwell {

/// What --fleet and --credentials say.
struct FleetChoice {
  QUrl address;
  FleetCredentials credentials;
};

/// Reads them; nothing, with the reason on the standard error, when they make no sense. The
/// resources are installed.
std::optional<FleetChoice> ReadFleetChoice(const CommandLine& commandLine);

/// Shows the window on the fleet until it is closed, or writes its picture once the server has
/// answered, or has not; on the installed machine, whose run loop must be Qt's. A QApplication
/// exists. Gives the exit status.
int RunFleetMode(const CommandLine& commandLine, const FleetChoice& choice);

}  // namespace lurkwell
