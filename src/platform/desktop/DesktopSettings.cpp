#include "platform/desktop/DesktopSettings.h"

#include <unistd.h>

#include <array>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace lurkwell {
namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

std::string FirstSet(std::initializer_list<const char*> names) {
  for (const char* name : names) {
    if (auto value = Variable(name); !value.empty()) return value;
  }
  return {};
}

std::vector<std::string> ApplicationFolders() {
  std::string home = Variable("XDG_DATA_HOME");
  if (home.empty()) home = Variable("HOME") + "/.local/share";
  std::string system = Variable("XDG_DATA_DIRS");
  if (system.empty()) system = "/usr/local/share:/usr/share";
  std::vector<std::string> folders;
  std::istringstream list(home + ':' + system);
  for (std::string folder; std::getline(list, folder, ':');) {
    // Anything else would depend on the current folder.
    if (folder.starts_with('/')) folders.push_back(folder + "/applications");
  }
  return folders;
}

std::string SessionBusAddress() {
  if (auto address = Variable("DBUS_SESSION_BUS_ADDRESS"); !address.empty())
    return address == "disabled:" ? "" : address;
  const std::string runtime = Variable("XDG_RUNTIME_DIR");
  std::error_code none;
  if (runtime.empty() || !std::filesystem::exists(runtime + "/bus", none)) return {};
  return "unix:path=" + runtime + "/bus";
}

}  // namespace

DesktopSettings DesktopSettings::FromEnvironment() {
  DesktopSettings settings;
  settings.display = Variable("DISPLAY");
  settings.usesScopes = settings.display.empty() || !Variable("WAYLAND_DISPLAY").empty();
  settings.user = ::getuid();
  settings.applicationFolders = ApplicationFolders();
  settings.locale = FirstSet({"LC_ALL", "LC_MESSAGES", "LANG"});
  std::array<char, HOST_NAME_MAX + 1> name{};
  if (::gethostname(name.data(), name.size() - 1) == 0) settings.hostName = name.data();
  settings.sessionBusAddress = SessionBusAddress();
  return settings;
}

}  // namespace lurkwell
