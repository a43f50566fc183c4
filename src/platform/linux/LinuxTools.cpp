#include "platform/linux/LinuxTools.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "platform/FileDescriptor.h"
#include "platform/linux/ProcpsDialect.h"
#include "platform/linux/ToolProcess.h"

namespace lurkwell {

/// A ps that runs, or an answer that was there already.
class LinuxTools::Program final : public RunningTool {
 public:
  Program(LinuxTools& tools, ToolProcess process, bool isListing)
      : mTools(tools), mProcess(std::move(process)), mIsListing(isListing) {}
  Program(LinuxTools& tools, ToolOutput answer) : mTools(tools), mAnswer(std::move(answer)) {}
  ~Program() override {
    if (!mProcess || mProcess->Reap()) return;
    mProcess->Kill();
    if (!mProcess->Reap()) mTools.mLingering.push_back(mProcess->Abandon());
  }

  bool HasEnded() override {
    if (mProcess && mProcess->IsRunning()) mProcess->Serve();
    return !mProcess || !mProcess->IsRunning();
  }

  ToolOutput TakeOutput() override {
    if (!mProcess) return std::move(mAnswer);
    const auto output = mProcess->TakeOutput();
    return mIsListing ? mTools.Keywords(output) : output;
  }

  ToolProcess* Process() { return mProcess ? &*mProcess : nullptr; }

 private:
  LinuxTools& mTools;
  std::optional<ToolProcess> mProcess;
  bool mIsListing = false;
  ToolOutput mAnswer;
};

LinuxTools::~LinuxTools() {
  ReapLingering();
}

std::unique_ptr<RunningTool> LinuxTools::Start(const std::string& commandLine) {
  ReapLingering();
  const auto command = ParsePsCommand(commandLine);
  if (!command) return std::make_unique<Program>(*this, ToolOutput{});
  switch (command->kind) {
    case PsCommand::Kind::kColumn:
      return StartProgram(PsColumnArguments(mColumns, command->keyword), false);
    case PsCommand::Kind::kKeywords:
      if (mColumns.empty()) return StartProgram(PsListingArguments(), true);
      return std::make_unique<Program>(*this, ToolOutput{KeywordLine(mColumns), true});
    case PsCommand::Kind::kHeader:
      break;
  }
  return std::make_unique<Program>(
      *this, ToolOutput{HeaderLine(mColumns, command->keyword), !mColumns.empty()});
}

std::unique_ptr<RunningTool> LinuxTools::StartProgram(const std::vector<std::string>& arguments,
                                                      bool isListing) {
  ToolProcess process(arguments);
  if (!process.IsRunning()) return nullptr;
  return std::make_unique<Program>(*this, std::move(process), isListing);
}

std::optional<ToolColumn> LinuxTools::ColumnNamed(std::string_view header) const {
  return ProcpsColumnNamed(header);
}

bool LinuxTools::MayLookInto(std::int32_t pid) const {
  const auto file = "/proc/" + std::to_string(pid) + "/io";
  const FileDescriptor open(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  char byte = 0;
  // Not even root may look into every process.
  if (open.IsOpen() && ::read(open.Get(), &byte, 1) == 1) return true;
  return errno != EACCES && errno != EPERM;
}

void LinuxTools::Await(std::span<RunningTool* const> tools, std::chrono::milliseconds limit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  std::vector<ToolProcess*> processes;
  for (auto* tool : tools)
    if (auto* process = static_cast<Program*>(tool)->Process()) processes.push_back(process);
  ServeUntil(processes, deadline);
}

bool LinuxTools::StartInBackground(const std::vector<std::string>& arguments) {
  return StartDetached(arguments);
}

int LinuxTools::Stat(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status);
}

/// An incomplete listing is not kept; the next question for the keywords makes another.
ToolOutput LinuxTools::Keywords(const ToolOutput& listing) {
  if (listing.complete) mColumns = ParsePsListing(listing.text);
  if (mColumns.empty()) return {};
  return {KeywordLine(mColumns), true};
}

void LinuxTools::ReapLingering() {
  std::erase_if(mLingering, [](pid_t pid) { return ::waitpid(pid, nullptr, WNOHANG) != 0; });
}

}  // namespace lurkwell
