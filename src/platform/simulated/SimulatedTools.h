#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Tools.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// Tools with canned output, which end at once: what is not scripted prints nothing.
class SimulatedTools final : public Tools {
 public:
  explicit SimulatedTools(AccessLog& log) : mLog(log) {}

  std::unique_ptr<RunningTool> Start(const std::string& command) override {
    mLog.Add("Tools.Start " + command);
    if (mIsShort) return nullptr;
    const auto found = mOutputs.find(command);
    return std::make_unique<Program>(*this, command, found == mOutputs.end() ? "" : found->second);
  }

  void Await(std::span<RunningTool* const>, std::chrono::milliseconds) override {}

  bool StartInBackground(const std::vector<std::string>& arguments) override {
    std::string line = "Tools.StartInBackground";
    for (const auto& argument : arguments) line += ' ' + argument;
    mLog.Add(line);
    return mStarting(arguments);
  }

  /// Runs until the test says how it ends.
  CommandStart StartCommand(const std::vector<std::string>& arguments,
                            const std::vector<std::string>& variables) override {
    std::string line = "Tools.StartCommand";
    for (const auto& argument : arguments) line += " [" + argument + ']';
    mLog.Add(line);
    commandVariables = variables;
    if (mIsShort) return {nullptr, "Resource temporarily unavailable"};
    ++runningCommands;
    return {std::make_unique<Command>(*this), {}};
  }
  /// Of the command that was started last.
  std::vector<std::string> commandVariables;
  int runningCommands = 0;
  /// What all commands end with; nothing while they run.
  std::optional<int> commandStatus;

  std::optional<ToolColumn> ColumnNamed(std::string_view header) const override {
    const auto found = mColumns.find(header);
    return found == mColumns.end() ? std::nullopt : std::optional(found->second);
  }

  bool MayLookInto(std::int32_t pid) const override { return !mClosed.contains(pid); }

  int Stat(const std::string& path) override {
    mLog.Add("Tools.Stat " + path);
    return mMissingFiles.contains(path) ? -1 : 0;
  }

  void SetOutput(const std::string& command, std::string text) {
    mOutputs[command] = std::move(text);
  }
  /// The command prints what it is said to print, but does not come to its end before it is stuck
  /// no more.
  void SetStuck(const std::string& command, bool stuck = true) {
    if (stuck) {
      mStuckCommands.insert(command);
    } else {
      mStuckCommands.erase(command);
    }
  }
  /// What is known of a column of ps; nothing unless told.
  void SetColumn(const std::string& header, ToolColumn column) { mColumns[header] = column; }
  /// Has ps print of this process as of one that it may not look into.
  void SetClosed(std::int32_t pid) { mClosed.insert(pid); }
  /// Whether nothing can be started.
  void SetShort(bool isShort) { mIsShort = isShort; }
  void SetMissing(const std::string& path) { mMissingFiles.insert(path); }
  /// What happens when a program is started in the background; it succeeds unless told otherwise.
  void OnStart(std::function<bool(const std::vector<std::string>&)> starting) {
    mStarting = std::move(starting);
  }

 private:
  class Command final : public RunningCommand {
   public:
    explicit Command(SimulatedTools& tools) : mTools(tools) {}
    ~Command() override { --mTools.runningCommands; }
    std::optional<int> Status() override { return mEnded ? mEnded : mTools.commandStatus; }
    void End(bool atOnce) override {
      mTools.mLog.Add(atOnce ? "RunningCommand.Kill" : "RunningCommand.Terminate");
      mEnded = atOnce ? std::optional(137) : mEnded;
    }

   private:
    SimulatedTools& mTools;
    std::optional<int> mEnded;
  };

  class Program final : public RunningTool {
   public:
    Program(const SimulatedTools& tools, std::string command, std::string text)
        : mTools(tools), mCommand(std::move(command)), mText(std::move(text)) {}
    bool HasEnded() override { return !mTools.mStuckCommands.contains(mCommand); }
    ToolOutput TakeOutput() override { return {mText, HasEnded()}; }

   private:
    const SimulatedTools& mTools;
    std::string mCommand;
    std::string mText;
  };

  AccessLog& mLog;
  std::map<std::string, std::string> mOutputs;
  std::map<std::string, ToolColumn, std::less<>> mColumns;
  std::set<std::string> mStuckCommands;
  std::set<std::string> mMissingFiles;
  std::set<std::int32_t> mClosed;
  bool mIsShort = false;
  std::function<bool(const std::vector<std::string>&)> mStarting = [](const auto&) { return true; };
};

}  // namespace lurkwell
