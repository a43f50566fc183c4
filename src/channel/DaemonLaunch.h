#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "channel/DaemonChannel.h"
#include "platform/Alerts.h"
#include "platform/Authorization.h"
#include "platform/Clock.h"
#include "platform/RunLoop.h"

namespace lurkwell {

/// The helper's way from a file to an open channel, and back to one whenever it is lost. Nothing
/// here waits: what cannot be done yet is tried again by a timer of the run loop. Main thread.
class DaemonLaunch final : public DaemonChannelWatcher {
 public:
  /// `unprivileged`: with the user's own rights, and nobody is asked.
  explicit DaemonLaunch(bool unprivileged);
  ~DaemonLaunch() override;
  DaemonLaunch(const DaemonLaunch&) = delete;
  DaemonLaunch& operator=(const DaemonLaunch&) = delete;

  /// As far as it goes at once.
  void Begin();
  const DaemonStatus& Status() const { return mStatus; }

  void Answered() override;
  void LeftOutstanding() override;
  void Lost() override;

 private:
  enum class Phase {
    kBeginning,
    kOpening,     ///< pipes are there, and a helper that should open them
    kChecking,    ///< it was asked who it is
    kPermitting,  ///< the permission step runs, or its question is open
    kAlert,       ///< the user reads why that failed
    kServing,     ///< the channel is open
    kPausing,     ///< until the next try after a loss
    kEnded,
  };
  enum class Purpose { kCheck, kServe, kServeWithAuthorization };

  void Run();
  /// One step; whether the next one may follow at once.
  bool Advance();
  bool AdvanceBeginning();
  bool AdvanceOpening();
  bool AdvanceChecking();
  bool AdvancePermitting();
  bool AdvanceAlert();
  bool AdvanceServing();

  std::string Install();
  bool Open(Purpose purpose);
  bool OpenOwnHelper(const std::string& obstacle);
  bool CheckPermissions();
  bool Checked(bool hasRights);
  bool SetPermissions();
  bool ReplaceCopy();
  bool StepFailed();
  bool ServeUnprivileged(const std::string& reason, bool mayAsk);
  bool Opened();
  bool OpeningFailed();
  void GoOnIn(std::chrono::milliseconds delay);
  std::chrono::milliseconds Passed() const;

  const bool mUnprivileged;
  bool mAlways = false;
  bool mWasPermitted = false;
  bool mHasReplaced = false;
  bool mHasServed = false;
  bool mSaidLost = false;
  Phase mPhase = Phase::kBeginning;
  Purpose mPurpose = Purpose::kCheck;
  std::string mHelperPath;
  std::string mSaidReason;
  DaemonStatus mStatus;
  /// What the status is while the helper that comes next serves.
  DaemonStatus mServed;
  TimeValue mSince;
  std::chrono::milliseconds mDelay;
  std::unique_ptr<AuthorizationReference> mAuthRef;
  std::optional<DaemonChannelOpening> mOpening;
  std::unique_ptr<Alert> mAlert;
  std::optional<AlertAnswer> mAnswer;
  std::unique_ptr<RunLoopTimer> mTimer;
};

}  // namespace lurkwell
