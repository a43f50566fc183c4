#include "channel/DaemonCommunication.h"

#include <memory>

#include "channel/DaemonChannel.h"
#include "channel/DaemonLaunch.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

/// Asked for on the command line.
bool gUnprivileged = false;

std::unique_ptr<DaemonLaunch> gLaunch;

void Launch(bool unprivileged) {
  gLaunch = std::make_unique<DaemonLaunch>(unprivileged);
  gDaemonChannelWatcher = gLaunch.get();
  gLaunch->Begin();
}

}  // namespace

void SetHelperUnprivileged(bool unprivileged) {
  gUnprivileged = unprivileged;
}

void LaunchHelperDaemon() {
  Launch(gUnprivileged);
}

const DaemonStatus& GetDaemonStatus() {
  static const DaemonStatus kNotBegun{DaemonRights::kStarting, {}, false};
  return gLaunch == nullptr ? kNotBegun : gLaunch->Status();
}

void AskForDaemonRights() {
  QuitHelperDaemon();
  StoreInt("GENERAL_CONTINUE_WITHOUT_RIGHTS", 0);
  Launch(false);
}

int QuitHelperDaemon() {
  gDaemonChannelWatcher = nullptr;
  gLaunch.reset();
  gDaemonPID = -1;
  return CloseDaemonChannel();
}

}  // namespace lurkwell
