#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Authorization.h"
#include "platform/simulated/AccessLog.h"

namespace lurkwell {

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

}  // namespace lurkwell
