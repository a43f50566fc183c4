// What the real helper writes into the system's log.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <string>
#include <thread>
#include <vector>

#include "helper/HelperProcess.h"

namespace lurkwell::helper::testing {
namespace {

constexpr sockaddr_un kLogPlace{AF_UNIX, "/dev/log"};
const auto* const kLogAddress = reinterpret_cast<const sockaddr*>(&kLogPlace);

/// A system log of the test's own, in a mount namespace of its own; the socket's descriptor.
int OpenSystemLog() {
  if (unshare(CLONE_NEWNS) != 0) return -1;
  Shell(
      "mount --make-rprivate / && mount -t tmpfs -o mode=755 none /dev && "
      "mknod -m 666 /dev/null c 1 3");
  const int log = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  const bool bound = bind(log, kLogAddress, sizeof(sockaddr_un)) == 0;
  return bound && chmod("/dev/log", 0666) == 0 ? log : -1;
}

/// The lines that wait in it, without what the test has put there itself.
std::vector<std::string> LinesIn(int log) {
  std::vector<std::string> lines;
  char line[1024];
  for (ssize_t size; (size = recv(log, line, sizeof line, MSG_DONTWAIT)) > 0;)
    if (size > 1) lines.emplace_back(line, static_cast<std::size_t>(size));
  return lines;
}

TEST(ServeLogTest, LinesThatTheSystemLogDoesNotTakeAreCountedAndTold) {
  const int log = OpenSystemLog();
  ASSERT_GE(log, 0);
  Canary canary(kUser);
  HelperProcess helper(kUser);
  const std::string continued = "kill_cont " + std::to_string(canary.Pid());
  const auto fill = [&] {
    const int other = socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    while (sendto(other, "x", 1, 0, kLogAddress, sizeof(sockaddr_un)) == 1) {
    }
    close(other);
  };
  const std::string who = "<86>Lurkwell_helper[" + std::to_string(helper.Pid()) + "]: uid=61001";
  fill();
  for (int round = 0; round < 3; ++round) EXPECT_EQ(helper.Act(continued), "ok");
  EXPECT_EQ(LinesIn(log).size(), 0u);
  EXPECT_EQ(helper.Act(continued), "ok");
  auto lines = LinesIn(log);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], who + " lost=3");
  EXPECT_TRUE(lines[1].starts_with(who + " verb=kill_cont ")) << lines[1];
  EXPECT_EQ(helper.Act(continued), "ok");
  EXPECT_EQ(LinesIn(log).size(), 1u) << "told once";
  // At its end at the latest.
  fill();
  EXPECT_EQ(helper.Act(continued), "ok");
  EXPECT_EQ(LinesIn(log).size(), 0u);
  EXPECT_EQ(helper.Close(), 0);
  lines = LinesIn(log);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0], who + " lost=1");
  close(log);
}

TEST(ServeLogTest, AThousandActionsAreAThousandLinesOfTheSystemLog) {
  const int log = OpenSystemLog();
  ASSERT_GE(log, 0);
  std::vector<std::string> lines;
  std::thread reader([&] {
    char line[1024];
    for (ssize_t size; (size = recv(log, line, sizeof line, 0)) > 1;)
      lines.emplace_back(line, static_cast<std::size_t>(size));
  });
  Canary canary(kUser);
  HelperProcess helper(kUser);
  int done = 0;
  for (int round = 0; round < 1000; ++round)
    done += helper.Act("kill_cont " + std::to_string(canary.Pid())) == "ok";
  EXPECT_EQ(helper.Close(), 0);
  sendto(log, "x", 1, 0, kLogAddress, sizeof(sockaddr_un));
  reader.join();
  close(log);
  EXPECT_EQ(done, 1000);
  ASSERT_EQ(lines.size(), 1000u);
  const std::string part = " uid=61001 verb=kill_cont pid=" + std::to_string(canary.Pid()) + ' ';
  for (const std::string& line : lines) EXPECT_NE(line.find(part), std::string::npos) << line;
}

}  // namespace
}  // namespace lurkwell::helper::testing
