#include "platform/linux/LinuxBundle.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>

namespace lurkwell {
namespace {

std::string HomeFolder() {
  if (const char* home = std::getenv("HOME"); home != nullptr && *home == '/') return home;
  const passwd* user = ::getpwuid(::getuid());
  return user != nullptr && user->pw_dir != nullptr && *user->pw_dir == '/' ? user->pw_dir : "";
}

/// Makes what is missing of the path, for the user alone.
bool HaveFolder(const std::string& path) {
  for (std::size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
    const std::string part = path.substr(0, slash);
    if (::mkdir(part.c_str(), 0700) != 0 && errno != EEXIST) {
      // A folder above that we may not write, but that is there, is no obstacle.
      if (std::error_code ignored; !std::filesystem::is_directory(part, ignored)) return false;
    }
    if (slash == std::string::npos) break;
  }
  std::error_code ignored;
  return std::filesystem::is_directory(path, ignored);
}

}  // namespace

LinuxBundle::LinuxBundle(const std::string& executable)
    : mPrefix(std::filesystem::path(executable).parent_path().parent_path()) {
  // Of /bin/lurkwell.
  if (mPrefix == "/") mPrefix.clear();
}

std::string LinuxBundle::RunningExecutable() {
  std::error_code ignored;
  return std::filesystem::read_symlink("/proc/self/exe", ignored);
}

std::optional<std::string> LinuxBundle::ApplicationSupportFolder() const {
  std::string folder;
  if (std::error_code ignored; std::filesystem::exists(Path() + "/Contents/build-tree", ignored)) {
    folder = mPrefix + "/Application Support";
  } else if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data == '/') {
    folder = data;
  } else if (const std::string home = HomeFolder(); !home.empty()) {
    folder = home + "/.local/share";
  }
  while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
  if (folder.empty() || !HaveFolder(folder)) return std::nullopt;
  return folder;
}

}  // namespace lurkwell
