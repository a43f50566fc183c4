#include "helper/HelperProcess.h"

#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
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

Folder::Folder(uid_t user, mode_t mode) {
  char path[] = "/tmp/lurkwell-helper-XXXXXX";
  Check(mkdtemp(path) != nullptr, "mkdtemp");
  mPath = path;
  Check((geteuid() != 0 || chown(path, user, user) == 0) && chmod(path, mode) == 0, "folder");
}

void Folder::Remove() const {
  std::error_code ignored;
  std::filesystem::remove_all(mPath, ignored);
}

int WaitFor(pid_t pid, int seconds) {
  Check(pid > 0, "no process");
  int status = 0;
  for (int passed = 0; waitpid(pid, &status, WNOHANG) == 0; ++passed) {
    if (passed == seconds * 1000) kill(pid, SIGKILL);
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

pid_t Fork() {
  const pid_t child = fork();
  Check(child >= 0, "fork");
  return child;
}

int InChild(const std::function<int()>& body, int seconds) {
  const pid_t child = Fork();
  if (child == 0) try {
      _exit(body());
    } catch (...) {
      _exit(96);
    }
  return WaitFor(child, seconds);
}

void BecomeUser(uid_t user) {
  if (setgroups(0, nullptr) != 0 || setresgid(user, user, user) != 0 ||
      setresuid(user, user, user) != 0)
    _exit(99);
  // As after an exec, from which a real application of the user comes.
  prctl(PR_SET_DUMPABLE, 1);
}

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

std::string ReadAll(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void WriteAll(const std::string& path, std::string_view text) {
  std::ofstream(path, std::ios::binary) << text;
}

HelperProcess::HelperProcess(uid_t user, const std::string& program,
                             const std::function<void()>& prepare, bool asRoot)
    : mFolder(user) {
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

Canary::Canary(uid_t user) : mPid(Fork()) {
  if (mPid != 0) return;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (user != 0) BecomeUser(user);
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  for (;;) pause();
}

Canary::~Canary() {
  if (EndedBy() != 0) return;
  kill(mPid, SIGKILL);
  WaitFor(mPid);
}

char Canary::State() const {
  const std::string stat = ReadAll("/proc/" + std::to_string(mPid) + "/stat");
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

int Canary::EndedBy() {
  int status = 0;
  if (!mEnded && waitpid(mPid, &status, WNOHANG) == mPid) {
    mEnded = true;
    mSignal = WIFSIGNALED(status) ? WTERMSIG(status) : -1;
  }
  return mSignal;
}

}  // namespace lurkwell::helper::testing
