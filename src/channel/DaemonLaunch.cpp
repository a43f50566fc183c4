#include "channel/DaemonLaunch.h"

#include <algorithm>
#include <cerrno>
#include <span>
#include <string_view>
#include <utility>

#include "channel/DaemonInstallation.h"
#include "platform/Bundle.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/UserText.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

using Milliseconds = std::chrono::milliseconds;
using State = DaemonChannelOpening::State;

constexpr char kPermissionArgument[] = "--set_permissions_appropriately";
constexpr char kWithoutRightsKey[] = "GENERAL_CONTINUE_WITHOUT_RIGHTS";
constexpr Milliseconds kFirstDelay{1000};
constexpr Milliseconds kLongestDelay{60'000};
/// Between two looks at what is under way.
constexpr Milliseconds kStep{20};
constexpr std::size_t kUserCapacity = 300;

bool AlwaysAuthenticates() {
  return ReadInt("GENERAL_ALWAYS_AUTHENTICATE_DAEMON") >= 1;
}

bool GoesOnWithoutRights() {
  return ReadInt(kWithoutRightsKey) >= 1;
}

/// All children that have ended.
void CollectChildren() {
  for (int child = 0; (child = TheMachine().authorization.CollectChild()) != -1;)
    if (child == gDaemonPID) break;
}

std::string Sentence(std::string clause) {
  if (!clause.empty() && clause[0] >= 'a' && clause[0] <= 'z')
    clause[0] = static_cast<char>(clause[0] - 'a' + 'A');
  return clause;
}

AlertText RefusalText(const std::string& reason, bool mayAskAgain) {
  AlertText text;
  text.title = UserText("helper_refused_title",
                        "Lurkwell must be authenticated in order to run on this computer with an "
                        "administrator password.");
  text.message =
      Sentence(reason) + ".\n\n" +
      UserText("helper_refused_text",
               "Without an administrator's rights Lurkwell shows every process and acts on your "
               "own. It will not ask at the next start; the status line says how to be asked.");
  if (mayAskAgain) text.defaultButton = UserText("helper_refused_again", "Authenticate Again");
  text.alternateButton = UserText("helper_refused_quit", "Quit Lurkwell");
  text.otherButton = UserText("helper_refused_without", "Continue Without");
  return text;
}

}  // namespace

DaemonLaunch::DaemonLaunch(bool unprivileged)
    : mUnprivileged(unprivileged),
      mDelay(kFirstDelay),
      mTimer(TheMachine().runLoop.AddTimer(TheMachine().clock.AbsoluteTime() + 1e9, 0,
                                           [this] { Run(); })) {}

DaemonLaunch::~DaemonLaunch() = default;

void DaemonLaunch::Begin() {
  mStatus.rights = DaemonRights::kStarting;
  Run();
}

void DaemonLaunch::Run() {
  while (Advance()) {
  }
}

bool DaemonLaunch::Advance() {
  switch (mPhase) {
    case Phase::kBeginning:
      return AdvanceBeginning();
    case Phase::kOpening:
      return AdvanceOpening();
    case Phase::kChecking:
      return AdvanceChecking();
    case Phase::kPermitting:
      return AdvancePermitting();
    case Phase::kAlert:
      return AdvanceAlert();
    case Phase::kServing:
      return AdvanceServing();
    case Phase::kPausing:
      return Open(Purpose::kServe);
    case Phase::kEnded:
      return false;
  }
  return false;
}

void DaemonLaunch::GoOnIn(Milliseconds delay) {
  mTimer->SetNextFireDate(TheMachine().clock.AbsoluteTime() +
                          std::chrono::duration<double>(delay).count());
}

Milliseconds DaemonLaunch::Passed() const {
  return Milliseconds(MillisecondsBetween(mSince, TheMachine().clock.Now()));
}

bool DaemonLaunch::AdvanceBeginning() {
  mAlways = AlwaysAuthenticates();
  if (const auto obstacle = Install(); !obstacle.empty()) return OpenOwnHelper(obstacle);
  if (mUnprivileged)
    return ServeUnprivileged(
        UserText("helper_not_wanted", "Lurkwell was started without an administrator's rights"),
        true);
  return mAlways ? SetPermissions() : CheckPermissions();
}

