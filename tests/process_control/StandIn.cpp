// Takes the place of a program that the application starts, and misbehaves as a file beside it
// says. In the place of the helper: "absent", "half" (opens one end only), "mute" (opens both),
// "brief" (greets and goes), "noise", "slow" (25 ms an answer), "twice" (answers each request two
// times). In the place of
// pkexec: the status it ends with, "killed", or "yes", upon which root runs what was asked for.
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace {

void Answer(int pipe, const std::string& text) {
  // Without a reader there is nothing to do about it.
  [[maybe_unused]] const auto written = ::write(pipe, text.data(), text.size());
}

std::string Noise(std::mt19937& random) {
  std::string text(random() % 9000 + 1, '\0');
  std::generate(text.begin(), text.end(), [&] { return static_cast<char>(random()); });
  return text;
}

int Help(const std::string& mode, char** pipes) {
  ::alarm(20);
  if (mode == "absent") return 0;
  const int requests = ::open(pipes[0], O_RDONLY);
  const int answers = mode == "half" ? -1 : ::open(pipes[1], O_WRONLY);
  std::mt19937 random(static_cast<std::uint32_t>(::getpid()));
  char request[8192];
  bool greeted = false;
  while (::read(requests, request, sizeof request) > 0) {
    if (mode == "mute" || mode == "half") continue;
    if (!greeted) {
      greeted = true;
      Answer(answers, "Hello.\n");
      if (mode == "brief") return 0;
    } else if (mode == "slow") {
      ::usleep(25'000);
      Answer(answers, mode);
    } else if (mode == "noise") {
      Answer(answers, Noise(random));
    } else {
      Answer(answers, "one");
      ::usleep(1000);
      Answer(answers, "two");
    }
  }
  return 0;
}

/// Root takes over from the user only for the program that was asked for.
int Ask(const std::string& folder, const std::string& mode, int argc, char** argv) {
  std::ofstream asked(folder + "/asked", std::ios::app);
  asked << std::filesystem::current_path().string();
  for (int i = 1; i < argc; ++i) asked << '|' << argv[i];
  asked << std::endl;
  if (mode == "killed") ::raise(SIGKILL);
  if (mode != "yes") return std::stoi(mode);
  std::string user = "PKEXEC_UID=" + std::to_string(::getuid());
  char* environment[] = {user.data(), nullptr};
  // The question is open for a while.
  ::usleep(200'000);
  if (::setgid(0) != 0 || ::setuid(0) != 0) return 98;
  ::execve(argv[3], argv + 3, environment);
  return 97;
}

}  // namespace

int main(int argc, char** argv) {
  const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe");
  const std::string folder = self.parent_path();
  std::ifstream file(folder + "/mode");
  const std::string mode(std::istreambuf_iterator<char>(file), {});
  if (self.filename() == "pkexec") return Ask(folder, mode, argc, argv);
  return argc == 3 ? Help(mode, argv + 1) : 64;
}
