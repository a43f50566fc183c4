#include "platform/linux/DetailsReader.h"

#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "platform/FileDescriptor.h"
#include "platform/ProcStat.h"
#include "platform/linux/ControlGroupLimits.h"
#include "platform/linux/DetailsFiles.h"
#include "platform/linux/DetailsText.h"
#include "platform/linux/ProcFiles.h"
#include "platform/linux/UnitFiles.h"

namespace lurkwell {
namespace {

constexpr std::size_t kLongestEnvironment = std::size_t{8} << 20;
constexpr std::size_t kLongestGroupText = 65'536;

std::int64_t DetailsMicroseconds() {
  timespec time{};
  ::clock_gettime(CLOCK_BOOTTIME, &time);
  return time.tv_sec * std::int64_t{1'000'000} + time.tv_nsec / 1000;
}

DetailsState WhyNoDetails(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
      return DetailsState::kRefused;
    case ENOENT:
    case ESRCH:
    case EINVAL:
    case ENOTDIR:
      return DetailsState::kNone;
    default:
      return DetailsState::kFailed;
  }
}

/// One process, whose folder is open.
class DetailsFolder {
 public:
  DetailsFolder(ProcFiles& files, std::int32_t pid)
      : mFiles(files), mFolder(files.OpenFolder(pid)) {}

  bool IsOpen() const { return mFolder.IsOpen(); }

  /// A short file; empty on failure.
  std::string_view Text(const char* name) {
    const auto bytes = mFiles.ReadIn(mFolder.Get(), name, mBuffer);
    return {mBuffer.data(), bytes > 0 ? static_cast<std::size_t>(bytes) : 0};
  }
  /// Whether it is the process that is meant, and has not ended; else why it is not, or why that
  /// cannot be told.
  DetailsState Life(std::uint64_t startStamp) {
    const auto text = Text("stat");
    const auto why = text.empty() ? WhyNoDetails(errno) : DetailsState::kNone;
    const auto stat = ParseProcStat(text);
    if (stat && stat->startStamp == startStamp) return DetailsState::kKnown;
    return why == DetailsState::kNone ? DetailsState::kEnded : why;
  }
  bool IsOwn() {
    const NamedFields status(Text("status"));
    auto users = status.Get("Uid");
    TakeWord(users);
    return ParseWholeNumber(TakeWord(users)) == static_cast<std::int64_t>(::geteuid());
  }

  void Read(DetailsKind kind, const std::string& units, DetailsAnswer& answer);

 private:
  bool ReadThreads(DetailsAnswer& answer);
  bool ReadDescriptors(DetailsAnswer& answer);
  void NameSockets(const std::unordered_map<std::uint64_t, std::vector<std::size_t>>& places,
                   std::vector<DescriptorDetails>& descriptors);
  bool ReadMappings(DetailsAnswer& answer);
  bool ReadEnvironment(DetailsAnswer& answer);
  bool ReadLimits(DetailsAnswer& answer);
  bool ReadControlGroup(const std::string& units, DetailsAnswer& answer);

