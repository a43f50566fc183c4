#pragma once

#include "platform/Tools.h"
#include "platform/linux/ProcpsDialect.h"
#include "platform/linux/ToolProcess.h"

namespace lurkwell {

/// The tools of a Linux system with procps. Of the ps command lines only those for a column run ps,
/// as often as they are asked; the other two are answered from one listing of the columns, which is
/// made when it is first needed and kept.
class LinuxTools final : public Tools {
 public:
  LinuxTools() = default;
  ~LinuxTools() override;

  std::vector<ToolOutput> Run(std::span<const std::string> commandLines,
                              std::chrono::milliseconds limit) override;
  bool StartInBackground(const std::vector<std::string>& arguments) override;
  int Stat(const std::string& path) override;

 private:
  void ReapLingering();
  ToolOutput AnswerFromListing(const PsCommand& command, ToolProcess::Deadline deadline);
  void Serve(std::span<ToolProcess> processes, ToolProcess::Deadline deadline);

  std::vector<PsColumn> mColumns;
  /// In this Run.
  bool mTriedListing = false;
  /// Killed, but held by the kernel for the time being.
  std::vector<pid_t> mLingering;
};

}  // namespace lurkwell
