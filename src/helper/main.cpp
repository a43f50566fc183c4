// Lurkwell_helper: signals and renices the processes of others for the application of one user, and
// answers with figures about processes. The only program of the system that has rights of its own.

#include <sys/auxv.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "helper/Channel.h"
#include "helper/Confinement.h"
#include "helper/Launch.h"
#include "helper/OwnFile.h"
#include "helper/Session.h"

#if __USE_FORTIFY_LEVEL < 2 || !defined(__SSP_STRONG__) || !defined(__PIE__)
#error "The helper is built with flags of its own, see CMakeLists.txt."
#endif

namespace lurkwell::helper {

namespace {

constexpr int kExitUsage = 64;
constexpr int kExitSystem = 71;
constexpr int kExitChannel = 76;
constexpr gid_t kNoGroup = 65534;

Session gSession;

/// As whom to serve, and the user id to report: 0 promises the rights to signal and to renice, so
/// whoever does not get both is told his own. Root serves the user who is `asking`; nobody says his
/// group but the pipe, if it is his.
Identity TakeIdentity(uid_t asking, const char* pipe, uid_t& reported) {
  Identity identity{getuid(), getgid(), geteuid() == 0};
  if (identity.user != 0 && identity.privileged) identity.privileged = MayServe(identity.user);
  if (identity.user == 0 && asking != 0) {
    struct stat info;
    const bool isHis = lstat(pipe, &info) == 0 && info.st_uid == asking;
    identity = {asking, isHis ? info.st_gid : kNoGroup, identity.privileged};
  }
  reported = identity.privileged && HasBothRights() ? 0 : identity.user;
  return identity;
}

int Run(const Arguments& arguments, uid_t asking) {
  uid_t reported = 0;
  const Identity identity = TakeIdentity(asking, arguments.requests, reported);
  ConnectLog();
  Channel channel;
  if (chdir("/") != 0 || !Become(identity)) return kExitSystem;
  if (!OpenChannel(arguments.requests, arguments.answers, identity.user, channel))
    return kExitChannel;
  gSession.Begin(kRealSystem, {reported, identity.user, getpid(), FindPeer(channel.requests),
                               static_cast<std::uint32_t>(getauxval(AT_CLKTCK)),
                               static_cast<std::uint32_t>(getauxval(AT_PAGESZ))});
  if (!Confine()) return kExitSystem;
  Serve(channel, gSession);
  TellLostLines();
  return 0;
}

}  // namespace

}  // namespace lurkwell::helper

int main(int argc, char** argv) {
  using namespace lurkwell::helper;
  static Arguments arguments;
  if (!TakeArguments(argc, argv, arguments)) return kExitUsage;
  const uid_t asking = TakeAskingUser();
  if (!ResetProcess(Output::kNone)) return kExitSystem;
  NameProcess(argc, argv);
  return Run(arguments, asking);
}