  ProcFiles& mFiles;
  FileDescriptor mFolder;
  std::array<char, 8192> mBuffer{};
};

bool DetailsFolder::ReadThreads(DetailsAnswer& answer) {
  static const std::int64_t kTick = 1'000'000 / std::max(::sysconf(_SC_CLK_TCK), 1L);
  std::vector<std::int32_t> numbers;
  if (!mFiles.ListThreads(mFolder.Get(), numbers)) return false;
  answer.count = static_cast<std::int64_t>(numbers.size());
  numbers.resize(std::min(numbers.size(), kMostDetails));
  std::vector<ThreadDetails> threads;
  threads.reserve(numbers.size());
  for (const auto tid : numbers) {
    const auto folder = "task/" + std::to_string(tid);
    const auto stat = ParseProcStat(Text((folder + "/stat").c_str()));
    const auto fields = stat ? ParseProcStatFields(*stat) : std::nullopt;
    // It has ended meanwhile.
    if (!fields) continue;
    ThreadDetails thread{.tid = tid,
                         .name = std::string(stat->name),
                         .state = stat->state,
                         .cpuTime = ((*fields)[14] + (*fields)[15]) * kTick,
                         .processor = static_cast<std::int32_t>((*fields)[39]),
                         .nice = stat->nice,
                         .startStamp = stat->startStamp};
    // The same to the nanosecond, where the kernel counts it.
    if (const auto time = ParseNthNumber(Text((folder + "/schedstat").c_str()), 1); time)
      thread.cpuTime = std::max(thread.cpuTime, *time / 1000);
    threads.push_back(std::move(thread));
  }
  answer.list = std::move(threads);
  return true;
}

bool DetailsFolder::ReadDescriptors(DetailsAnswer& answer) {
  std::vector<std::int32_t> numbers;
  if (!mFiles.ListNumbers(mFolder.Get(), "fd", numbers)) return false;
  answer.count = static_cast<std::int64_t>(numbers.size());
  numbers.resize(std::min(numbers.size(), kMostDetails));
  std::vector<DescriptorDetails> descriptors;
  descriptors.reserve(numbers.size());
  std::unordered_map<std::uint64_t, std::vector<std::size_t>> sockets;
  for (const auto number : numbers) {
    const auto name = std::to_string(number);
    const auto length = mFiles.ReadLinkIn(mFolder.Get(), ("fd/" + name).c_str(), mBuffer);
    if (length < 0) continue;
    const std::string_view link(mBuffer.data(), static_cast<std::size_t>(length));
    DescriptorDetails descriptor;
    descriptor.number = number;
    TakeDescriptorLink(link, descriptor);
    if (const auto socket = SocketOfLink(link)) sockets[*socket].push_back(descriptors.size());
    TakeDescriptorInfo(Text(("fdinfo/" + name).c_str()), descriptor);
    descriptors.push_back(std::move(descriptor));
  }
  if (!sockets.empty()) NameSockets(sockets, descriptors);
  answer.list = std::move(descriptors);
  return true;
}

void DetailsFolder::NameSockets(
    const std::unordered_map<std::uint64_t, std::vector<std::size_t>>& places,
    std::vector<DescriptorDetails>& descriptors) {
  using File = SocketFile;
  // Of the process's own network.
  static constexpr std::pair<File, const char*> kFiles[] = {
      {File::kTcp, "net/tcp"},   {File::kTcp6, "net/tcp6"},       {File::kUdp, "net/udp"},
      {File::kUdp6, "net/udp6"}, {File::kUnix, "net/unix"},       {File::kRaw, "net/raw"},
      {File::kRaw6, "net/raw6"}, {File::kNetlink, "net/netlink"}, {File::kPacket, "net/packet"}};
  std::size_t missing = places.size();
  for (const auto& [file, name] : kFiles) {
    if (missing == 0) return;
    const auto take = [&, kind = file](std::string_view line) {
      const auto inode = InodeOfSocketLine(kind, line);
      const auto found = inode ? places.find(*inode) : places.end();
      const auto socket = found != places.end() ? ParseSocket(kind, line) : std::nullopt;
      if (!socket) return true;
      for (const auto place : found->second) {
        descriptors[place].kind = socket->kind;
        descriptors[place].target = socket->target;
      }
      return --missing > 0;
    };
    ReadLines(mFolder.Get(), name, take);
  }
}

bool DetailsFolder::ReadMappings(DetailsAnswer& answer) {
  std::vector<MappingDetails> mappings;
  const bool isRead = ReadLines(mFolder.Get(), "smaps", [&](std::string_view line) {
    if (auto mapping = ParseMapping(line)) {
      ++answer.count;
      // Their sizes cost much more than the others' lines do.
      if (mappings.size() == kMostDetails) return false;
      mappings.push_back(std::move(*mapping));
    } else if (!mappings.empty()) {
      AddMappingSize(line, mappings.back());
    }
    return true;
  });
  if (!isRead) return false;
  if (static_cast<std::size_t>(answer.count) > kMostDetails) {
    answer.count = 0;
    ReadLines(mFolder.Get(), "maps", [&](std::string_view) { return ++answer.count > 0; });
  }
  answer.list = std::move(mappings);
  return true;
}

bool DetailsFolder::ReadEnvironment(DetailsAnswer& answer) {
  const auto text = ReadWhole(mFolder.Get(), "environ", kLongestEnvironment);
  if (!text) return false;
  std::vector<VariableDetails> variables;
  answer.count = ParseEnvironment(*text, kMostDetails, variables);
  answer.list = std::move(variables);
  return true;
}

bool DetailsFolder::ReadLimits(DetailsAnswer& answer) {
  std::vector<LimitDetails> limits;
  const bool isRead = ReadLines(mFolder.Get(), "limits", [&](std::string_view line) {
    if (auto limit = ParseLimit(line)) limits.push_back(std::move(*limit));
    return true;
  });
  answer.count = static_cast<std::int64_t>(limits.size());
  answer.list = std::move(limits);
  return isRead;
}

bool DetailsFolder::ReadControlGroup(const std::string& units, DetailsAnswer& answer) {
  const auto text = ReadWhole(mFolder.Get(), "cgroup", kLongestGroupText);
  if (!text) return false;
  const auto hierarchy = OpenUnifiedHierarchy(units);
  const auto path = UnifiedGroupOf(*text);
  if (!hierarchy.IsOpen() || !path) {
    errno = ENOENT;
    return false;
  }
  auto details = ReadControlGroupLimits(hierarchy.Get(), *path);
  answer.count = static_cast<std::int64_t>(details.size());
  answer.list = std::move(details);
  return true;
}

void DetailsFolder::Read(DetailsKind kind, const std::string& units, DetailsAnswer& answer) {
  const bool isRead = [&] {
    switch (kind) {
      case DetailsKind::kThreads:
        return ReadThreads(answer);
      case DetailsKind::kDescriptors:
        return ReadDescriptors(answer);
      case DetailsKind::kMappings:
        return ReadMappings(answer);
      case DetailsKind::kEnvironment:
        return ReadEnvironment(answer);
      case DetailsKind::kLimits:
        return ReadLimits(answer);
      case DetailsKind::kControlGroup:
        return ReadControlGroup(units, answer);
    }
    return false;
  }();
  if (!isRead) answer.state = WhyNoDetails(errno);
}

}  // namespace

DetailsAnswer ReadDetails(const DetailsRoots& roots, ProcessIdentity process, DetailsKind kind) {
  const auto begin = DetailsMicroseconds();
  DetailsAnswer answer;
  ProcFiles files(roots.proc);
  DetailsFolder folder(files, process.pid);
  if (!folder.IsOpen()) {
    const auto why = WhyNoDetails(errno);
    answer.state = why == DetailsState::kNone ? DetailsState::kEnded : why;
    return answer;
  }
  // Everything else is read in this very folder.
  answer.state = folder.Life(process.startStamp);
  if (answer.state != DetailsState::kKnown) return answer;
  folder.Read(kind, roots.units, answer);
  if (answer.state == DetailsState::kRefused && folder.IsOwn())
    answer.state = DetailsState::kKeptSecret;
  // What is missing may be so because it has ended meanwhile.
  if (folder.Life(process.startStamp) == DetailsState::kEnded) answer.state = DetailsState::kEnded;
  if (answer.state != DetailsState::kKnown) {
    answer.list = {};
    answer.count = 0;
  }
  answer.readAt = DetailsMicroseconds();
  answer.taken = answer.readAt - begin;
  return answer;
}

}  // namespace lurkwell
