#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace lurkwell {

/// In memory where there is such a place: a disk takes many seconds for a big tree.
inline std::filesystem::path PlaceInMemory() {
  const std::filesystem::path memory = "/dev/shm";
  return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

/// As bytes; "" of a file that cannot be read.
inline std::string ReadFile(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}
inline void WriteFile(const std::string& path, std::string_view text) {
  std::ofstream(path, std::ios::binary) << text;
}
/// The twelve bits of its mode; 0 without a file.
inline mode_t ModeOf(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 ? info.st_mode & 07777 : 0;
}

/// A fresh folder, gone with everything in it at the end, or before.
class TemporaryFolder {
 public:
  explicit TemporaryFolder(
      const std::filesystem::path& within = std::filesystem::temp_directory_path(),
      mode_t mode = 0755, uid_t owner = ::geteuid())
      : mPath(within / "lurkwell-test-XXXXXX") {
    EXPECT_NE(::mkdtemp(mPath.data()), nullptr);
    Give(mPath, mode, owner);
  }
  explicit TemporaryFolder(mode_t mode, uid_t owner = ::geteuid())
      : TemporaryFolder(std::filesystem::temp_directory_path(), mode, owner) {}
  ~TemporaryFolder() { Remove(); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  void Remove() const {
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
  }

  const std::string& Path() const { return mPath; }
  std::string operator/(std::string_view name) const { return mPath + '/' + std::string(name); }

  /// Makes a folder below it.
  std::string Make(std::string_view name, mode_t mode = 0755, uid_t owner = ::geteuid()) const {
    const std::string path = *this / name;
    std::filesystem::create_directories(path);
    Give(path, mode, owner);
    return path;
  }
  /// Makes a file below it, and the folders that it takes.
  void Write(std::string_view name, std::string_view text) const {
    const std::filesystem::path file = *this / name;
    std::filesystem::create_directories(file.parent_path());
    WriteFile(file, text);
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(mPath))
      names.push_back(entry.path().filename());
    return names;
  }
  /// How many names in it hold the part.
  std::ptrdiff_t CountOf(std::string_view part) const {
    return std::ranges::count_if(
        Names(), [part](const auto& name) { return name.find(part) != std::string::npos; });
  }

 private:
  static void Give(const std::string& path, mode_t mode, uid_t owner) {
    EXPECT_EQ(::chmod(path.c_str(), mode), 0);
    EXPECT_TRUE(owner == ::geteuid() || ::chown(path.c_str(), owner, owner) == 0);
  }

  std::string mPath;
};

}  // namespace lurkwell
