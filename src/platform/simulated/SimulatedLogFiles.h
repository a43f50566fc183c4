#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/LogFiles.h"

namespace lurkwell {

/// Log files in memory, on a disk that refuses when the test says so. Outlives its files.
class SimulatedLogFiles final : public LogFiles {
 public:
  Creation Create(std::string_view name) override {
    if (!mProblem.empty()) return {nullptr, mProblem};
    auto path = "/logs/" + std::string(name) + ".tsv";
    mTexts[path] = "";
    return {std::make_unique<File>(*this, std::move(path)), {}};
  }

  /// Everything fails with these words from now on; works again with none.
  void Refuse(std::string problem) { mProblem = std::move(problem); }

  /// What the files hold, by path.
  const std::map<std::string, std::string>& Texts() const { return mTexts; }
  int OpenFiles() const { return mOpen; }

 private:
  class File final : public LogFile {
   public:
    File(SimulatedLogFiles& disk, std::string path) : mDisk(disk), mPath(std::move(path)) {
      ++mDisk.mOpen;
    }
    ~File() override { --mDisk.mOpen; }

    const std::string& Path() const override { return mPath; }
    std::string Append(std::string_view line) override {
      if (mDisk.mProblem.empty()) mDisk.mTexts[mPath] += std::string(line) + '\n';
      return mDisk.mProblem;
    }

   private:
    SimulatedLogFiles& mDisk;
    std::string mPath;
  };

  std::map<std::string, std::string> mTexts;
  std::string mProblem;
  int mOpen = 0;
};

}  // namespace lurkwell
