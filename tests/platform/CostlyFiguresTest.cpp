// The figures that are read in the background: of this machine's processes, and of made-up ones
// that hang.
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

#include "platform/linux/LinuxCostlyFigures.h"
#include "platform/linux/LinuxProcessTable.h"
#include "platform/linux/NetworkAccounts.h"
#include "support/Child.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

using std::chrono::steady_clock;

constexpr std::int64_t kMebibyte = 1 << 20;

ProcessIdentity IdentityOf(pid_t pid) {
  return LinuxProcessTable().CurrentIdentity(pid).value_or(ProcessIdentity{});
}

/// The next reading of these processes that is collected, as beats would; nothing when none comes
/// in ten seconds.
std::optional<CostlyReading> NextReading(CostlyFigures& figures,
                                         const std::vector<CostlyWish>& wishes) {
  for (int i = 0; i < 1000; ++i) {
    if (i % 100 == 0) figures.Ask(wishes);
    auto readings = figures.Collect();
    if (!readings.empty()) return readings.back();
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return std::nullopt;
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

/// A made-up process without memory or descriptors, but for what a test puts there.
void Make(const TemporaryFolder& tree, int pid) {
  const auto folder = std::to_string(pid);
  tree.Write(folder + "/stat", folder +
                                   " (x) S 1 0 0 0 0 0 0 0 0 0 0 0 0 0 20 0 1 0 77 4096 1 0 0 0 0 0"
                                   " 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0\n");
  tree.Write(folder + "/smaps_rollup", "x\nPss: 5 kB\nPrivate_Clean: 1 kB\nPrivate_Dirty: 2 kB\n");
  std::filesystem::create_directories(tree.Path() + '/' + folder + "/fd");
}

TEST(CostlyFigures, ComeOnAlthoughAReadingHangs) {
  const TemporaryFolder tree;
  for (int pid = 2; pid <= 4; ++pid) Make(tree, pid);
  const std::string stuck = tree.Path() + "/2/smaps_rollup";
  std::filesystem::remove(stuck);
  ASSERT_EQ(::mkfifo(stuck.c_str(), 0600), 0);
  const auto begun = steady_clock::now();
  {
    LinuxCostlyFigures figures(tree.Path());
    const std::vector<CostlyWish> wishes = {{{2, 77}, kFromMemoryMap, true},
                                            {{3, 77}, kFromMemoryMap},
                                            {{4, 77}, kFromDescriptorCount}};
    std::vector<std::int32_t> read;
    for (int beat = 0; beat < 100 && read.size() < 2; ++beat) {
      figures.Ask(wishes);
      for (const auto& reading : figures.Collect()) {
        read.push_back(reading.process.pid);
        if (reading.process.pid != 3) continue;
        EXPECT_EQ(reading.figures.Get(FigureCalled("pid_uss")), 3 * 1024);
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    EXPECT_EQ(read, (std::vector<std::int32_t>{3, 4}));
    EXPECT_GE(steady_clock::now() - begun, std::chrono::milliseconds(900)) << "it did hang";
  }
  // The thread that hung ends with its reading.
  ::close(::open(stuck.c_str(), O_WRONLY));
}

TEST(CostlyFigures, OfGraphicsDevicesCountAClientOnceAndLookAtNothingElse) {
  const TemporaryFolder tree;
  Make(tree, 2);
  Make(tree, 3);
  Make(tree, 4);
  tree.Write("dri/renderD128", "");
  const auto link = [&](const std::string& descriptor, const std::string& target) {
    std::filesystem::remove(tree / descriptor);
    std::filesystem::create_symlink(target, tree / descriptor);
  };
  const auto use = [&](const std::string& descriptor, const char* client, const char* cycles) {
    tree.Write(descriptor, std::string("drm-driver:\txe\ndrm-client-id:\t") + client +
                               "\ndrm-resident-vram0:\t4 MiB\ndrm-cycles-rcs:\t" + cycles +
                               "\ndrm-total-cycles-rcs:\t" + cycles + "00\n");
  };
  for (const char* descriptor : {"2/fd/3", "2/fd/4"}) link(descriptor, tree / "dri/renderD128");
  link("2/fd/5", "/dev/null");
  link("4/fd/0", "/dev/nvidia0");
  for (const char* info : {"2/fdinfo/3", "2/fdinfo/4", "2/fdinfo/5"})
    use(info, info == std::string("2/fdinfo/5") ? "8" : "7", "1");
  constexpr Figure kShareFigure = FigureCalled("pid_gpu_share");
  constexpr Figure kMemory = FigureCalled("pid_gpu_memory");
  LinuxCostlyFigures figures(tree.Path(), tree.Path(), tree / "dri");
  const auto read = [&](std::int32_t pid) {
    return NextReading(figures, {{{pid, 77}, kFromGraphics}}).value_or(CostlyReading{}).figures;
  };
  EXPECT_EQ(read(3).StateOf(kShareFigure), FigureState::kKnown) << "without a device it uses none";
  EXPECT_EQ(read(4).StateOf(kShareFigure), FigureState::kUncounted)
      << "a driver that tells nothing";
  // All processes of interest stay asked for, else they are forgotten.
  const auto first = read(2);
  EXPECT_EQ(first.StateOf(kShareFigure), FigureState::kUnread) << "of one look";
  EXPECT_EQ(first.Get(kMemory), 4 * kMebibyte);
  // A number that was another file's a moment ago is not looked at again so soon.
  link("2/fd/5", tree / "dri/renderD128");
  for (const char* info : {"2/fdinfo/3", "2/fdinfo/4"}) use(info, "7", "31");
  const auto second = read(2);
  EXPECT_EQ(second.Get(kShareFigure), 1000) << "a hundredth of the cycles";
  EXPECT_EQ(second.GetText(FigureCalled("pid_gpu_engine")), "rcs");
  EXPECT_EQ(second.Get(kMemory), 4 * kMebibyte);
  LinuxCostlyFigures without(tree.Path(), tree.Path(), tree / "none");
  const auto reading = NextReading(without, {{{2, 77}, kFromGraphics}});
  ASSERT_TRUE(reading);
  EXPECT_EQ(reading->figures.StateOf(kMemory), FigureState::kUncounted);
}

/// Processor time of all threads but this one so far, in microseconds.
std::int64_t TimeOfOthers() {
  const auto timeOf = [](clockid_t clock) {
    timespec time{};
    ::clock_gettime(clock, &time);
    return time.tv_sec * std::int64_t{1'000'000} + time.tv_nsec / 1000;
  };
  return timeOf(CLOCK_PROCESS_CPUTIME_ID) - timeOf(CLOCK_THREAD_CPUTIME_ID);
}

TEST(CostlyFigures, TakeNoMoreTimeThanTheyAreAllowed) {
  const TemporaryFolder tree;
  Make(tree, 2);
  Make(tree, 3);
  LinuxCostlyFigures figures(tree.Path());
  constexpr FigureSources kCheap = kFromMemoryMap | kFromDescriptorCount;
  std::vector<CostlyWish> wishes(50'000, {{2, 77}, kCheap, false});
  // What is in sight goes before.
  wishes.push_back({{3, 77}, kCheap, true});
  const auto begun = steady_clock::now();
  const auto atFirst = TimeOfOthers();
  figures.Ask(wishes);
  std::this_thread::sleep_for(std::chrono::seconds(1));
  const auto taken = TimeOfOthers() - atFirst;
  const auto passed =
      std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - begun);
  const auto readings = figures.Collect();
  ASSERT_GT(readings.size(), 100u);
  EXPECT_LT(readings.size(), wishes.size());
  EXPECT_EQ(readings.front().process.pid, 3);
  // The beginning, 50 us in each millisecond, and what a reading may take too long.
  EXPECT_LE(taken, 100'000 + 50 * passed.count() + 60'000);
  // And nothing runs while nothing is asked.
  figures.Ask({});
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  const auto before = TimeOfOthers();
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  EXPECT_NEAR(static_cast<double>(TimeOfOthers()), static_cast<double>(before), 5'000);
}

}  // namespace
}  // namespace lurkwell
