#pragma once

#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/desktop/DesktopSettings.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {

/// A proc tree and a folder of desktop entries, for a desktop without an X server.
class MadeUpProcesses {
 public:
  static constexpr std::uint32_t kUser = 1000;

  /// `group` is the path of the control group.
  void Write(int pid, std::uint64_t start, const std::string& group,
             const std::string& name = "prog", const std::string& executable = "",
             std::uint32_t user = kUser) const {
    const std::string folder = "proc/" + std::to_string(pid);
    std::string stat = std::to_string(pid) + " (" + name + ") S 1 1 1 0 -1 4194560";
    for (int field = 10; field < 22; ++field) stat += " 7";
    mTree.Write(folder + "/stat", stat + ' ' + std::to_string(start) + " 1 2 3\n");
    mTree.Write(folder + "/comm", name + '\n');
    const auto uid = std::to_string(user);
    mTree.Write(folder + "/status", "Name:\t" + name + "\nUid:\t" + uid + "\t0\t0\t0\n");
    mTree.Write(folder + "/cgroup", "0::" + group + '\n');
    if (executable.empty()) return;
    std::filesystem::create_symlink(executable, mTree.Path() + '/' + folder + "/exe");
  }
  void End(int pid) const {
    std::filesystem::remove_all(mTree.Path() + "/proc/" + std::to_string(pid));
  }
  /// As the kernel tells those of its own pid namespace.
  void TellLastPid(int pid) const {
    mTree.Write("proc/loadavg", "0.00 0.01 0.05 1/200 " + std::to_string(pid) + '\n');
    const auto self = mTree.Path() + "/proc/self";
    std::filesystem::remove(self);
    std::filesystem::create_symlink(std::to_string(::getpid()), self);
  }
  void WriteEntry(const std::string& id, const std::string& lines) const {
    mTree.Write("applications/" + id + ".desktop", "[Desktop Entry]\nType=Application\n" + lines);
  }
  std::string EntryPath(const std::string& id) const {
    return mTree.Path() + "/applications/" + id + ".desktop";
  }

  DesktopSettings Settings() const {
    DesktopSettings settings;
    settings.usesScopes = true;
    settings.user = kUser;
    settings.procFolder = mTree.Path() + "/proc";
    settings.applicationFolders = {mTree.Path() + "/applications"};
    return settings;
  }

 private:
  TemporaryFolder mTree;
};

inline constexpr const char* kAppSlice = "/user.slice/user-1000.slice/user@1000.service/app.slice/";

}  // namespace lurkwell
