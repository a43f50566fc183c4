#pragma once

#include "platform/Tools.h"
#include "platform/linux/ProcpsDialect.h"
#include "platform/linux/ToolProcess.h"

namespace lurkwell {

/// The tools of a Linux system with procps. Of the ps command lines only those for a column run ps,
/// as often as they are asked; the other two are answered from one listing of the columns, which
/// the keywords' line asks ps for and which is kept once it was complete.
class LinuxTools final : public Tools {
 public:
  LinuxTools() = default;
  ~LinuxTools() override;

  std::unique_ptr<RunningTool> Start(const std::string& commandLine) override;
  std::optional<ToolColumn> ColumnNamed(std::string_view header) const override;
  bool MayLookInto(std::int32_t pid) const override;
  void Await(std::span<RunningTool* const> tools, std::chrono::milliseconds limit) override;
  bool StartInBackground(const std::vector<std::string>& arguments) override;
  CommandStart StartCommand(const std::vector<std::string>& arguments,
                            const std::vector<std::string>& variables) override;
  int Stat(const std::string& path) override;

 private:
  class Program;

  std::unique_ptr<RunningTool> StartProgram(const std::vector<std::string>& arguments,
                                            bool isListing);
  ToolOutput Keywords(const ToolOutput& listing);
  void ReapLingering();

  std::vector<PsColumn> mColumns;
  /// Killed, but held by the kernel for the time being.
  std::vector<pid_t> mLingering;
};

}  // namespace lurkwell
