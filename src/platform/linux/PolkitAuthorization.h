#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "platform/Authorization.h"
#include "platform/Bundle.h"
#include "platform/FileDescriptor.h"

namespace lurkwell {

/// Programs run as root through pkexec, or directly when the user is root already.
///
/// What the user owns is never run as root: whichever copy of the helper is asked for, a program of
/// the application's own in Contents/Resources runs in its place, in the folder of the copy, with
/// the same arguments: the helper, or for a step Lurkwell_permissions. Nobody is asked where that
/// one could be changed by others than root, or where a step that is tried with the user's own
/// rights finds more in its way than these.
class PolkitAuthorization final : public Authorization {
 public:
  enum class Consent {
    kOnlyIfGiven,  ///< never a question: works for root alone
    kMayAsk,       ///< asks through the desktop's authentication agent
  };

  /// `bundle` outlives this. `pkexec` is the program that asks.
  explicit PolkitAuthorization(const Bundle& bundle, Consent consent = Consent::kOnlyIfGiven,
                               std::string pkexec = "/usr/bin/pkexec");
  ~PolkitAuthorization() override;
  PolkitAuthorization(const PolkitAuthorization&) = delete;
  PolkitAuthorization& operator=(const PolkitAuthorization&) = delete;

  std::unique_ptr<AuthorizationReference> Create() override;
  /// The step is given five minutes, the question included.
  bool ExecuteWithPrivileges(AuthorizationReference& reference, const std::string& path,
                             const std::vector<std::string>& arguments) override;
  Step StepState() override;
  std::string FailureReason() const override { return mReason; }
  Remedy FailureRemedy() const override { return mRemedy; }
  bool IsAsking() override;
  int CollectChild() override;

 private:
  struct Child {
    pid_t pid;
    FileDescriptor handle;
  };

  bool Fail(Remedy remedy, std::string reason);
  bool MayStart(const std::string& program, const std::string& folder, bool isStep);
  enum class Says { kToCaller, kNothing };
  bool Start(const std::string& folder, const std::vector<std::string>& arguments,
             Says says = Says::kToCaller);
  bool StartAsRoot(const std::string& folder, std::vector<std::string> command);
  bool AskForStep();
  bool StepStarted();
  Step StepTried(int status);
  Step StepEnded(int status);
  void ReapEnded();

  const Bundle& mBundle;
  Consent mConsent;
  std::string mPkexec;
  std::string mReason;
  Remedy mRemedy = Remedy::kNone;
  Step mStepState = Step::kFailed;
  /// The step, while it is tried with the user's own rights.
  bool mIsTrying = false;
  std::string mStepFolder;
  std::vector<std::string> mStepCommand;
  pid_t mStep = -1;
  std::chrono::steady_clock::time_point mStepEnd;
  std::vector<Child> mChildren;
  /// Children that ended and have not been told of yet.
  std::vector<pid_t> mEnded;
};

}  // namespace lurkwell
