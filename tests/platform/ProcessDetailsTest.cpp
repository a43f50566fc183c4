// Details of live children, compared with what the children were made to have.
#include <arpa/inet.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/DetailsReader.h"
#include "platform/linux/DetailsText.h"
#include "platform/linux/LinuxProcessDetails.h"
#include "platform/linux/ProcFiles.h"
#include "support/Child.h"
#include "support/ChildProgram.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

ProcessIdentity IdentityOf(pid_t pid) {
  ProcFiles files("/proc");
  return {pid, CurrentStartStamp(files, pid)};
}

/// By way of the service, as the window asks.
DetailsAnswer Ask(LinuxProcessDetails& details, ProcessIdentity process, DetailsKind kind) {
  const auto reading = details.Begin(process, kind);
  std::optional<DetailsAnswer> answer;
  EXPECT_TRUE(reading != nullptr &&
              ComesTrue([&] { return (answer = reading->Take()).has_value(); }));
  EXPECT_TRUE(answer);
  return answer ? std::move(*answer) : DetailsAnswer();
}

template <typename Row>
std::vector<Row> Rows(pid_t pid, DetailsKind kind) {
  LinuxProcessDetails details;
  auto answer = Ask(details, IdentityOf(pid), kind);
  EXPECT_EQ(answer.state, DetailsState::kKnown);
  auto* rows = std::get_if<std::vector<Row>>(&answer.list);
  EXPECT_NE(rows, nullptr);
  return rows != nullptr ? std::move(*rows) : std::vector<Row>();
}

DetailsState StateOf(ProcessIdentity process, DetailsKind kind) {
  LinuxProcessDetails details;
  return Ask(details, process, kind).state;
}

template <typename Row, typename Is>
Row Find(const std::vector<Row>& rows, Is is) {
  const auto found = std::ranges::find_if(rows, is);
  EXPECT_NE(found, rows.end());
  return found != rows.end() ? *found : Row();
}

DescriptorDetails Descriptor(pid_t pid, int number) {
  return Find(Rows<DescriptorDetails>(pid, DetailsKind::kDescriptors),
              [number](const auto& row) { return row.number == number; });
}

void ListenOn(int number, int family, const sockaddr* address, socklen_t length) {
  const int socket = ::socket(family, SOCK_STREAM, 0);
  ::bind(socket, address, length);
  ::listen(socket, 1);
  ::dup2(socket, number);
}

TEST(ProcessDetails, TellWhatHasDescriptors) {
  const TemporaryFolder folder;
  sockaddr_in internet{};
  internet.sin_family = AF_INET;
  internet.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  const int held = ::socket(AF_INET, SOCK_STREAM, 0);
  socklen_t length = sizeof internet;
  ASSERT_EQ(::bind(held, reinterpret_cast<sockaddr*>(&internet), length), 0);
  ASSERT_EQ(::getsockname(held, reinterpret_cast<sockaddr*>(&internet), &length), 0);
  ::close(held);
  sockaddr_un local{};
  local.sun_family = AF_UNIX;
  std::strcpy(local.sun_path, (folder / "a socket").c_str());
  const std::string hostile = folder / "ends\n\x1b[2J";
  const Child child([&] {
    const int file = ::open(hostile.c_str(), O_RDWR | O_CREAT | O_APPEND, 0600);
    if (::write(file, "12345", 5) != 5) ::_exit(1);
    ::dup2(file, 50);
    ::dup2(::open(folder.Path().c_str(), O_RDONLY | O_DIRECTORY), 51);
    ::dup2(::open("/dev/null", O_WRONLY | O_NONBLOCK), 52);
    ::dup2(::eventfd(0, 0), 53);
    ListenOn(54, AF_INET, reinterpret_cast<const sockaddr*>(&internet), sizeof internet);
    const int client = ::socket(AF_INET, SOCK_STREAM, 0);
    ::connect(client, reinterpret_cast<const sockaddr*>(&internet), sizeof internet);
    ::dup2(client, 55);
    ListenOn(56, AF_UNIX, reinterpret_cast<const sockaddr*>(&local), sizeof local);
    sockaddr_in6 newer{};
    newer.sin6_family = AF_INET6;
    newer.sin6_addr = in6addr_loopback;
    const int datagram = ::socket(AF_INET6, SOCK_DGRAM, 0);
    ::bind(datagram, reinterpret_cast<const sockaddr*>(&newer), sizeof newer);
    ::dup2(datagram, 57);
    ::dup2(::memfd_create("kept", 0), 58);
  });
  const auto what = [&](int number) {
    const auto row = Descriptor(child.Pid(), number);
    return row.kind + "|" + row.target + "|" +
           (row.position ? std::to_string(*row.position) : "-") + "|" + row.flags;
  };
  const std::string port = "127.0.0.1:" + std::to_string(ntohs(internet.sin_port));
  EXPECT_EQ(what(50), "file|" + hostile + "|5|read, write, append");
  EXPECT_EQ(what(51), "directory|" + folder.Path() + "|0|read");
  EXPECT_EQ(what(52), "device|/dev/null|0|write, nonblocking");
  EXPECT_EQ(what(53), "eventfd||-|read, write");
  EXPECT_EQ(what(54), "TCP|" + port + " (listening)|-|read, write");
  EXPECT_THAT(what(55), testing::MatchesRegex("TCP\\|127.0.0.1:[0-9]+ → " + port +
                                              " \\(established\\)\\|-\\|read, write"));
  EXPECT_EQ(what(56), "Unix|" + folder.Path() + "/a socket (stream, listening)|-|read, write");
  EXPECT_THAT(what(57), testing::StartsWith("UDP|[::1]:"));
  EXPECT_EQ(what(58), "memfd|kept (deleted)|0|read, write");
}

