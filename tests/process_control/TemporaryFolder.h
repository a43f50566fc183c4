#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace lurkwell {

/// A fresh folder, gone with everything in it at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    char path[] = "/tmp/lurkwell-control-XXXXXX";
    EXPECT_NE(::mkdtemp(path), nullptr);
    mPath = path;
    ::chmod(path, 0755);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::string& Path() const { return mPath; }
  std::string operator/(std::string_view name) const { return mPath + '/' + std::string(name); }

  /// Makes a folder below it.
  std::string Make(std::string_view name, mode_t mode = 0755, uid_t owner = 0) const {
    const std::string path = *this / name;
    std::filesystem::create_directories(path);
    EXPECT_EQ(::chmod(path.c_str(), mode), 0);
    EXPECT_TRUE(::geteuid() != 0 || ::chown(path.c_str(), owner, owner) == 0);
    return path;
  }

 private:
  std::string mPath;
};

inline void WriteFile(const std::string& path, std::string_view text) {
  std::ofstream(path, std::ios::binary) << text;
}

inline std::string ReadFile(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  std::string text;
  char piece[4096];
  while (stream.read(piece, sizeof piece), stream.gcount() > 0)
    text.append(piece, static_cast<std::size_t>(stream.gcount()));
  return text;
}

inline mode_t ModeOf(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 ? info.st_mode & 07777 : 0;
}

}  // namespace lurkwell
