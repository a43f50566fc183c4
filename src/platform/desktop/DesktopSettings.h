#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace lurkwell {

/// Where the desktop is to be found. Tests aim it at their own.
struct DesktopSettings {
  /// The X server as in $DISPLAY; "" for none.
  std::string display;
  /// Whether the session manager's scopes tell applications: where there is no X server, or where
  /// there are also windows that it does not know.
  bool usesScopes = false;
  /// Whose scopes and processes count.
  std::uint32_t user = 0;
  std::string procFolder = "/proc";
  /// The folders of desktop entries, the most important one first.
  std::vector<std::string> applicationFolders;
  /// The language of names, as in $LANG.
  std::string locale;
  /// This machine as windows call it.
  std::string hostName;
  /// "" when there is no session bus.
  std::string sessionBusAddress;
  /// The time between two tries to reach an X server.
  std::chrono::milliseconds retryInterval{5000};
  /// The time between two looks for new desktop entries.
  std::chrono::milliseconds entriesInterval{10000};

  /// The desktop that this program was started on.
  static DesktopSettings FromEnvironment();
};

}  // namespace lurkwell
