#pragma once

#include <spawn.h>
#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/FileDescriptor.h"
#include "platform/Tools.h"

namespace lurkwell {

/// How a program is started: with signals as a fresh program has them, an environment that holds a
/// search path and a language, and no descriptors of ours but the standard three. Main thread only.
class SpawnSettings {
 public:
  SpawnSettings();
  ~SpawnSettings();
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;

  /// What was set first is done first. Its standard output; one of the standard three at the null
  /// device; its working folder.
  void SetOutput(int descriptor);
  void UseNullDevice(int standard);
  void SetFolder(const std::string& folder);

  /// In a process group of its own, which the terminal does not interrupt.
  void SetOwnGroup();

  /// Starts it, once; `arguments` starts with the program's path. 0, or the number of the error.
  int Start(const std::vector<std::string>& arguments, pid_t& pid);
  /// The same in the environment of ours with these variables ("NAME=VALUE") in it; the program may
  /// be a name that is looked for along the path.
  int StartAsUser(const std::vector<std::string>& arguments,
                  const std::vector<std::string>& variables, pid_t& pid);

 private:
  void Finish();

  posix_spawn_file_actions_t mActions;
  posix_spawnattr_t mAttributes;
  short mFlags = POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
};

/// One running program whose standard output is collected. Its input and its errors are the null
/// device, it has none of our other descriptors, and its signals are as a fresh program's. Main
/// thread only.
class ToolProcess {
 public:
  using Deadline = std::chrono::steady_clock::time_point;

  /// Starts it, or not: see IsRunning.
  explicit ToolProcess(const std::vector<std::string>& arguments);
  ToolProcess(ToolProcess&&) = default;
  ToolProcess& operator=(ToolProcess&&) = default;

  bool IsRunning() const { return mPid > 0; }

  /// What is to be waited for next: the output, then the end. -1 when neither can be.
  int WaitDescriptor() const;

  /// Takes in what has happened at WaitDescriptor, if anything has; does not wait.
  void Serve();

  /// Kills it if it still runs. The answer is then incomplete.
  void Kill();

  /// Collects an ended child without waiting; false while it is still there.
  bool Reap();

  /// Gives up an ended or killed child that cannot be collected yet; its pid.
  pid_t Abandon() { return std::exchange(mPid, -1); }

  /// What it printed, of each line the first 2048 bytes. At most 64 MiB; more is an incomplete
  /// answer.
  ToolOutput TakeOutput();

 private:
  void ReadOutput();
  bool ReadPiece();
  void TakeIn(std::string_view piece);

  pid_t mPid = -1;
  FileDescriptor mPipe;
  FileDescriptor mEnd;
  ToolOutput mOutput;
  /// Bytes of the line that is being read.
  std::size_t mLine = 0;
  bool mReachedEnd = false;
};

/// Serves all of them until they have ended or the deadline has come.
void ServeUntil(std::span<ToolProcess* const> processes, ToolProcess::Deadline deadline);

/// Starts a program that is no child of ours: a session of its own, the same environment,
/// fresh signals, the standard three descriptors and no other. `arguments` starts with the
/// program's absolute path. False when it could not be started; a start that takes longer than two
/// seconds counts as one. Any thread.
bool StartDetached(const std::vector<std::string>& arguments);

}  // namespace lurkwell
