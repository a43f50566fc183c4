#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Alerts.h"
#include "platform/Authorization.h"
#include "platform/Bundle.h"
#include "platform/HostStatistics.h"
#include "platform/LogFiles.h"
#include "platform/Notifications.h"
#include "platform/PreferenceDomain.h"
#include "platform/Scheduler.h"
#include "platform/Signals.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

/// Figures of the machine that the engine assumes: every process maps 512 MiB of shared text and
/// data. The others are the test's to set.
class SimulatedHostStatistics final : public HostStatistics {
 public:
  std::int64_t SharedTextAndDataSize() const override { return 0x20000000; }
  std::optional<std::int64_t> PageSize() const override { return pageSize; }
  bool ReadVirtualMemory(VirtualMemoryStatistics& statistics) const override {
    if (virtualMemory) statistics = *virtualMemory;
    return virtualMemory.has_value();
  }
  std::int64_t PhysicalMemory() const override { return physicalMemory; }
  int Processors() const override { return processors; }
  MachineFigures Read(MachineSources) const override { return machine; }
  std::unique_ptr<ProcessBirths> CountBirths() const override {
    return births ? std::make_unique<Births>(*this) : nullptr;
  }

  std::optional<std::int64_t> pageSize = 4096;
  std::optional<VirtualMemoryStatistics> virtualMemory =
      VirtualMemoryStatistics{131'072, 65'536, 32'768, 0};
  std::int64_t physicalMemory = 1'073'741'824;
  int processors = 1;
  MachineFigures machine;
  /// How many have begun each time it is asked for; with nothing from the beginning nobody counts.
  std::optional<std::int64_t> births;

 private:
  class Births final : public ProcessBirths {
   public:
    explicit Births(const SimulatedHostStatistics& machine) : mMachine(machine) {}
    std::optional<std::int64_t> Since() override { return mMachine.births; }

   private:
    const SimulatedHostStatistics& mMachine;
  };
};

/// Signals are recorded, never sent; a test may have them refused.
class SimulatedSignals final : public Signals {
 public:
  explicit SimulatedSignals(AccessLog& log) : mLog(log) {}

  bool Send(ProcessIdentity process, int signal) override {
    if (process.pid < 2) return false;
    mLog.Add("Signals.Send " + std::to_string(process.pid) + " " + std::to_string(signal));
    return !refuses;
  }

  bool refuses = false;

 private:
  AccessLog& mLog;
};

/// Changes are recorded; what is told of processes, and the answer, are the test's to set.
class SimulatedScheduler final : public Scheduler {
 public:
  explicit SimulatedScheduler(AccessLog& log) : mLog(log) {}

  std::optional<SchedulingState> StateOf(ProcessIdentity) override { return state; }
  SchedulingAnswer Change(ProcessIdentity process, const SchedulingChange& change) override {
    const auto pid = " " + std::to_string(process.pid) + " ";
    if (const auto* policy = std::get_if<SchedulingPolicy>(&change))
      mLog.Add("Scheduler.Policy" + pid + std::to_string(policy->policy) + " " +
               std::to_string(policy->priority));
    else if (const auto* priority = std::get_if<IOPriority>(&change))
      mLog.Add("Scheduler.IOPriority" + pid + std::to_string(priority->Packed()));
    else
      mLog.Add("Scheduler.Processors" + pid + ListOfProcessors(std::get<ProcessorSet>(change)));
    return answer;
  }
  ProcessorSet Processors() const override { return {0xF}; }

  std::optional<SchedulingState> state = SchedulingState{{0, 0}, {0, 0}, {0xF}};
  SchedulingAnswer answer = SchedulingAnswer::kDone;

 private:
  AccessLog& mLog;
};

/// An administrator who consents to everything unless the test says otherwise.
class SimulatedAuthorization final : public Authorization {
 public:
  /// What happens when a program is to be run with privilege: true when it was.
  using Outcome = std::function<bool(const std::string& path, const std::vector<std::string>&)>;

  explicit SimulatedAuthorization(AccessLog& log) : mLog(log) {}

  std::unique_ptr<AuthorizationReference> Create() override;
  bool ExecuteWithPrivileges(AuthorizationReference& reference, const std::string& path,
                             const std::vector<std::string>& arguments) override;
  /// At once.
  Step StepState() override { return Step::kDone; }
  std::string FailureReason() const override { return mReason; }
  Remedy FailureRemedy() const override { return mRemedy; }
  bool IsAsking() override { return mAnswersUntilAsked-- > 0; }
  int CollectChild() override;

  void OnExecute(Outcome outcome) { mOutcome = std::move(outcome); }
  /// What FailureReason and FailureRemedy give after a refusal.
  void SetReason(std::string reason, Remedy remedy = Remedy::kAskAgain) {
    mReason = std::move(reason);
    mRemedy = remedy;
  }
  /// How many more times IsAsking is true.
  void AsksFor(int times) { mAnswersUntilAsked = times; }

 private:
  AccessLog& mLog;
  Outcome mOutcome = [](const auto&, const auto&) { return true; };
  Remedy mRemedy = Remedy::kAskAgain;
  std::string mReason = "the administrator refused";
  int mAnswersUntilAsked = 0;
  int mChildren = 0;
};

/// Folders that the test names; nothing there is made or looked at. Without a name the bundle is
/// "/Lurkwell.app" and there is no folder for application data.
class SimulatedBundle final : public Bundle {
 public:
  std::string Path() const override { return mPath; }
  std::optional<std::string> ApplicationSupportFolder() const override { return mSupport; }

  void SetPath(std::string path) { mPath = std::move(path); }
  void SetApplicationSupportFolder(std::optional<std::string> folder) {
    mSupport = std::move(folder);
  }

