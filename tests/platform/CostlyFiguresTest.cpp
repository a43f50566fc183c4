// The figures that are read in the background, of this machine's processes.
#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "CostlyReadings.h"
#include "platform/linux/LinuxCostlyFigures.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/NetworkAccounts.h"
#include "support/Child.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

ProcessIdentity IdentityOf(pid_t pid) {
  return LinuxProcessTable().CurrentIdentity(pid).value_or(ProcessIdentity{});
}

std::optional<CostlyReading> ReadingOf(CostlyFigures& figures, pid_t pid, FigureSources sources) {
  return NextReading(figures, {{IdentityOf(pid), sources}});
}

/// Maps 100 MiB, of which the kernel fills half: about what the program writes itself, a sanitizer
/// keeps books in memory.
void TakeMemory() {
  constexpr std::size_t kHalf = 50 * kMebibyte;
  for (const int filled : {MAP_POPULATE, 0})
    ::mmap(nullptr, kHalf, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | filled, -1, 0);
}

std::string Descriptors(pid_t pid) {
  const std::string command = "ls /proc/" + std::to_string(pid) + "/fd | wc -l";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  int count = 0;
  return std::fscanf(pipe.get(), "%d", &count) == 1 ? std::to_string(count) : "";
}

TEST(CostlyFigures, OfAProcessThatHasNotRunAreNotReadAgainSoon) {
  LinuxCostlyFigures figures;
  const Child child;
  const CostlyWish wish{IdentityOf(child.Pid()), kFromMemoryMap, false, 5};
  ASSERT_TRUE(NextReading(figures, {wish}));
  const auto isReadAgain = [&](std::optional<std::uint64_t> activity, int tenths) {
    auto next = wish;
    next.activity = activity;
    bool isRead = false;
    for (int i = 0; i < tenths && !isRead; ++i) {
      figures.Ask({next});
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
      isRead = !figures.Collect().empty();
    }
    return isRead;
  };
  EXPECT_FALSE(isReadAgain(5, 15));
  EXPECT_TRUE(isReadAgain(6, 100)) << "it has run";
  EXPECT_TRUE(isReadAgain({}, 100)) << "nobody knows";
}

TEST(CostlyFigures, TellWhatMemoryIsItsOwnAndWhatIsShared) {
  constexpr Figure kPss = FigureCalled("pid_pss"), kUss = FigureCalled("pid_uss");
  LinuxCostlyFigures figures;
  // Beside it there are some pages of the test program, and more of a sanitizer.
  const Child without;
  const auto none = ReadingOf(figures, without.Pid(), kFromMemoryMap);
  const Child alone([] { TakeMemory(); });
  const auto own = ReadingOf(figures, alone.Pid(), kFromMemoryMap);
  ASSERT_TRUE(none && own);
  const auto besides = [&](const CostlyReading& reading, Figure figure) {
    return static_cast<double>(reading.figures.Get(figure) - none->figures.Get(figure));
  };
  EXPECT_LT(none->figures.Get(kUss), 50 * kMebibyte);
  EXPECT_NEAR(besides(*own, kUss), 50 * kMebibyte, 4 * kMebibyte);
  EXPECT_NEAR(besides(*own, kPss), 50 * kMebibyte, 4 * kMebibyte);
  const Child sharing([] {
    TakeMemory();
    if (::fork() == 0) {
      ::prctl(PR_SET_PDEATHSIG, SIGKILL);
      // There is no waiting for what this one has open.
      ::close_range(3, ~0u, 0);
      for (;;) ::pause();
    }
  });
  const auto half = ReadingOf(figures, sharing.Pid(), kFromMemoryMap);
  ASSERT_TRUE(half);
  EXPECT_LT(besides(*half, kUss), 4 * kMebibyte);
  EXPECT_NEAR(besides(*half, kPss), 25 * kMebibyte, 4 * kMebibyte);
}

