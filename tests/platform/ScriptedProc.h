#pragma once

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <functional>
#include <map>
#include <string>

#include "platform/StatText.h"
#include "platform/linux/ProcFiles.h"

namespace lurkwell {

/// A proc file system in memory. Before every access of a process it tells `beforeAccess`, which
/// may end or replace processes or make that access fail: everything that can happen between any
/// two steps of a pass.
class ScriptedProc final : public ProcFiles {
 public:
  /// One process ever. Its start stamp, which no other has, gives its nice value and the end of its
  /// name; the beginning of the name is that of every process with its pid.
  struct Process {
    std::int32_t pid;
    std::uint64_t stamp;
    bool isAlive = true;

    /// Fifteen characters, and the sixteenth that only the command line shows.
    std::string KernelName() const { return "task-" + std::to_string(1'000'000'000 + pid); }
    char Following() const { return static_cast<char>('a' + stamp % 26); }
    std::int64_t Nice() const { return static_cast<std::int64_t>(stamp % 20); }
  };

  /// Gives the error with which the access is to fail, or 0.
  std::function<int(std::int32_t pid)> beforeAccess = [](std::int32_t) { return 0; };

  bool listingFails = false;
  int listings = 0;
  std::optional<std::int32_t> lastPid;
  std::int64_t milliseconds = 0;

  ScriptedProc() : ProcFiles("/nowhere"), mSpare(::open("/dev/null", O_RDONLY | O_CLOEXEC)) {}

  void Start(std::int32_t pid) {
    mByStamp[mNextStamp] = {pid, mNextStamp};
    mByPid[pid] = mNextStamp++;
  }
  void End(std::int32_t pid) {
    const auto found = mByPid.find(pid);
    if (found == mByPid.end()) return;
    mByStamp[found->second].isAlive = false;
    mByPid.erase(found);
  }
  const Process* Find(std::uint64_t stamp) const {
    const auto found = mByStamp.find(stamp);
    return found == mByStamp.end() ? nullptr : &found->second;
  }
  const std::map<std::int32_t, std::uint64_t>& Running() const { return mByPid; }

  bool FollowsProcesses() const override { return true; }
  bool NeverBlocks() const override { return true; }
  bool List(std::vector<ListedProcess>& processes) override {
    processes.clear();
    ++listings;
    if (listingFails) {
      errno = ENOMEM;
      return false;
    }
    for (const auto& [pid, stamp] : mByPid) processes.push_back({pid, stamp});
    return true;
  }
  std::optional<std::int32_t> LastPid() override { return lastPid; }
  std::optional<std::uint64_t> RunTime(std::int32_t pid) override {
    const int error = beforeAccess(pid);
    const auto found = mByPid.find(pid);
    if (error != 0 || found == mByPid.end()) return std::nullopt;
    return found->second;
  }
  std::optional<Scheduling> SchedulingOf(std::int32_t) override { return Scheduling{}; }
  std::int64_t Milliseconds() const override { return milliseconds; }
  FileDescriptor OpenStat(std::int32_t pid) override { return Open(pid); }
  FileDescriptor OpenFolder(std::int32_t pid) override { return Open(pid); }
  std::ptrdiff_t Read(int file, std::span<char> buffer) override {
    return Answer(file, buffer, [](const Process& process) { return Stat(process); });
  }
  std::ptrdiff_t ReadIn(int folder, const char* name, std::span<char> buffer) override {
    const bool isStat = std::strcmp(name, "stat") == 0;
    return Answer(folder, buffer, [isStat](const Process& process) {
      if (isStat) return Stat(process);
      return "/opt/" + process.KernelName() + process.Following() + '\0' + "argument";
    });
  }
  std::ptrdiff_t ReadLinkIn(int folder, const char*, std::span<char> buffer) override {
    return Answer(folder, buffer, [](const Process&) { return std::string("/usr/bin/other"); });
  }
  std::string ReadText(const char*) override { return {}; }

 private:
  static std::string Stat(const Process& process) {
    const auto name = process.KernelName();
    return StatText{
        .pid = process.pid, .name = name, .nice = process.Nice(), .startStamp = process.stamp}
        .Text();
  }

  FileDescriptor Open(std::int32_t pid) {
    int error = beforeAccess(pid);
    const auto found = mByPid.find(pid);
    if (error == 0 && found == mByPid.end()) error = ENOENT;
    if (error != 0) {
      errno = error;
      return {};
    }
    FileDescriptor file(::fcntl(mSpare.Get(), F_DUPFD_CLOEXEC, 0));
    mOpen[file.Get()] = found->second;
    return file;
  }

  template <typename Text>
  std::ptrdiff_t Answer(int file, std::span<char> buffer, Text text) {
    const Process& process = mByStamp.at(mOpen.at(file));
    int error = beforeAccess(process.pid);
    if (error == 0 && !process.isAlive) error = ESRCH;
    if (error != 0) {
      errno = error;
      return -1;
    }
    const std::string answer = text(process);
    const auto size = std::min(answer.size(), buffer.size());
    std::memcpy(buffer.data(), answer.data(), size);
    return static_cast<std::ptrdiff_t>(size);
  }

  FileDescriptor mSpare;
  std::uint64_t mNextStamp = 1;
  std::map<std::uint64_t, Process> mByStamp;
  std::map<std::int32_t, std::uint64_t> mByPid;
  std::map<int, std::uint64_t> mOpen;
};

}  // namespace lurkwell
