#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "platform/Authorization.h"
#include "platform/Bundle.h"
#include "platform/linux/FileDescriptor.h"

namespace lurkwell {

/// Programs run as root through pkexec, or directly when the user is root already.
///
/// What the user owns is never run as root: whichever copy of the helper is asked for, a program of
/// the application's own in Contents/Resources runs in its place, in the folder of the copy, with
/// the same arguments: the helper, or for a step Lurkwell_permissions. Nobody is asked where that
/// one could be changed by others than root.
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
  bool Start(const std::string& folder, const std::vector<std::string>& arguments);
  void ReapEnded();

  const Bundle& mBundle;
  Consent mConsent;
  std::string mPkexec;
  std::string mReason;
  Remedy mRemedy = Remedy::kNone;
  Step mStepState = Step::kFailed;
  pid_t mStep = -1;
  std::chrono::steady_clock::time_point mStepEnd;
  std::vector<Child> mChildren;
  /// Children that ended and have not been told of yet.
  std::vector<pid_t> mEnded;
};

}  // namespace lurkwell
