#include "platform/linux/LinuxTools.h"

#include <sys/stat.h>
#include <sys/wait.h>

#include "platform/linux/BackgroundStart.h"

namespace lurkwell {

LinuxTools::~LinuxTools() {
  ReapLingering();
}

std::vector<ToolOutput> LinuxTools::Run(std::span<const std::string> commandLines,
                                        std::chrono::milliseconds limit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  ReapLingering();
  mTriedListing = false;

  std::vector<ToolOutput> answers(commandLines.size());
  std::vector<ToolProcess> processes;
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < commandLines.size(); ++i) {
    const auto command = ParsePsCommand(commandLines[i]);
    if (!command) continue;
    if (command->kind == PsCommand::Kind::kColumn) {
      processes.emplace_back(PsColumnArguments(command->keyword));
      places.push_back(i);
    } else {
      answers[i] = AnswerFromListing(*command, deadline);
    }
  }
  Serve(processes, deadline);
  for (std::size_t i = 0; i < places.size(); ++i) answers[places[i]] = processes[i].TakeOutput();
  return answers;
}

bool LinuxTools::StartInBackground(const std::vector<std::string>& arguments) {
  return StartDetached(arguments);
}

int LinuxTools::Stat(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status);
}

/// An incomplete listing is not kept; the next call tries again.
ToolOutput LinuxTools::AnswerFromListing(const PsCommand& command, ToolProcess::Deadline deadline) {
  if (mColumns.empty() && !mTriedListing) {
    mTriedListing = true;
    std::vector<ToolProcess> listing;
    listing.emplace_back(PsListingArguments());
    Serve(listing, deadline);
    const auto output = listing.front().TakeOutput();
    if (output.complete) mColumns = ParsePsListing(output.text);
  }
  if (mColumns.empty()) return {};
  if (command.kind == PsCommand::Kind::kKeywords) return {KeywordLine(mColumns), true};
  return {HeaderLine(mColumns, command.keyword), true};
}

void LinuxTools::Serve(std::span<ToolProcess> processes, ToolProcess::Deadline deadline) {
  const auto left = ServeUntil(processes, deadline);
  mLingering.insert(mLingering.end(), left.begin(), left.end());
}

void LinuxTools::ReapLingering() {
  std::erase_if(mLingering, [](pid_t pid) { return ::waitpid(pid, nullptr, WNOHANG) != 0; });
}

}  // namespace lurkwell
