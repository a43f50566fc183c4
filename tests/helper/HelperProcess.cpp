#include "helper/HelperProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace lurkwell::helper::testing {

namespace {

void Check(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

int OpenInTime(const std::string& path, int flags, pid_t pid) {
  for (int tries = 0; tries < 5000; ++tries) {
    const int descriptor = open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC);
    if (descriptor >= 0) {
      fcntl(descriptor, F_SETFL, flags);
      // As applications do, so that the helper knows them.
      struct flock lock {};
      lock.l_type = F_WRLCK;
      if (flags == O_WRONLY) fcntl(descriptor, F_SETLK, &lock);
      return descriptor;
    }
    siginfo_t info{};
    if (waitid(P_PID, static_cast<id_t>(pid), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
        info.si_pid == pid)
      return -1;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return -1;
}

}  // namespace

std::string HelperPath() {
  return LURKWELL_TEST_HELPER;
}

std::string StepPath() {
  return LURKWELL_TEST_PERMISSIONS;
}

void Install(const std::string& program, const std::string& path, uid_t owner, gid_t group,
             mode_t mode) {
  std::filesystem::copy_file(program, path, std::filesystem::copy_options::overwrite_existing);
  Check(chown(path.c_str(), owner, group) == 0 && chmod(path.c_str(), mode) == 0, "install");
}

int RunPermissionStep(const std::string& program, const std::string& folder, uid_t user) {
  return InChild([&] {
    const std::string asking = "PKEXEC_UID=" + std::to_string(user);
    const char* const arguments[] = {program.c_str(), "--set_permissions_appropriately", nullptr};
    const char* const environment[] = {asking.c_str(), nullptr};
    const int null = open("/dev/null", O_WRONLY);
    if (chdir(folder.c_str()) != 0 || dup2(null, STDERR_FILENO) < 0) return 98;
    execve(program.c_str(), const_cast<char* const*>(arguments),
           const_cast<char* const*>(environment));
    return 97;
  });
}

void Shell(const std::string& command) {
  Check(std::system(command.c_str()) == 0, command.c_str());
}

bool RunBehind(pid_t pid, std::uint64_t call) {
  for (int status = 0;;) {
    __ptrace_syscall_info info{};
    if (ptrace(PTRACE_SYSCALL, pid, nullptr, nullptr) != 0 || waitpid(pid, &status, 0) != pid ||
        !WIFSTOPPED(status))
      return false;
    const bool entered = ptrace(PTRACE_GET_SYSCALL_INFO, pid, sizeof info, &info) > 0 &&
                         info.op == PTRACE_SYSCALL_INFO_ENTRY && info.entry.nr == call;
    if (entered)
      return ptrace(PTRACE_SYSCALL, pid, nullptr, nullptr) == 0 && waitpid(pid, &status, 0) == pid;
  }
}

HelperProcess::HelperProcess(uid_t user, const std::string& program,
                             const std::function<void()>& prepare, bool asRoot)
    : mFolder(0700, user) {
  signal(SIGPIPE, SIG_IGN);
  const std::string requests = mFolder / "requests", answers = mFolder / "answers";
  for (const std::string& path : {requests, answers})
    Check(
        mkfifo(path.c_str(), 0600) == 0 && (geteuid() != 0 || chown(path.c_str(), user, user) == 0),
        "mkfifo");
  mPid = Fork();
  if (mPid == 0) {
    if (!asRoot && user != geteuid()) BecomeUser(user);
    if (prepare) prepare();
    execl(program.c_str(), program.c_str(), requests.c_str(), answers.c_str(), nullptr);
    _exit(97);
  }
  mRequests = OpenInTime(requests, O_WRONLY, mPid);
  if (mRequests < 0 ||
      !Send("Is somebody keeping you down? Speak up, help has just arrived here.\n"))
    return;
  mAnswers = OpenInTime(answers, O_RDONLY, mPid);
  mIsOpen = mAnswers >= 0 && !Receive().empty();
  if (mIsOpen) mFolder.Remove();
}

HelperProcess::~HelperProcess() {
  Close();
}

bool HelperProcess::Send(std::string_view request) {
  return write(mRequests, request.data(), request.size()) == static_cast<ssize_t>(request.size());
}

std::string HelperProcess::Receive() {
  pollfd waiting{mAnswers, POLLIN, 0};
  std::string answer(8191, '\0');
  if (poll(&waiting, 1, 5000) <= 0) return {};
  const ssize_t size = read(mAnswers, answer.data(), answer.size());
  answer.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
  return answer;
}

std::string HelperProcess::Ask(std::string_view request) {
  return Send(request) ? Receive() : std::string();
}

std::string HelperProcess::Act(std::string_view verbLine) {
  return Ask("Lkw Action Request:\n" + std::string(verbLine));
}

std::string HelperProcess::Figures(std::string_view lines) {
  return Ask("Lkw Info Extraction:\n" + std::string(lines));
}

int HelperProcess::Close() {
  if (mPid < 0) return 0;
  close(mRequests);
  close(mAnswers);
  const pid_t pid = mPid;
  mPid = mRequests = mAnswers = -1;
  return WaitFor(pid, 5);
}

char Canary::State() const {
  const std::string stat = ReadFile("/proc/" + std::to_string(Pid()) + "/stat");
  const std::size_t end = stat.rfind(')');
  return end == std::string::npos ? '-' : stat[end + 2];
}

bool Canary::Becomes(std::string_view states) const {
  for (int tries = 0; tries < 10000; ++tries) {
    if (states.find(State()) != std::string_view::npos) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return false;
}

}  // namespace lurkwell::helper::testing