/// Has the helper where it can be given rights. "" or why it cannot be.
std::string DaemonLaunch::Install() {
  char path[kHelperPathCapacity];
  std::string obstacle;
  if (EnsureThatDaemonIsInApplicationSupport(EscapedBundlePath().c_str(), path, sizeof path,
                                             obstacle))
    mHelperPath = path;
  return obstacle;
}

// ---- Opening a channel --------------------------------------------------------------------------

bool DaemonLaunch::Open(Purpose purpose) {
  mPhase = Phase::kOpening;
  mPurpose = purpose;
  mOpening.emplace();
  mSince = TheMachine().clock.Now();
  auto* authRef = purpose == Purpose::kServeWithAuthorization ? mAuthRef.get() : nullptr;
  return mOpening->Start(mHelperPath, authRef) || OpeningFailed();
}

bool DaemonLaunch::AdvanceOpening() {
  const State state = mOpening->Advance();
  if (state == State::kOpen) return Opened();
  const bool isAsking = mPurpose == Purpose::kServeWithAuthorization && !mHasServed &&
                        TheMachine().authorization.IsAsking();
  const auto limit = isAsking ? gDaemonLimits.asking : gDaemonLimits.opening;
  if (state == State::kFailed || Passed() >= limit) return OpeningFailed();
  GoOnIn(kStep);
  return false;
}

bool DaemonLaunch::Opened() {
  if (mPurpose == Purpose::kCheck) {
    mPhase = Phase::kChecking;
    mSince = TheMachine().clock.Now();
    return mOpening->Send("geteuid") || Checked(false);
  }
  mOpening->Take();
  mOpening.reset();
  mAuthRef.reset();
  mPhase = Phase::kServing;
  mHasServed = true;
  mStatus = mServed;
  GoOnIn(gDaemonLimits.pulse);
  return false;
}

bool DaemonLaunch::OpeningFailed() {
  if (!mHasServed) mOpening->ReportMissingGreeting();
  mOpening.reset();
  if (mPurpose == Purpose::kCheck) return Checked(false);
  const bool isOwn = mHelperPath == TheMachine().bundle.Path() + kHelperInBundle;
  if (!mHasServed && !isOwn) return OpenOwnHelper("the installed one does not start");
  Lost();
  return false;
}

bool DaemonLaunch::OpenOwnHelper(const std::string& obstacle) {
  Diagnose("the helper runs with your own rights: %s", obstacle.c_str());
  mHelperPath = TheMachine().bundle.Path() + kHelperInBundle;
  return ServeUnprivileged("The helper cannot be given rights: " + obstacle, false);
}

bool DaemonLaunch::ServeUnprivileged(const std::string& reason, bool mayAsk) {
  mServed = {DaemonRights::kOwn, reason, mayAsk};
  return Open(Purpose::kServe);
}

// ---- Rights -------------------------------------------------------------------------------------

bool DaemonLaunch::CheckPermissions() {
  return Open(Purpose::kCheck);
}

bool DaemonLaunch::AdvanceChecking() {
  char user[kUserCapacity];
  const auto size = mOpening->Receive(user);
  // On a busy machine patience costs less than a password that was not needed.
  if (size < 0 && errno == ETIMEDOUT && Passed() < gDaemonLimits.opening) {
    GoOnIn(kStep);
    return false;
  }
  return Checked(size > 0 && user[0] == '0');
}

bool DaemonLaunch::Checked(bool hasRights) {
  mOpening.reset();
  if (hasRights) {
    mServed = {DaemonRights::kFull, {}, false};
    return Open(Purpose::kServe);
  }
  if (mWasPermitted) {
    mServed = {DaemonRights::kFull, {}, false};
    return Open(Purpose::kServeWithAuthorization);
  }
  if (GoesOnWithoutRights())
    return ServeUnprivileged(UserText("helper_refused_by_user",
                                      "Lurkwell goes on without an administrator's rights, as you "
                                      "chose"),
                             true);
  return SetPermissions();
}