TEST(CostlyFigures, CountDescriptorsAndTellWhatIsNotAllowed) {
  ASSERT_EQ(::geteuid(), 0u);
  const Child child([] {
    for (int i = 0; i < 40; ++i) EXPECT_GE(::open("/dev/null", O_RDONLY), 0);
  });
  constexpr Figure kCount = FigureCalled("pid_descriptors");
  // Its thread ends before a process is forked that has threads, too.
  auto ours = std::make_optional<LinuxCostlyFigures>();
  const auto reading = ReadingOf(*ours, child.Pid(), kFromDescriptorCount);
  ours.reset();
  ASSERT_TRUE(reading);
  EXPECT_EQ(std::to_string(reading->figures.Get(kCount)), Descriptors(child.Pid()));
  EXPECT_GE(reading->figures.Get(kCount), 40);
  EXPECT_EQ(RunForked([&]() -> std::string {
              BecomeUser(kStranger);
              LinuxCostlyFigures figures;
              const auto memory = ReadingOf(figures, child.Pid(), kFromMemoryMap);
              const auto others = ReadingOf(figures, child.Pid(), kFromDescriptorCount);
              if (!memory || !others) return "nothing was read";
              if (memory->figures.StateOf(FigureCalled("pid_pss")) != FigureState::kRefused)
                return "memory was not refused";
              // Kernels of 6.2 and later tell every user the number.
              if (others->figures.StateOf(kCount) == FigureState::kKnown &&
                  others->figures.Get(kCount) != reading->figures.Get(kCount))
                return "another number of descriptors";
              return "";
            }),
            "");
}

TEST(CostlyFigures, OfAnEndedProcessAreNotTakenForThoseOfTheNextOne) {
  LinuxCostlyFigures figures;
  const Child child;
  auto earlier = IdentityOf(child.Pid());
  --earlier.startStamp;
  const auto reading = NextReading(figures, {{earlier, kCostlyFigureSources, true},
                                             {IdentityOf(child.Pid()), kFromDescriptorCount}});
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->process, IdentityOf(child.Pid()));
}