TEST(ProcessDetails, TellThreadsMappingsAndLimits) {
  const TemporaryFolder folder;
  constexpr std::size_t kBytes = 4 << 20;
  const std::string file = folder / "mapped";
  WriteFile(file, std::string(kBytes, 'x'));
  const Child child([&] {
    std::thread([] {
      ::pthread_setname_np(::pthread_self(), "busy) \n");
      for (const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(50);
           std::chrono::steady_clock::now() < end;) {
      }
      for (;;) ::pause();
    }).detach();
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    const int mapped = ::open(file.c_str(), O_RDONLY);
    const auto* bytes = static_cast<const volatile char*>(
        ::mmap(nullptr, kBytes, PROT_READ, MAP_PRIVATE | MAP_POPULATE, mapped, 0));
    if (bytes[0] != 'x') ::_exit(1);
    const rlimit limit{100, 200};
    ::setrlimit(RLIMIT_NOFILE, &limit);
  });
  // A sanitizer may have one of its own besides.
  const auto threads = Rows<ThreadDetails>(child.Pid(), DetailsKind::kThreads);
  ASSERT_GE(threads.size(), 2u);
  EXPECT_EQ(threads[0].tid, child.Pid());
  const auto busy = Find(threads, [](const auto& row) { return row.name == "busy) \n"; });
  EXPECT_EQ(busy.state, 'S');
  EXPECT_GT(busy.cpuTime, 5'000);
  EXPECT_LT(busy.cpuTime, 10'000'000);
  const auto mapping = Find(Rows<MappingDetails>(child.Pid(), DetailsKind::kMappings),
                            [&](const auto& row) { return row.file == file; });
  EXPECT_EQ(mapping.end - mapping.begin, kBytes);
  EXPECT_EQ(mapping.resident, static_cast<std::int64_t>(kBytes));
  EXPECT_EQ(mapping.permissions, "r--p");
  const auto limit = Find(Rows<LimitDetails>(child.Pid(), DetailsKind::kLimits),
                          [](const auto& row) { return row.name == "Max open files"; });
  EXPECT_EQ(limit.soft, 100);
  EXPECT_EQ(limit.hard, 200);
  EXPECT_EQ(limit.unit, "files");
}

TEST(ProcessDetails, TellTheEnvironmentOfTheStart) {
  const std::string large(120'000, 'v');
  ChildProgram program({"/usr/bin/env", "-i", "NAME=a=b", "BAD=\xff\x1b[31m", "LARGE=" + large,
                        "sh", "-c", "export NEW=1; echo; read x"});
  ASSERT_EQ(program.ReadLine(), "");
  const auto variables = Rows<VariableDetails>(program.Pid(), DetailsKind::kEnvironment);
  const auto value = [&](const char* name) {
    return Find(variables, [name](const auto& row) { return row.name == name; }).value;
  };
  EXPECT_EQ(value("NAME"), "a=b");
  EXPECT_EQ(value("BAD"), "\xff\x1b[31m");
  EXPECT_EQ(value("LARGE"), large);
  EXPECT_TRUE(std::ranges::none_of(variables, [](const auto& row) { return row.name == "NEW"; }));
}

TEST(ProcessDetails, SayWhyThereAreNone) {
  Child child;
  auto process = IdentityOf(child.Pid());
  EXPECT_EQ(StateOf({process.pid, process.startStamp + 1}, DetailsKind::kThreads),
            DetailsState::kEnded);
  child.End();
  EXPECT_EQ(StateOf(process, DetailsKind::kThreads), DetailsState::kEnded);
}

TEST(ProcessDetails, OfOthersAreRefusedAndThoseOfSecretsAreKept) {
  ASSERT_EQ(::geteuid(), 0u);
  const Child stranger([] { BecomeUser(kStranger); });
  const Child secret([] {
    BecomeUser(kUser);
    ::prctl(PR_SET_DUMPABLE, 0);
  });
  const auto complaint = RunForked([&]() -> std::string {
    BecomeUser(kUser);
    for (const auto kind :
         {DetailsKind::kDescriptors, DetailsKind::kMappings, DetailsKind::kEnvironment}) {
      if (StateOf(IdentityOf(stranger.Pid()), kind) != DetailsState::kRefused)
        return "a stranger's are told";
      if (StateOf(IdentityOf(secret.Pid()), kind) != DetailsState::kKeptSecret)
        return "a secret is none";
    }
    if (StateOf(IdentityOf(stranger.Pid()), DetailsKind::kThreads) != DetailsState::kKnown)
      return "no threads";
    return "";
  });
  EXPECT_EQ(complaint, "");
}

TEST(ProcessDetails, AreBoundedAndCounted) {
  constexpr int kMany = 12'000;
  const Child child([] {
    const rlimit limit{kMany + 100, kMany + 100};
    ::setrlimit(RLIMIT_NOFILE, &limit);
    for (int i = 0; i < kMany; ++i) ::dup(0);
    // Each second page is another mapping.
    auto* memory = static_cast<char*>(::mmap(nullptr, 2 * kMany * std::size_t{4096}, PROT_READ,
                                             MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    for (int i = 0; i < kMany; ++i) ::mprotect(memory + 8192 * i, 4096, PROT_NONE);
  });
  LinuxProcessDetails details;
  for (const auto kind : {DetailsKind::kDescriptors, DetailsKind::kMappings}) {
    const auto answer = Ask(details, IdentityOf(child.Pid()), kind);
    EXPECT_GT(answer.count, kMany);
    EXPECT_EQ(std::visit([](const auto& list) { return list.size(); }, answer.list), kMostDetails);
  }
}

/// Of a made-up process, which has started at 7.
void WriteStat(const TemporaryFolder& proc, int pid) {
  const auto name = std::to_string(pid);
  proc.Write(name + "/stat", name + " (x) S 1 1 1 0 -1 0 0 0 0 0 0 0 0 0 20 0 1 0 7" +
                                 " 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 17 0 0 0 0 0 0\n");
}

TEST(ProcessDetails, OfOneThatHangsKeepNobodyWaitingAndCostFewThreads) {
  const TemporaryFolder proc;
  const auto make = [&](int pid) {
    WriteStat(proc, pid);
    return proc / (std::to_string(pid) + "/environ");
  };
  WriteFile(make(99), "A=1");
  constexpr int kStuck = 30;
  for (int pid = 100; pid < 100 + kStuck; ++pid) ASSERT_EQ(::mkfifo(make(pid).c_str(), 0600), 0);
  {
    LinuxProcessDetails details(proc.Path());
    std::vector<std::unique_ptr<DetailsReading>> readings;
    for (int time = 0; time < 2; ++time)
      for (int pid = 100; pid < 110; ++pid)
        readings.push_back(details.Begin({pid, 7}, DetailsKind::kEnvironment));
    EXPECT_TRUE(std::ranges::none_of(readings, [](const auto& its) { return its == nullptr; }));
    EXPECT_EQ(Ask(details, {99, 7}, DetailsKind::kEnvironment).count, 1) << "others are told";
    for (int pid = 110; pid < 100 + kStuck; ++pid) {
      readings.push_back(details.Begin({pid, 7}, DetailsKind::kEnvironment));
      EXPECT_FALSE(readings.back() != nullptr && readings.back()->Take());
    }
    EXPECT_EQ(details.Begin({99, 7}, DetailsKind::kEnvironment), nullptr);
    // Those that answer after all make room.
    const auto answer = [&](int pid) {
      const int other =
          ::open((proc / (std::to_string(pid) + "/environ")).c_str(), O_WRONLY | O_NONBLOCK);
      if (other >= 0) ::close(other);
      return other >= 0;
    };
    ASSERT_TRUE(ComesTrue([&] { return answer(100); }));
    EXPECT_TRUE(ComesTrue([&] {
      return details.Begin({99, 7}, DetailsKind::kEnvironment) != nullptr;
    }));
    EXPECT_TRUE(readings.front()->Take() || ComesTrue([&] { return bool(readings[0]->Take()); }));
    for (int pid = 101; pid < 100 + kStuck; ++pid) answer(pid);
  }
}

TEST(ProcessDetails, OfAControlGroupComeWithTheLimitsAboveIt) {
  const TemporaryFolder units;
  units.Write("user.slice/app.scope/memory.current", "4096\n");
  units.Write("user.slice/app.scope/memory.max", "max\n");
  units.Write("user.slice/app.scope/cpu.max", "50000 100000\n");
  units.Write("user.slice/app.scope/cpu.stat", "usage_usec 7\nthrottled_usec 3\n");
  units.Write("user.slice/memory.current", "8192\n");
  units.Write("user.slice/memory.max", "1048576\n");
  units.Write("user.slice/pids.max", "max\n");
  const TemporaryFolder proc;
  WriteStat(proc, 99);
  LinuxProcessDetails details(proc.Path(), units.Path());
  const auto ask = [&] { return Ask(details, {99, 7}, DetailsKind::kControlGroup); };
  // No such file, another machine's group, and no such hierarchy.
  EXPECT_EQ(ask().state, DetailsState::kNone);
  for (const char* none : {"1:name=systemd:/user.slice\n", "0::/../user.slice\n"}) {
    proc.Write("99/cgroup", none);
    EXPECT_EQ(ask().state, DetailsState::kNone) << none;
  }
  proc.Write("99/cgroup", "1:name=systemd:/\n0::/user.slice/app.scope\n");
  LinuxProcessDetails elsewhere(proc.Path(), units / "nowhere");
  EXPECT_EQ(Ask(elsewhere, {99, 7}, DetailsKind::kControlGroup).state, DetailsState::kNone);
  const auto answer = ask();
  ASSERT_EQ(answer.state, DetailsState::kKnown);
  EXPECT_EQ(answer.count, 5);
  std::string text;
  for (const auto& row : std::get<std::vector<ControlGroupDetails>>(answer.list))
    text += row.group + " " + row.figure + " " + std::to_string(row.inUse.value_or(-1)) + " " +
            std::to_string(row.limit.value_or(-1)) + "\n";
  EXPECT_EQ(text,
            "/user.slice/app.scope memory 4096 -1\n"
            "/user.slice/app.scope cpu.max -1 500\n"
            "/user.slice/app.scope cpu.usage 7 -1\n"
            "/user.slice/app.scope cpu.throttled 3 -1\n"
            "/user.slice memory 8192 1048576\n");
}

}  // namespace
}  // namespace lurkwell
