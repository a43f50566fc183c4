#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "consolidator/ProcessInformationClient.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// Writes what it is told into a log, a line each: "NAME added 12", "NAME updated". Needs the
/// properties it is given, for all processes or for some.
class RecordingClient : public ProcessInformationClient {
 public:
  RecordingClient(std::string name, std::int32_t interval, AccessLog& log)
      : ProcessInformationClient(nullptr, interval), mName(std::move(name)), mLog(log) {}
  ~RecordingClient() override { mLog.Add(mName + " deleted"); }

  RecordingClient& Needs(std::set<std::string, std::less<>> properties) {
    mProperties = std::move(properties);
    return *this;
  }
  /// Only these processes; without a call, all.
  RecordingClient& OfPids(std::set<int> pids) {
    mPids = std::move(pids);
    mAllPids = false;
    return *this;
  }
  RecordingClient& NeedsEverything() {
    mEverything = true;
    return *this;
  }

  /// New processes are all that matters.
  RecordingClient& WaitsForBirths() {
    mWaitsForBirths = true;
    return *this;
  }

  bool NeedsEnds() override { return !mWaitsForBirths; }
  bool NeedsOnlyBirths() override { return mWaitsForBirths; }
  void NotifyPidHasBeenAdded(int pid) override { Tell("added", pid); }
  void NotifyPidHasBeenRemoved(int pid) override {
    Tell("removed", pid);
    if (onRemoved) onRemoved(pid);
  }
  void NotifyPidHasChangedAppreciably(int pid) override { Tell("changed", pid); }
  void NotifyPreferencesHaveBeenUpdated() override { mLog.Add(mName + " preferences"); }
  void NotifyProcessesHaveBeenUpdated() override {
    mLog.Add(mName + " updated");
    if (onUpdated) onUpdated();
  }

  void NotifyPSColumnsHaveChanged() override {
    if (onPSColumns) onPSColumns();
  }

  NeedLevel NeedProcPropertiesForPid(int pid) override {
    if (mEverything) return kNeedAllProcProperties;
    return !mProperties.empty() && Wants(pid) ? kNeedSomeProcProperties : kNeedNoProcProperties;
  }
  NeedLevel NeedPidsForProcProperty(const char* property) override {
    if (!mProperties.contains(std::string_view(property))) return kNeedNoPids;
    return mAllPids ? kNeedAllPids : kNeedSomePids;
  }
  bool NeedPidProcProperty(int pid, const char* property) override {
    return mProperties.contains(std::string_view(property)) && Wants(pid);
  }
  const char* TypeName() const override { return mName.c_str(); }

  std::function<void(int)> onRemoved;
  std::function<void()> onUpdated;
  std::function<void()> onPSColumns;

 private:
  bool Wants(int pid) const { return mAllPids || mPids.contains(pid); }
  void Tell(const char* what, int pid) { mLog.Add(mName + " " + what + " " + std::to_string(pid)); }

  std::string mName;
  AccessLog& mLog;
  std::set<std::string, std::less<>> mProperties;
  std::set<int> mPids;
  bool mAllPids = true;
  bool mEverything = false;
  bool mWaitsForBirths = false;
};

}  // namespace lurkwell
