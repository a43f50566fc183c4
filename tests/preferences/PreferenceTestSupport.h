#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/Machine.h"
#include "platform/PreferenceDomain.h"
#include "platform/linux/PropertyListDomain.h"

namespace lurkwell {

/// A fresh folder that goes with everything in it.
class TemporaryFolder {
 public:
  explicit TemporaryFolder(
      const std::filesystem::path& within = std::filesystem::temp_directory_path()) {
    std::string path = within / "lurkwell-test-XXXXXX";
    if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("no temporary folder");
    mPath = path;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return mPath; }
  std::filesystem::path PreferenceFile() const { return mPath / PropertyListDomain::kFileName; }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(mPath))
      names.push_back(entry.path().filename());
    return names;
  }

  /// How many names in the folder hold the part.
  int CountOf(const std::string& part) const {
    int count = 0;
    for (const auto& name : Names()) count += name.find(part) != std::string::npos ? 1 : 0;
    return count;
  }

 private:
  std::filesystem::path mPath;
};

inline std::string Contents(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void Fill(const std::filesystem::path& path, const std::string& text) {
  std::ofstream stream(path, std::ios::binary);
  stream << text;
  if (!stream.flush()) throw std::runtime_error("cannot fill " + path.string());
}

/// A property list with these entries in its root.
inline std::string PropertyList(const std::string& entries) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>" + entries +
         "</dict>\n</plist>\n";
}

/// Installs a machine whose only service is a preference domain; any use of another crashes.
class PreferenceMachine {
 public:
  explicit PreferenceMachine(PreferenceDomain& domain)
      : mMachine{Absent<Clock>(),          Absent<RunLoop>(),        domain,
                 Absent<ProcessTable>(),   Absent<ProcessManager>(), Absent<IconServices>(),
                 Absent<HostStatistics>(), Absent<Tools>(),          Absent<Signals>(),
                 Absent<NamedPipes>(),     Absent<Authorization>(),  Absent<Bundle>(),
                 Absent<Alerts>(),         Absent<LogFiles>(),       Absent<HotKeys>(),
                 Absent<Screen>(),         Absent<EventBus>()},
        mInstallation(mMachine) {}

 private:
  template <typename Service>
  static Service& Absent() {
    alignas(std::max_align_t) static std::array<std::byte, 64> nothing{};
    return reinterpret_cast<Service&>(nothing);
  }

  Machine mMachine;
  MachineInstallation mInstallation;
};

/// Runs `body` in a forked child and gives its pid. The child ends with what `body` returns, or 99
/// when it throws.
template <typename Body>
pid_t Fork(Body body) {
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no child");
  if (child > 0) return child;
  int code = 99;
  try {
    code = body();
  } catch (...) {
    code = 99;
  }
  std::fflush(stderr);
  _exit(code);
}

/// Waits for a child and gives its exit code, or minus the signal that ended it.
inline int ExitOf(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

inline std::int64_t IntegerAt(PreferenceDomain& domain, const std::string& key) {
  const PreferenceValue* value = domain.Value(key);
  const auto* integer = value != nullptr ? std::get_if<std::int64_t>(value) : nullptr;
  return integer != nullptr ? *integer : -1;
}

}  // namespace lurkwell
