#include "platform/linux/OwnFolders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace lurkwell {
namespace {

bool IsRootsAlone(const std::filesystem::path& path) {
  struct stat info {};
  if (::lstat(path.c_str(), &info) != 0 || info.st_uid != 0) return false;
  // Names in a sticky folder can be exchanged by their owners alone; a link's mode says nothing.
  const bool isSticky = S_ISDIR(info.st_mode) && (info.st_mode & S_ISVTX) != 0;
  return S_ISLNK(info.st_mode) || isSticky || (info.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// Of what is missing, the folder that it would be made in counts.
bool IsRootsFolder(std::filesystem::path path) {
  std::error_code error;
  while (!std::filesystem::exists(path, error) && path.has_relative_path())
    path = path.parent_path();
  return BelongsToRoot(path);
}

/// Whether the variable has a folder of somebody else's.
bool IsForeign(const char* variable) {
  const char* folder = std::getenv(variable);
  return folder != nullptr && *folder == '/' && !IsRootsFolder(folder);
}

}  // namespace

bool BelongsToRoot(const std::string& path) {
  std::error_code error;
  const auto real = std::filesystem::canonical(path, error);
  if (error) return false;
  for (const auto& way : {std::filesystem::path(path), real}) {
    std::filesystem::path reached;
    for (const auto& part : way)
      if (reached /= part; !IsRootsAlone(reached)) return false;
  }
  return true;
}

std::string KeepToOwnFolders() {
  if (::geteuid() != 0) return {};
  std::string foreign;
  for (const char* variable :
       {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"}) {
    if (!IsForeign(variable)) continue;
    foreign = std::getenv(variable);
    ::unsetenv(variable);
  }
  if (IsForeign("HOME")) {
    foreign = std::getenv("HOME");
    ::setenv("XAUTHORITY", (foreign + "/.Xauthority").c_str(), 0);
    const passwd* root = ::getpwuid(0);
    if (root != nullptr && root->pw_dir != nullptr && *root->pw_dir == '/') {
      ::setenv("HOME", root->pw_dir, 1);
    } else {
      ::unsetenv("HOME");
    }
  }
  if (foreign.empty()) return {};
  return "'" + foreign + "' is another user's; root keeps to its own settings";
}

}  // namespace lurkwell
