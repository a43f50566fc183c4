#include "process_control/DaemonCommunication.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "platform/Alerts.h"
#include "platform/Assertion.h"
#include "platform/Authorization.h"
#include "platform/Bundle.h"
#include "platform/Machine.h"
#include "preferences/PreferencesRetrieval.h"
#include "process_control/DaemonChannel.h"
#include "process_control/DaemonInstallation.h"
#include "process_control/DaemonRelaunch.h"
#include "process_control/Unit.h"

namespace lurkwell {
namespace {

constexpr char kPermissionArgument[] = "--set_permissions_appropriately";

/// Asked for on the command line, or by the user when the rights could not be had.
bool gUnprivileged = false;

bool AlwaysAuthenticates() {
  return GetPrefInt("GENERAL_ALWAYS_AUTHENTICATE_DAEMON", nullptr, true, 0) >= 1;
}

/// Why the helper cannot be installed; "" when it is.
std::string ObstacleToInstallation() {
  const auto folder = TheMachine().bundle.ApplicationSupportFolder();
  if (!folder || folder->size() + sizeof kHelperInApplicationSupport > kLongestPath + 1)
    return "there is no folder for application data";
  return InstallHelper(EscapedBundlePath(), *folder);
}

std::string HelperInBundle() {
  return TheMachine().bundle.Path() + kHelperInBundle;
}

/// Opens the channel of a helper with whatever rights are to be had.
void LaunchInstalledDaemon(bool always) {
  if (gUnprivileged || (!always && CheckDaemonPermissions()))
    return LaunchDaemonWithoutAuthorization();
  const auto authRef = TheMachine().authorization.Create();
  SetDaemonPermissions(authRef.get());
  if (gUnprivileged || (!always && CheckDaemonPermissions())) {
    LaunchDaemonWithoutAuthorization();
  } else {
    LaunchDaemonWithAuthorization(authRef.get());
  }
}

/// A reason is said when it is new, however often it comes.
void SayReason(const std::string& reason, std::string& said) {
  if (reason == said) return;
  std::fprintf(stderr, "lurkwell: the helper gets no rights: %s\n", reason.c_str());
  said = reason;
}

}  // namespace

void SetHelperUnprivileged(bool unprivileged) {
  gUnprivileged = unprivileged;
}

void LaunchHelperDaemon() {
  const bool always = AlwaysAuthenticates();
  std::string obstacle = ObstacleToInstallation();
  if (obstacle.empty()) {
    LaunchInstalledDaemon(always);
    const auto folder = TheMachine().bundle.ApplicationSupportFolder();
    if (gFd_a2d >= 0) return WatchDaemonChannel(folder.value_or("") + kHelperInApplicationSupport);
    obstacle = "the installed one does not start";
  }
  std::fprintf(stderr, "lurkwell: the helper runs with your own rights: %s\n", obstacle.c_str());
  NormalInternalLaunchDaemon(HelperInBundle().c_str(), nullptr);
  WatchDaemonChannel(HelperInBundle());
}

int QuitHelperDaemon() {
  UnwatchDaemonChannel();
  gDaemonPID = -1;
  return CloseDaemonChannel();
}

bool CheckDaemonPermissions() {
  constexpr std::int32_t kCapacity = 300;
  std::array<char, kCapacity + 1> answer{};
  LaunchDaemonWithoutAuthorization();
  // On a busy machine patience costs less than a password that was not needed.
  const auto usual = std::exchange(gDaemonLimits.answering, gDaemonLimits.opening);
  QueryDaemon("geteuid", answer.data(), kCapacity);
  gDaemonLimits.answering = usual;
  QuitHelperDaemon();
  return answer[0] == '0';
}

void SetDaemonPermissions(AuthorizationReference* authRef) {
  Require(authRef != nullptr, kDaemonUnit, "authRef != NULL");
  InternalLaunchHelperDaemon(authRef, true);
}

void LaunchDaemonWithoutAuthorization() {
  InternalLaunchHelperDaemon(nullptr, false);
}

void LaunchDaemonWithAuthorization(AuthorizationReference* authRef) {
  Require(authRef != nullptr, kDaemonUnit, "authRef != NULL");
  InternalLaunchHelperDaemon(authRef, false);
}

void InternalLaunchHelperDaemon(AuthorizationReference* authRef, bool setPermissions) {
  std::array<char, kLongestPath + 1> path{};
  const bool succeeded = EnsureThatDaemonIsInApplicationSupport(
      EscapedBundlePath().c_str(), path.data(), static_cast<std::int32_t>(path.size()));
  Require(succeeded, kDaemonUnit, "succeeded");
  if (setPermissions) {
    Require(authRef != nullptr, kDaemonUnit, "authRef != NULL");
    SetPermissionsInternalLaunchDaemon(path.data(), authRef);
  } else {
    NormalInternalLaunchDaemon(path.data(), authRef);
  }
}

void SetPermissionsInternalLaunchDaemon(const char* helperPath, AuthorizationReference* authRef) {
  Require(authRef != nullptr, kDaemonUnit, "authRef != NULL");
  auto& machine = TheMachine();
  for (int child = 0; (child = machine.authorization.WaitForChild()) != -1;)
    if (child == gDaemonPID) break;
  std::string said;
  while (
      !machine.authorization.ExecuteWithPrivileges(*authRef, helperPath, {kPermissionArgument})) {
    SayReason(machine.authorization.FailureReason(), said);
    const auto answer = machine.alerts.RunAlertPanel(
        "Lurkwell must be authenticated in order to run on this computer with an administrator "
        "password.",
        " ", "Authenticate Again", "Quit Lurkwell", "Continue Without");
    if (answer == AlertButton::kAlternate) std::exit(0);
    if (answer == AlertButton::kOther) return SetHelperUnprivileged(true);
  }
  machine.authorization.WaitForChild();
}

}  // namespace lurkwell
