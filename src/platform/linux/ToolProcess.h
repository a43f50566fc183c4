#pragma once

#include <sys/types.h>

#include <chrono>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/FileDescriptor.h"
#include "platform/Tools.h"

namespace lurkwell {

/// The environment of every program that is started: a search path and a language, nothing of ours.
/// Ends in a null pointer.
char* const* FixedEnvironment();

/// The arguments as the null-terminated vector that exec wants; valid as long as they are.
std::vector<char*> ArgumentVector(const std::vector<std::string>& arguments);

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

  /// What it printed, at most 64 MiB; more is an incomplete answer.
  ToolOutput TakeOutput();

 private:
  void ReadOutput();
  bool ReadPiece();

  pid_t mPid = -1;
  FileDescriptor mPipe;
  FileDescriptor mEnd;
  ToolOutput mOutput;
  bool mReachedEnd = false;
};

/// Serves all of them until they have ended or the deadline has come.
void ServeUntil(std::span<ToolProcess* const> processes, ToolProcess::Deadline deadline);

}  // namespace lurkwell