int Listen(int protocol = SOCK_STREAM) {
  const int listener = ::socket(AF_INET, protocol | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  EXPECT_EQ(::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  EXPECT_TRUE(protocol != SOCK_STREAM || ::listen(listener, 8) == 0);
  return listener;
}

sockaddr_in AddressOf(int socket) {
  sockaddr_in address{};
  socklen_t length = sizeof address;
  ::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &length);
  return address;
}

int ConnectTo(const sockaddr_in& address, int protocol = SOCK_STREAM) {
  const int connection = ::socket(AF_INET, protocol | SOCK_CLOEXEC, 0);
  EXPECT_EQ(::connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  return connection;
}

void Send(int connection, std::size_t size) {
  const std::vector<char> bytes(size, 'x');
  for (std::size_t sent = 0; sent < size;) {
    const auto now = ::send(connection, bytes.data() + sent, size - sent, MSG_NOSIGNAL);
    ASSERT_GT(now, 0);
    sent += static_cast<std::size_t>(now);
  }
}

void Receive(int connection, std::size_t size) {
  std::vector<char> bytes(1 << 20);
  for (std::size_t received = 0; received < size;) {
    const auto now = ::recv(connection, bytes.data(), bytes.size(), 0);
    ASSERT_GT(now, 0);
    received += static_cast<std::size_t>(now);
  }
}

constexpr Figure kReceived = FigureCalled("pid_net_received"), kSent = FigureCalled("pid_net_sent");
constexpr Figure kConnections = FigureCalled("pid_connections");

TEST(CostlyFigures, TellWhatTwoProcessesHaveSentEachOther) {
  constexpr std::size_t kSize = 50'000'000;
  const int listener = Listen();
  const auto address = AddressOf(listener);
  const Child sender([&] {
    ::close(listener);
    const int connection = ConnectTo(address);
    // What is held twice counts once.
    EXPECT_GE(::dup(connection), 0);
    std::thread([connection] { Send(connection, kSize); }).detach();
  });
  const Child receiver([&] { Receive(::accept(listener, nullptr, nullptr), kSize); });
  ::close(listener);
  LinuxCostlyFigures figures;
  const auto received = ReadingOf(figures, receiver.Pid(), kFromSockets);
  const auto sent = ReadingOf(figures, sender.Pid(), kFromSockets);
  ASSERT_TRUE(received && sent);
  // The beginning and the end of a connection count as a byte each.
  EXPECT_NEAR(static_cast<double>(received->figures.Get(kReceived)), kSize, 2);
  EXPECT_NEAR(static_cast<double>(sent->figures.Get(kSent)), kSize, 2);
  EXPECT_EQ(received->figures.Get(kConnections), 1);
  EXPECT_EQ(sent->figures.Get(kConnections), 1);
  EXPECT_EQ(received->figures.GetText(FigureCalled("pid_listening_ports")),
            std::to_string(ntohs(address.sin_port)));
  EXPECT_EQ(sent->figures.GetText(FigureCalled("pid_listening_ports")), "");
}

TEST(CostlyFigures, TellWhatAProcessHasOpen) {
  ASSERT_EQ(::geteuid(), 0u);
  const TemporaryFolder folder;
  const std::string file = folder.Path() + "/held";
  WriteFile(file, "x");
  const int tcp = Listen(), udp = Listen(SOCK_DGRAM);
  const auto port = [](int socket) { return std::to_string(ntohs(AddressOf(socket).sin_port)); };
  const auto has = [](const std::optional<CostlyReading>& reading, Figure figure,
                      const std::string& separator, const std::string& part) {
    const auto text = separator + (reading ? reading->figures.GetText(figure) : "") + separator;
    return text.find(separator + part + separator) != std::string::npos;
  };
  constexpr Figure kPorts = FigureCalled("pid_ports"), kFiles = FigureCalled("pid_open_files");
  const Child holder([&] {
    EXPECT_GE(::open(file.c_str(), O_RDONLY), 0);
    EXPECT_EQ(::chdir(folder.Path().c_str()), 0);
  });
  const Child other([&] {
    ::close(tcp);
    ConnectTo(AddressOf(udp), SOCK_DGRAM);
    ::close(udp);
  });
  // A network of its own has its own ports; the numbers of its sockets are nobody else's.
  const Child elsewhere([&] {
    ::close(tcp);
    ::close(udp);
    ASSERT_EQ(::unshare(CLONE_NEWNET), 0);
    const int listener = ::socket(AF_INET6, SOCK_STREAM, 0);
    sockaddr_in6 address{};
    address.sin6_family = AF_INET6;
    address.sin6_port = htons(4711);
    EXPECT_EQ(::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(::listen(listener, 8), 0);
  });
  LinuxCostlyFigures figures;
  const auto ports = ReadingOf(figures, holder.Pid(), kFromPorts);
  EXPECT_TRUE(has(ports, kPorts, ", ", port(tcp)));
  EXPECT_TRUE(has(ports, kPorts, ", ", port(udp)));
  const auto remote = ReadingOf(figures, other.Pid(), kFromPorts);
  EXPECT_TRUE(has(remote, kPorts, ", ", port(udp))) << "at the other end";
  EXPECT_FALSE(has(remote, kPorts, ", ", port(tcp)));
  const auto foreign = ReadingOf(figures, elsewhere.Pid(), kFromPorts);
  ASSERT_TRUE(foreign);
  EXPECT_EQ(foreign->figures.GetText(kPorts), "4711");

  const auto files = ReadingOf(figures, holder.Pid(), kFromOpenFiles);
  EXPECT_TRUE(has(files, kFiles, "\n", file));
  EXPECT_TRUE(has(files, kFiles, "\n", folder.Path())) << "where it works";
  EXPECT_FALSE(has(ReadingOf(figures, other.Pid(), kFromOpenFiles), kFiles, "\n", file));
  EXPECT_EQ(RunForked([&]() -> std::string {
              BecomeUser(kStranger);
              LinuxCostlyFigures its;
              for (const auto source : {kFromPorts, kFromOpenFiles}) {
                const auto reading = ReadingOf(its, holder.Pid(), source);
                const auto figure = source == kFromPorts ? kPorts : kFiles;
                if (!reading || reading->figures.StateOf(figure) != FigureState::kRefused)
                  return "not refused";
              }
              return "";
            }),
            "");
  ::close(tcp);
  ::close(udp);
}

TEST(CostlyFigures, WhatIsNotCountedOfTheNetworkIsNeverZero) {
  ASSERT_EQ(::geteuid(), 0u);
  const int tcp = Listen();
  const int udp = Listen(SOCK_DGRAM);
  const auto tcpAddress = AddressOf(tcp), udpAddress = AddressOf(udp);
  const Child onlyUdp([&] { Send(ConnectTo(udpAddress, SOCK_DGRAM), 1000); });
  const Child ended([&] {
    const int connection = ConnectTo(tcpAddress);
    Send(connection, 1000);
    ::close(connection);
    ::close(tcp);
  });
  const Child elsewhere([] {
    ASSERT_EQ(::unshare(CLONE_NEWNET), 0);
    EXPECT_EQ(::listen(::socket(AF_INET, SOCK_STREAM, 0), 8), 0);
  });
  LinuxCostlyFigures figures;
  for (const auto* child : {&onlyUdp, &ended, &elsewhere}) {
    const auto reading = ReadingOf(figures, child->Pid(), kFromSockets);
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->figures.StateOf(kReceived), FigureState::kUncounted);
    EXPECT_EQ(reading->figures.StateOf(kSent), FigureState::kUncounted);
    if (child == &elsewhere) {
      EXPECT_EQ(reading->figures.StateOf(kConnections), FigureState::kUncounted);
    } else {
      EXPECT_EQ(reading->figures.StateOf(kConnections), FigureState::kKnown);
      EXPECT_EQ(reading->figures.Get(kConnections), 0);
    }
  }
  ::close(tcp);
  ::close(udp);
}

TEST(CostlyFigures, OfAUnitAreToldToOtherUsers) {
  ASSERT_EQ(::geteuid(), 0u);
  const bool isUnified = std::filesystem::exists("/sys/fs/cgroup/cgroup.procs");
  const std::string group = std::string("/sys/fs/cgroup/") + (isUnified ? "" : "unified/") +
                            "lurkwell-test-" + std::to_string(::getpid());
  ASSERT_TRUE(std::filesystem::create_directory(group)) << "no group of its own";
  const int listener = Listen();
  const auto address = AddressOf(listener);
  {
    const Child child([&] {
      WriteFile(group + "/cgroup.procs", std::to_string(::getpid()));
      Send(ConnectTo(address), 100'000);
    });
    const int connection = ::accept(listener, nullptr, nullptr);
    Receive(connection, 100'000);
    EXPECT_EQ(RunForked([&]() -> std::string {
                BecomeUser(kStranger);
                LinuxCostlyFigures figures;
                const auto own = ReadingOf(figures, child.Pid(), kFromSockets);
                const auto unit = ReadingOf(figures, child.Pid(), kFromUnitSockets);
                if (!own || own->figures.StateOf(kSent) != FigureState::kRefused)
                  return "the process's own figures were not refused";
                if (!unit) return "nothing was read";
                const auto sent = unit->figures.Get(FigureCalled("pid_unit_net_sent"));
                return sent >= 100'000 && sent <= 100'002 ? "" : std::to_string(sent);
              }),
              "");
    ::close(connection);
  }
  ::close(listener);
  std::filesystem::remove(group);
}

TEST(CostlyFigures, CountConnectionsFromWhereTheirHolderHasThem) {
  NetworkAccounts accounts;
  NetworkAccount first, heir, unit;
  const auto socket = [](std::uint64_t cookie, std::uint64_t received) {
    return TcpSocket{
        .cookie = cookie, .inode = cookie, .group = 9, .received = received, .sent = received / 10};
  };
  const auto received = [&](NetworkAccount& account, std::vector<std::uint64_t> inodes) {
    return accounts.OfSockets(account, inodes).received;
  };
  accounts.Take({socket(1, 1000)}, 1000);
  EXPECT_EQ(received(first, {1, 1}), 1000u) << "what a live connection tells";
  EXPECT_FALSE(accounts.OfSockets(heir, {}).isCounted);
  EXPECT_EQ(accounts.OfGroup(unit, 9).sent, 100u);
  accounts.Take({socket(1, 1500), socket(2, 70)}, 3000);
  EXPECT_EQ(received(first, {1, 2}), 1570u) << "a new one from its beginning";
  EXPECT_EQ(received(heir, {1}), 0u) << "one that was handed over from then on";
  accounts.Take({socket(1, 1600), socket(3, 5)}, 5000);
  EXPECT_EQ(received(first, {3}), 1575u) << "what ended keeps its last figures";
  EXPECT_EQ(received(heir, {1}), 100u);
  EXPECT_EQ(accounts.OfGroup(unit, 9).received, 1605u);
  EXPECT_EQ(accounts.OfGroup(unit, 9).connections, 2);
}

}  // namespace
}  // namespace lurkwell
