#include "channel/DaemonInstallation.h"

#include <cstring>
#include <filesystem>
#include <random>

#include "platform/Assertion.h"
#include "platform/Bundle.h"
#include "platform/Machine.h"

namespace lurkwell {
namespace {

namespace fs = std::filesystem;

/// The source that its assertions name.
constexpr char kDaemonUnit[] = "DaemonCommunication";

constexpr auto kFolderMode = fs::perms::owner_all;
constexpr auto kHelperMode = fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec |
                             fs::perms::others_read | fs::perms::others_exec;

/// Gives the copy its name, but never another's: a second instance may have been faster. A link
/// that leads nowhere belongs to no user.
void TakeName(const fs::path& copy, const fs::path& name, std::error_code& error) {
  fs::create_hard_link(copy, name, error);
  if (error == std::errc::file_exists && fs::exists(name)) error.clear();
  // Some file systems have no hard links.
  if (error && !fs::exists(name)) fs::rename(copy, name, error);
  std::error_code ignored;
  fs::remove(copy, ignored);
}

void Copy(const fs::path& source, const fs::path& target, std::error_code& error) {
  const fs::path copy =
      target.parent_path() / (".Lurkwell_helper." + std::to_string(std::random_device()()));
  if (fs::copy_file(source, copy, error)) fs::permissions(copy, kHelperMode, error);
  if (!error) {
    TakeName(copy, target, error);
  } else {
    std::error_code ignored;
    fs::remove(copy, ignored);
  }
}

/// Copies the helper from the bundle to its place, unless there is one. "" or why it failed.
std::string InstallHelper(const char* bundlePath, const fs::path& target) {
  std::error_code error;
  if (fs::create_directory(target.parent_path(), error))
    fs::permissions(target.parent_path(), kFolderMode, error);
  if (fs::exists(target, error)) return {};
  error.clear();
  const std::string source = std::string(bundlePath) + kHelperInBundle;
  Copy(source, target, error);
  return error ? "cannot copy " + source + " to " + target.string() + ": " + error.message()
               : std::string();
}

}  // namespace

void EscapePathQuotes(char* path) {
  const std::string plain = path;
  for (const char c : plain) {
    if (c == '"') *path++ = '\\';
    *path++ = c;
  }
  *path = '\0';
}

std::string EscapedBundlePath() {
  std::string path = TheMachine().bundle.Path().substr(0, kLongestPath);
  const std::size_t length = path.size();
  path.resize(2 * length + 1);
  EscapePathQuotes(path.data());
  path.resize(std::strlen(path.c_str()));
  return path;
}

std::string PutHelperAside(const std::string& path) {
  std::error_code error;
  fs::rename(path, path + kHelperPutAside, error);
  return error ? "cannot rename " + path + ": " + error.message() : std::string();
}

bool EnsureThatDaemonIsInApplicationSupport(const char* bundlePath, char* out,
                                            std::int32_t capacity, std::string& obstacle) {
  const auto folder = TheMachine().bundle.ApplicationSupportFolder();
  if (!folder || folder->size() > kLongestPath) {
    obstacle = "there is no folder for application data";
    return false;
  }
  const std::string path = *folder + kHelperInApplicationSupport;
  Require(path.size() < static_cast<std::size_t>(capacity), kDaemonUnit,
          "strlen(path) + strlen(suffix) < capacity");
  obstacle = InstallHelper(bundlePath, path);
  if (!obstacle.empty()) return false;
  std::memcpy(out, path.c_str(), path.size() + 1);
  return true;
}

}  // namespace lurkwell