 private:
  std::string mPath = "/Lurkwell.app";
  std::optional<std::string> mSupport;
};

/// A user who answers alerts from a list; when it is used up, with the last button that is there.
class SimulatedAlerts final : public Alerts {
 public:
  explicit SimulatedAlerts(AccessLog& log) : mLog(log) {}

  AlertButton RunAlertPanel(const std::string& title, const std::string& message,
                            const std::string& defaultButton, const std::string& alternateButton,
                            const std::string& otherButton) override {
    mLog.Add("Alerts.RunAlertPanel \"" + title + "\" \"" + message + "\" [" + defaultButton + "|" +
             alternateButton + "|" + otherButton + "]");
    if (!mAnswers.empty()) {
      const AlertButton answer = mAnswers.front();
      mAnswers.pop_front();
      return answer;
    }
    if (!otherButton.empty()) return AlertButton::kOther;
    return alternateButton.empty() ? AlertButton::kDefault : AlertButton::kAlternate;
  }

  /// Answered at once, as RunAlertPanel is.
  std::unique_ptr<Alert> Ask(const AlertText& text,
                             std::function<void(AlertAnswer)> answered) override {
    const auto button = RunAlertPanel(text.title, text.message, text.defaultButton,
                                      text.alternateButton, text.otherButton);
    answered(static_cast<AlertAnswer>(button));
    return nullptr;
  }

  void WillAnswer(std::deque<AlertButton> answers) { mAnswers = std::move(answers); }

 private:
  AccessLog& mLog;
  std::deque<AlertButton> mAnswers;
};

/// Log files in memory, on a disk that refuses when the test says so. Outlives its files.
class SimulatedLogFiles final : public LogFiles {
 public:
  Creation Create(std::string_view name) override {
    if (!mProblem.empty()) return {nullptr, mProblem};
    auto path = "/logs/" + std::string(name) + ".tsv";
    mTexts[path] = "";
    return {std::make_unique<File>(*this, std::move(path)), {}};
  }

  Creation Continue(std::string_view name, std::string_view header, std::int64_t) override {
    if (!mProblem.empty()) return {nullptr, mProblem};
    auto path = "/logs/" + std::string(name) + ".tsv";
    auto& text = mTexts[path];
    if (text.empty()) text = std::string(header) + '\n';
    return {std::make_unique<File>(*this, std::move(path)), {}};
  }

  /// Everything fails with these words from now on; works again with none.
  void Refuse(std::string problem) { mProblem = std::move(problem); }

  /// What the files hold, by path.
  const std::map<std::string, std::string>& Texts() const { return mTexts; }
  int OpenFiles() const { return mOpen; }

 private:
  class File final : public LogFile {
   public:
    File(SimulatedLogFiles& disk, std::string path) : mDisk(disk), mPath(std::move(path)) {
      ++mDisk.mOpen;
    }
    ~File() override { --mDisk.mOpen; }

    const std::string& Path() const override { return mPath; }
    std::string Append(std::string_view line) override {
      if (mDisk.mProblem.empty()) mDisk.mTexts[mPath] += std::string(line) + '\n';
      return mDisk.mProblem;
    }

   private:
    SimulatedLogFiles& mDisk;
    std::string mPath;
  };

  std::map<std::string, std::string> mTexts;
  std::string mProblem;
  int mOpen = 0;
};

/// Notifications are recorded; a test may press their buttons, or have them refused.
class SimulatedNotifications final : public Notifications {
 public:
  explicit SimulatedNotifications(AccessLog& log) : mLog(log) {}

  void Show(const std::string& key, const Notification& notification,
            std::function<void()> chosen) override {
    mLog.Add("Notifications.Show " + key + " \"" + notification.title + "\" \"" +
             notification.body + "\" [" + notification.button + "]");
    if (!mProblem.empty() && mFailed) return mFailed(mProblem);
    mChosen.insert_or_assign(key, std::move(chosen));
  }
  void WhenOneFails(std::function<void(const std::string&)> failed) override {
    mFailed = std::move(failed);
  }

  /// All fail with these words from now on.
  void Refuse(std::string problem) { mProblem = std::move(problem); }
  /// How many are on the screen.
  std::size_t Count() const { return mChosen.size(); }
  /// Presses the button of one that is on the screen.
  void Choose(const std::string& key) { mChosen.at(key)(); }

 private:
  AccessLog& mLog;
  std::map<std::string, std::function<void()>> mChosen;
  std::function<void(const std::string&)> mFailed;
  std::string mProblem;
};

/// Settings in memory only. Main thread.
class SimulatedPreferenceDomain final : public PreferenceDomain {
 public:
  const PreferenceValue* Value(std::string_view key) override {
    ++mLookUpCount;
    const auto at = mValues.find(key);
    return at != mValues.end() ? &at->second : nullptr;
  }

  void SetValue(std::string_view key, PreferenceValue value) override {
    mValues.insert_or_assign(std::string(key), std::move(value));
  }

  void RemoveValue(std::string_view key) override {
    if (const auto at = mValues.find(key); at != mValues.end()) mValues.erase(at);
  }

  bool Synchronize() override {
    ++mSynchronizeCount;
    return true;
  }

  /// How often Synchronize was called.
  std::uint64_t SynchronizeCount() const { return mSynchronizeCount; }

  /// How often Value was called.
  std::uint64_t LookUpCount() const { return mLookUpCount; }

  /// Everything stored, by key.
  const std::map<std::string, PreferenceValue, std::less<>>& Values() const { return mValues; }

 private:
  std::map<std::string, PreferenceValue, std::less<>> mValues;
  std::uint64_t mLookUpCount = 0;
  std::uint64_t mSynchronizeCount = 0;
};

}  // namespace lurkwell
