#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "platform/Tools.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// Tools with canned output: what is not scripted prints nothing.
class SimulatedTools final : public Tools {
 public:
  explicit SimulatedTools(AccessLog& log) : mLog(log) {}

  std::vector<ToolOutput> Run(std::span<const std::string> commandLines,
                              std::chrono::milliseconds) override {
    std::vector<ToolOutput> outputs;
    for (const auto& command : commandLines) {
      mLog.Add("Tools.Run " + command);
      const auto found = mOutputs.find(command);
      outputs.push_back(
          {found == mOutputs.end() ? "" : found->second, !mStuckCommands.contains(command)});
    }
    return outputs;
  }

  bool StartInBackground(const std::vector<std::string>& arguments) override {
    std::string line = "Tools.StartInBackground";
    for (const auto& argument : arguments) line += ' ' + argument;
    mLog.Add(line);
    return mStarting(arguments);
  }

  int Stat(const std::string& path) override {
    mLog.Add("Tools.Stat " + path);
    return mMissingFiles.contains(path) ? -1 : 0;
  }

  void SetOutput(const std::string& command, std::string text) {
    mOutputs[command] = std::move(text);
  }
  /// The command prints what it is said to print, but never comes to its end.
  void SetStuck(const std::string& command) { mStuckCommands.insert(command); }
  void SetMissing(const std::string& path) { mMissingFiles.insert(path); }
  /// What happens when a program is started in the background; it succeeds unless told otherwise.
  void OnStart(std::function<bool(const std::vector<std::string>&)> starting) {
    mStarting = std::move(starting);
  }

 private:
  AccessLog& mLog;
  std::map<std::string, std::string> mOutputs;
  std::set<std::string> mStuckCommands;
  std::set<std::string> mMissingFiles;
  std::function<bool(const std::vector<std::string>&)> mStarting = [](const auto&) { return true; };
};

}  // namespace lurkwell
