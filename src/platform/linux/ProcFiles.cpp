#include "platform/linux/ProcFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/vfs.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <limits>
#include <string_view>

#include "platform/ProcStat.h"

namespace lurkwell {
namespace {

// Holds about 10,000 entries of /proc, so that a listing is a call or two.
constexpr std::size_t kListingSize = 262'144;
constexpr std::size_t kLongestText = 4'194'304;
// Of processes there are no more than pids, of descriptors what a process is allowed.
constexpr std::size_t kMostListed = 4'194'304;

// The kernel's linux_dirent64, whose fields lie before the name without gaps.
constexpr std::size_t kLengthOffset = 16;
constexpr std::size_t kNameOffset = 19;

/// "PID" and an ending as a C string.
class PidPath {
 public:
  PidPath(std::int32_t pid, std::string_view ending) {
    const auto last = std::to_chars(mText.data(), mText.data() + mText.size(), pid).ptr;
    std::memcpy(last, ending.data(), ending.size());
    last[ending.size()] = '\0';
  }
  const char* Get() const { return mText.data(); }

 private:
  std::array<char, 32> mText;
};

/// Entries whose names are numbers.
void AppendNumbers(std::span<const char> listing, std::vector<ListedProcess>& numbers) {
  while (listing.size() > kNameOffset) {
    ListedProcess process;
    std::uint16_t length = 0;
    std::memcpy(&process.folder, listing.data(), sizeof process.folder);
    std::memcpy(&length, listing.data() + kLengthOffset, sizeof length);
    if (length <= kNameOffset || length > listing.size()) return;
    const char* name = listing.data() + kNameOffset;
    if (*name >= '0' && *name <= '9') {
      const std::string_view text(name, strnlen(name, length - kNameOffset));
      if (const auto number = text == "0" ? std::optional(0) : ParsePid(text)) {
        process.pid = *number;
        numbers.push_back(process);
      }
    }
    listing = listing.subspan(length);
  }
}

bool IsOfKernel(const FileDescriptor& file) {
  struct statfs system {};
  return ::fstatfs(file.Get(), &system) == 0 && system.f_type == PROC_SUPER_MAGIC;
}

}  // namespace

ProcFiles::ProcFiles(const std::string& root)
    : mRoot(::open(root.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)), mListing(kListingSize) {
  mIsKernelTree = IsOfKernel(mRoot);
  std::array<char, 16> self;
  const auto length = ::readlinkat(mRoot.Get(), "self", self.data(), self.size());
  mHasOwnPids = mIsKernelTree && length > 0 &&
                ParsePid({self.data(), static_cast<std::size_t>(length)}) == ::getpid();
  if (!mHasOwnPids) return;
  mLoad = FileDescriptor(::openat(mRoot.Get(), "loadavg", O_RDONLY | O_CLOEXEC));
  // Something else may be mounted on it.
  if (!IsOfKernel(mLoad)) mLoad.Close();
}

bool ProcFiles::List(std::vector<ListedProcess>& processes) {
  processes.clear();
  if (::lseek(mRoot.Get(), 0, SEEK_SET) < 0) return false;
  if (!ListFolder(mRoot, processes)) return false;
  // No process has that number in the kernel's tree.
  if (!mIsKernelTree) std::erase_if(processes, [](const auto& listed) { return listed.pid == 0; });
  return true;
}

bool ProcFiles::ListFolder(const FileDescriptor& folder, std::vector<ListedProcess>& listed) {
  for (;;) {
    const auto bytes = ::syscall(SYS_getdents64, folder.Get(), mListing.data(),
                                 static_cast<unsigned>(mListing.size()));
    if (bytes <= 0) return bytes == 0;
    AppendNumbers(std::span(mListing).first(static_cast<std::size_t>(bytes)), listed);
    if (listed.size() >= kMostListed) return true;
  }
}

bool ProcFiles::ListThreads(int folder, std::vector<std::int32_t>& threads) {
  return ListNumbers(folder, "task", threads);
}

bool ProcFiles::ListNumbers(int folder, const char* name, std::vector<std::int32_t>& numbers) {
  numbers.clear();
  mListedNumbers.clear();
  const FileDescriptor listed(::openat(folder, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!listed.IsOpen() || !ListFolder(listed, mListedNumbers)) return false;
  for (const auto& number : mListedNumbers) numbers.push_back(number.pid);
  return true;
}

std::optional<std::int32_t> ProcFiles::LastPid() {
  // "0.00 0.01 0.05 RUNNABLE/ALL LAST\n"
  std::array<char, 128> text;
  const auto bytes = ::pread(mLoad.Get(), text.data(), text.size(), 0);
  if (bytes <= 0 || text[static_cast<std::size_t>(bytes) - 1] != '\n') return std::nullopt;
  const std::string_view line(text.data(), static_cast<std::size_t>(bytes) - 1);
  return ParsePid(line.substr(line.rfind(' ') + 1));
}

void ProcFiles::MakeRoomForDescriptors(std::size_t count) const {
  const auto last = std::min<std::size_t>(count, std::numeric_limits<int>::max());
  FileDescriptor(::fcntl(mRoot.Get(), F_DUPFD_CLOEXEC, static_cast<int>(last)));
}

std::optional<std::uint64_t> ProcFiles::RunTime(std::int32_t pid) {
  return mHasOwnPids ? ReadRunTime(pid) : std::nullopt;
}

std::optional<Scheduling> ProcFiles::SchedulingOf(std::int32_t pid) {
  return mHasOwnPids ? ReadScheduling(pid) : std::nullopt;
}

std::optional<Assignment> ProcFiles::AssignmentOf(std::int32_t pid) {
  return mHasOwnPids ? ReadAssignment(pid) : std::nullopt;
}

std::int64_t ProcFiles::MillisecondsSinceBoot() const {
  timespec time{};
  ::clock_gettime(CLOCK_BOOTTIME, &time);
  return time.tv_sec * std::int64_t{1000} + time.tv_nsec / 1'000'000;
}

std::int64_t ProcFiles::Milliseconds() const {
  timespec time{};
  ::clock_gettime(CLOCK_MONOTONIC_COARSE, &time);
  return time.tv_sec * std::int64_t{1000} + time.tv_nsec / 1'000'000;
}

FileDescriptor ProcFiles::OpenStat(std::int32_t pid) {
  return FileDescriptor(::openat(mRoot.Get(), PidPath(pid, "/stat").Get(), O_RDONLY | O_CLOEXEC));
}

FileDescriptor ProcFiles::OpenFolder(std::int32_t pid) {
  return FileDescriptor(
      ::openat(mRoot.Get(), PidPath(pid, "").Get(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

std::ptrdiff_t ProcFiles::Read(int file, std::span<char> buffer) {
  return ::pread(file, buffer.data(), buffer.size(), 0);
}

std::ptrdiff_t ProcFiles::ReadIn(int folder, const char* name, std::span<char> buffer) {
  const FileDescriptor file(::openat(folder, name, O_RDONLY | O_CLOEXEC));
  return file.IsOpen() ? ::read(file.Get(), buffer.data(), buffer.size()) : -1;
}

std::ptrdiff_t ProcFiles::ReadLinkIn(int folder, const char* name, std::span<char> buffer) {
  return ::readlinkat(folder, name, buffer.data(), buffer.size());
}

std::string ProcFiles::ReadText(const char* path) {
  const FileDescriptor file(::openat(mRoot.Get(), path, O_RDONLY | O_CLOEXEC));
  std::string text;
  std::array<char, 16384> piece;
  while (text.size() < kLongestText) {
    const auto bytes = ::read(file.Get(), piece.data(), piece.size());
    if (bytes <= 0) break;
    text.append(piece.data(), static_cast<std::size_t>(bytes));
  }
  return text;
}

std::uint64_t CurrentStartStamp(ProcFiles& files, std::int32_t pid) {
  std::array<char, 4096> buffer;
  const FileDescriptor file = files.OpenStat(pid);
  if (!file.IsOpen()) return 0;
  const auto bytes = files.Read(file.Get(), buffer);
  if (bytes <= 0) return 0;
  const auto stat = ParseProcStat({buffer.data(), static_cast<std::size_t>(bytes)});
  return stat && stat->pid == pid ? stat->startStamp : 0;
}

namespace {

/// The kernel's sched_attr as it first was, which every kernel fills.
struct SchedulingAttributes {
  std::uint32_t size = 0;
  std::uint32_t policy = 0;
  std::uint64_t flags = 0;
  std::int32_t nice = 0;
  std::uint32_t priority = 0;
  std::uint64_t runtime = 0, deadline = 0, period = 0;
};
static_assert(sizeof(SchedulingAttributes) == 48);

constexpr std::uint32_t kDeadlinePolicy = 6;

/// The kernel's number for the clock of a process's time on processors. clock_getcpuclockid gives
/// the same, at the price of one more call.
constexpr clockid_t ProcessorClock(std::int32_t pid) {
  constexpr clockid_t kScheduled = 2;
  return static_cast<clockid_t>(~static_cast<unsigned>(pid) << 3) | kScheduled;
}

}  // namespace

std::optional<std::uint64_t> ReadRunTime(std::int32_t pid) {
  timespec time{};
  // Pid 0 would be the caller.
  if (pid <= 0 || ::clock_gettime(ProcessorClock(pid), &time) != 0) return std::nullopt;
  return static_cast<std::uint64_t>(time.tv_sec) * 1'000'000'000 +
         static_cast<std::uint64_t>(time.tv_nsec);
}

std::optional<Scheduling> ReadScheduling(std::int32_t pid) {
  SchedulingAttributes attributes;
  if (pid <= 0 || ::syscall(SYS_sched_getattr, pid, &attributes, sizeof attributes, 0) != 0 ||
      attributes.priority != 0 || attributes.policy == kDeadlinePolicy)
    return std::nullopt;
  return Scheduling{attributes.policy, attributes.nice};
}

std::optional<Assignment> ReadAssignment(std::int32_t pid) {
  constexpr int kOneProcess = 1;
  // 16,384 processors, more than the kernel knows.
  std::array<std::uint64_t, 256> set;
  if (pid <= 0) return std::nullopt;
  const auto bytes = ::syscall(SYS_sched_getaffinity, pid, sizeof set, set.data());
  const auto priority = ::syscall(SYS_ioprio_get, kOneProcess, pid);
  if (bytes <= 0 || priority < 0) return std::nullopt;
  const auto words = (static_cast<std::size_t>(bytes) + sizeof set[0] - 1) / sizeof set[0];
  return Assignment{{set.begin(), set.begin() + static_cast<std::ptrdiff_t>(words)},
                    static_cast<std::int32_t>(priority)};
}

std::size_t DescriptorLimit() {
  rlimit limit{};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return 0;
  return limit.rlim_cur;
}

bool RaiseDescriptorLimit() {
  rlimit limit{};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) return false;
  limit.rlim_cur = limit.rlim_max;
  return ::setrlimit(RLIMIT_NOFILE, &limit) == 0;
}

}  // namespace lurkwell
