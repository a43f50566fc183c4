#include "platform/linux/PolkitAuthorization.h"

#include <signal.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <utility>

#include "platform/FileDescriptor.h"
#include "platform/linux/OwnFolders.h"
#include "platform/linux/ToolProcess.h"

namespace lurkwell {
namespace {

using std::chrono::steady_clock;

constexpr auto kLongestStep = std::chrono::minutes(5);
constexpr char kHelper[] = "/Contents/Resources/Lurkwell_helper";
constexpr char kPermissionStep[] = "/Contents/Resources/Lurkwell_permissions";
// What pkexec itself ends with.
constexpr int kDismissed = 126;
constexpr int kNotAuthorized = 127;
// What the permission step ends with where more than rights is missing, or only these.
constexpr int kBadCopy = 65;
constexpr int kNoHelper = 72;
constexpr int kCannotWrite = 73;
constexpr int kNotPermitted = 77;
constexpr int kBadFolder = 78;
// No status of a process.
constexpr int kKilled = -1;
constexpr int kUnknown = -2;

bool IsRoot() {
  return ::geteuid() == 0;
}

/// What keeps programs in the folder from getting rights; empty when nothing does. The step looks
/// at the same.
std::string WhatForbidsRights(const std::string& folder) {
  constexpr std::pair<unsigned long, const char*> kFlags[] = {
      {ST_NOSUID, "nosuid"}, {ST_NOEXEC, "noexec"}, {ST_RDONLY, "read-only"}};
  struct statvfs system {};
  std::string names;
  if (::statvfs(folder.c_str(), &system) != 0) return names;
  for (const auto& [flag, name] : kFlags)
    if ((system.f_flag & flag) != 0) names += (names.empty() ? "" : ", ") + std::string(name);
  return names;
}

using Remedy = Authorization::Remedy;

/// What the step's status means, and what may help.
std::pair<Remedy, std::string> WhatStatusMeans(int status, const std::string& folder) {
  if (!IsRoot() && status == kDismissed) return {Remedy::kAskAgain, "the question was dismissed"};
  if (!IsRoot() && status == kNotAuthorized)
    return {Remedy::kAskAgain, "the authorisation was refused, or there is no agent to ask for it"};
  switch (status) {
    case kKilled:
      return {Remedy::kAskAgain, "the permission step was killed"};
    case kBadCopy:
      return {Remedy::kFreshCopy,
              "the helper in " + folder + " is not one that this Lurkwell knows"};
    case kNoHelper:
      return {Remedy::kMachine,
              "the installed helper is missing, or others than root can change it"};
    case kCannotWrite:
      return {Remedy::kMachine, "the helper in " + folder + " cannot be replaced"};
    case kBadFolder:
      return {Remedy::kMachine,
              "the folder " + folder + " is not yours alone, or is reached over a link"};
    default:
      return {Remedy::kAskAgain, "the permission step ended with status " + std::to_string(status)};
  }
}

class Reference final : public AuthorizationReference {};

}  // namespace

PolkitAuthorization::PolkitAuthorization(const Bundle& bundle, Consent consent, std::string pkexec)
    : mBundle(bundle), mConsent(consent), mPkexec(std::move(pkexec)) {}

PolkitAuthorization::~PolkitAuthorization() {
  // A question must not outlive the program that asks it.
  if (IsAsking()) SendThroughHandle(mChildren.back().handle, SIGKILL);
  ReapEnded();
}

std::unique_ptr<AuthorizationReference> PolkitAuthorization::Create() {
  return std::make_unique<Reference>();
}

bool PolkitAuthorization::Fail(Remedy remedy, std::string reason) {
  mRemedy = remedy;
  mReason = std::move(reason);
  mStepState = Step::kFailed;
  return false;
}

bool PolkitAuthorization::ExecuteWithPrivileges(AuthorizationReference&, const std::string& path,
                                                const std::vector<std::string>& arguments) {
  ReapEnded();
  const std::string folder = path.substr(0, path.rfind('/'));
  const bool isStep = arguments.size() == 1;
  const std::string program = mBundle.Path() + (isStep ? kPermissionStep : kHelper);
  if (!MayStart(program, folder, isStep)) return false;
  std::vector<std::string> command{program};
  command.insert(command.end(), arguments.begin(), arguments.end());
  if (!isStep) return StartAsRoot(folder, std::move(command));
  mStepFolder = folder;
  mStepCommand = std::move(command);
  mIsTrying = !IsRoot();
  return mIsTrying ? Start(folder, mStepCommand, Says::kNothing) && StepStarted() : AskForStep();
}

bool PolkitAuthorization::StartAsRoot(const std::string& folder, std::vector<std::string> command) {
  // Without the question in the terminal: who started the program there may not even look at it.
  if (!IsRoot())
    command.insert(command.begin(), {mPkexec, "--disable-internal-agent", "--keep-cwd"});
  return Start(folder, command);
}

bool PolkitAuthorization::AskForStep() {
  mIsTrying = false;
  return StartAsRoot(mStepFolder, mStepCommand) && StepStarted();
}

bool PolkitAuthorization::StepStarted() {
  mStepState = Step::kRunning;
  mStep = mChildren.back().pid;
  mStepEnd = steady_clock::now() + kLongestStep;
  return true;
}

/// Nobody is asked for a password that would be of no use.
bool PolkitAuthorization::MayStart(const std::string& program, const std::string& folder,
                                   bool isStep) {
  const std::string forbidden = isStep ? WhatForbidsRights(folder) : std::string();
  if (!forbidden.empty())
    return Fail(Remedy::kMachine,
                "the file system of " + folder + " gives programs no rights (" + forbidden + ")");
  if (IsRoot()) return true;
  if (mConsent == Consent::kOnlyIfGiven)
    return Fail(Remedy::kNone, "nobody is asked for a password in a terminal");
  if (!BelongsToRoot(program))
    return Fail(Remedy::kNone,
                "this Lurkwell is not an installed one, as others than root can change it; the "
                "package that ./package makes can get rights");
  if (::access(mPkexec.c_str(), X_OK) != 0)
    return Fail(Remedy::kMachine, "there is no " + mPkexec + " to ask an administrator with");
  return true;
}

bool PolkitAuthorization::Start(const std::string& folder,
                                const std::vector<std::string>& arguments, Says says) {
  SpawnSettings settings;
  if (says == Says::kNothing) settings.UseNullDevice(STDERR_FILENO);
  settings.SetFolder(folder);
  Child child{-1, {}};
  if (const int error = settings.Start(arguments, child.pid); error != 0)
    return Fail(Remedy::kMachine,
                "cannot start " + arguments.front() + ": " + std::string(std::strerror(error)));
  child.handle = OpenProcessHandle(child.pid);
  mChildren.push_back(std::move(child));
  return true;
}

Authorization::Step PolkitAuthorization::StepState() {
  if (mStepState != Step::kRunning) return mStepState;
  siginfo_t end{};
  const bool isKnown =
      ::waitid(P_PID, static_cast<id_t>(mStep), &end, WEXITED | WNOHANG | WNOWAIT) == 0;
  if (isKnown && end.si_pid == 0) {
    if (steady_clock::now() < mStepEnd) return Step::kRunning;
    // A step that root runs cannot be ended from here; it goes on by itself.
    SendThroughHandle(mChildren.back().handle, SIGKILL);
    Fail(Remedy::kAskAgain, "the permission step took too long");
    return mStepState;
  }
  ReapEnded();
  // Where the program was started with SIGCHLD ignored, nobody learns how a child ended. Whether
  // the helper has its rights now is looked at in any case.
  const int status = !isKnown ? kUnknown : end.si_code == CLD_EXITED ? end.si_status : kKilled;
  return mIsTrying ? StepTried(status) : StepEnded(status);
}

Authorization::Step PolkitAuthorization::StepTried(int status) {
  if (status == kNotPermitted || status == kUnknown) {
    AskForStep();
    return mStepState;
  }
  return StepEnded(status);
}

Authorization::Step PolkitAuthorization::StepEnded(int status) {
  mStepState = Step::kDone;
  if (status == 0 || status == kUnknown) return mStepState;
  auto [remedy, reason] = WhatStatusMeans(status, mStepFolder);
  Fail(remedy, std::move(reason));
  return mStepState;
}

bool PolkitAuthorization::IsAsking() {
  ReapEnded();
  if (mChildren.empty()) return false;
  // Once it is answered, the program takes the place and the name of the one that asks.
  std::string name;
  std::getline(std::ifstream("/proc/" + std::to_string(mChildren.back().pid) + "/comm"), name);
  // Not even root's names are shown everywhere.
  return name.empty() || mPkexec.substr(mPkexec.rfind('/') + 1).starts_with(name);
}

int PolkitAuthorization::CollectChild() {
  ReapEnded();
  if (mEnded.empty()) return -1;
  const pid_t pid = mEnded.back();
  mEnded.pop_back();
  return pid;
}

void PolkitAuthorization::ReapEnded() {
  std::erase_if(mChildren, [this](const Child& child) {
    if (::waitpid(child.pid, nullptr, WNOHANG) == 0) return false;
    mEnded.push_back(child.pid);
    return true;
  });
}

}  // namespace lurkwell