bool DaemonLaunch::SetPermissions() {
  auto& authorization = TheMachine().authorization;
  if (mAuthRef == nullptr) {
    mAuthRef = authorization.Create();
    CollectChildren();
  }
  mPhase = Phase::kPermitting;
  return authorization.ExecuteWithPrivileges(*mAuthRef, mHelperPath, {kPermissionArgument}) ||
         StepFailed();
}

bool DaemonLaunch::AdvancePermitting() {
  switch (TheMachine().authorization.StepState()) {
    case Authorization::Step::kRunning:
      GoOnIn(kStep);
      return false;
    case Authorization::Step::kFailed:
      return StepFailed();
    case Authorization::Step::kDone:
      break;
  }
  TheMachine().authorization.CollectChild();
  mWasPermitted = true;
  if (!mAlways) return CheckPermissions();
  mServed = {DaemonRights::kFull, {}, false};
  return Open(Purpose::kServeWithAuthorization);
}

/// Whether a fresh copy took the place of one that gets no rights. Once: what this program has put
/// there itself is as good as it gets.
bool DaemonLaunch::ReplaceCopy() {
  if (mHasReplaced) return false;
  mHasReplaced = true;
  auto obstacle = PutHelperAside(mHelperPath);
  if (obstacle.empty()) obstacle = Install();
  if (!obstacle.empty()) {
    Diagnose("%s", obstacle.c_str());
    return false;
  }
  Diagnose("%s; it is %s%s now, and a fresh copy takes its place",
           TheMachine().authorization.FailureReason().c_str(), mHelperPath.c_str(),
           kHelperPutAside);
  return true;
}

bool DaemonLaunch::StepFailed() {
  auto& machine = TheMachine();
  if (machine.authorization.FailureRemedy() == Authorization::Remedy::kFreshCopy && ReplaceCopy())
    return SetPermissions();
  const std::string reason = machine.authorization.FailureReason();
  if (reason != mSaidReason) Diagnose("the helper gets no rights: %s", reason.c_str());
  mSaidReason = reason;
  const auto remedy = machine.authorization.FailureRemedy();
  if (remedy == Authorization::Remedy::kNone) return ServeUnprivileged(Sentence(reason), false);
  mPhase = Phase::kAlert;
  mAnswer.reset();
  const auto text = RefusalText(reason, remedy == Authorization::Remedy::kAskAgain);
  mAlert = machine.alerts.Ask(text, [this](AlertAnswer answer) {
    mAnswer = answer;
    GoOnIn(Milliseconds(0));
  });
  return true;
}

bool DaemonLaunch::AdvanceAlert() {
  if (!mAnswer) return false;
  mAlert.reset();
  switch (*mAnswer) {
    case AlertAnswer::kDefault:
      return SetPermissions();
    case AlertAnswer::kAlternate:
      mPhase = Phase::kEnded;
      TheMachine().runLoop.Stop();
      return false;
    case AlertAnswer::kOther:
      StoreInt(kWithoutRightsKey, 1);
      break;
    case AlertAnswer::kNobody:
      break;
  }
  return ServeUnprivileged(Sentence(mSaidReason), true);
}

// ---- Serving ------------------------------------------------------------------------------------

bool DaemonLaunch::AdvanceServing() {
  CollectChildren();
  SettleDaemonChannel();
  if (mPhase == Phase::kServing) GoOnIn(gDaemonLimits.pulse);
  return false;
}

void DaemonLaunch::Answered() {
  mDelay = kFirstDelay;
}

void DaemonLaunch::LeftOutstanding() {
  GoOnIn(gDaemonLimits.answering);
}

void DaemonLaunch::Lost() {
  if (!std::exchange(mSaidLost, true)) Diagnose("the helper does not answer; starting another");
  // What an administrator started is gone, and nobody is asked again.
  if (mPurpose == Purpose::kServeWithAuthorization)
    mServed = {DaemonRights::kOwn, "The helper that an administrator started has ended", true};
  mStatus = {DaemonRights::kNone, "The helper does not answer; another one is being started",
             mServed.mayAsk};
  mPhase = Phase::kPausing;
  GoOnIn(std::exchange(mDelay, std::min(2 * mDelay, kLongestDelay)));
}

}  // namespace lurkwell
