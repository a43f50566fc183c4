#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace lurkwell {

/// A fresh folder that goes with its owner; also a proc tree to be filled.
class MadeUpTree {
 public:
  MadeUpTree() {
    // In memory where there is such a place: a big tree takes a disk many seconds.
    const std::filesystem::path memory = "/dev/shm";
    const auto parent =
        std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
    std::string pattern = (parent / "lurkwell-XXXXXX").string();
    EXPECT_NE(mkdtemp(pattern.data()), nullptr);
    mRoot = pattern;
  }
  ~MadeUpTree() { std::filesystem::remove_all(mRoot); }
  MadeUpTree(const MadeUpTree&) = delete;
  MadeUpTree& operator=(const MadeUpTree&) = delete;

  const std::string& Root() const { return mRoot; }

  void Write(const std::string& path, std::string_view text) const {
    const std::filesystem::path file = mRoot + '/' + path;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
  }

 private:
  std::string mRoot;
};

}  // namespace lurkwell
