#include "platform/linux/CostlyReader.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <charconv>
#include <string_view>
#include <utility>

#include "platform/ProcStat.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kRestFactor = 50;
constexpr std::int64_t kLongestRest = 60'000;
constexpr std::int64_t kRestAfterRefusal = 10'000;
constexpr std::int64_t kMoreRestAsleep = 10'000;
constexpr std::int64_t kMoreRestAsleepUnseen = 300'000;
/// What is shared with a process that sleeps changes its shares, too, but hardly.
constexpr FigureSources kHardlyChangeAsleep =
    kFromMemoryMap | kFromDescriptorCount | kFromOpenFiles;
constexpr std::size_t kVirtualSizeField = 23;

/// The number in the line "name:   NUMBER kB".
std::optional<std::int64_t> KibibytesOf(std::string_view text, std::string_view name) {
  const std::string key = '\n' + std::string(name) + ':';
  const auto at = text.find(key);
  if (at == std::string_view::npos) return std::nullopt;
  auto rest = text.substr(at + key.size());
  rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
  const auto unit =
      std::string_view(end, static_cast<std::size_t>(rest.data() + rest.size() - end));
  constexpr std::int64_t kMost = std::int64_t{1} << 52;
  if (error != std::errc() || number < 0 || number > kMost || !unit.starts_with(" kB"))
    return std::nullopt;
  return number * 1024;
}

void SetAll(ProcessFigures& figures, FigureSource source, FigureState why) {
  for (std::size_t i = 0; i < kFigureCount; ++i)
    if (kFigures[i].origin.source == source) figures.SetMissing(static_cast<Figure>(i), why);
}

}  // namespace

CostlyReader::CostlyReader(const std::string& root, const std::string& units,
                           const std::string& devices)
    : mFiles(root), mDescriptors(mFiles, units, devices), mOpenFiles(mFiles) {}

void CostlyReader::Keep(std::span<const CostlyWish> wishes) {
  ++mRound;
  mDescriptors.BeginRound();
  mOpenFiles.BeginRound();
  for (const auto& wish : wishes) {
    auto& known = mKnown[wish.process.pid];
    if (known.startStamp != wish.process.startStamp) known = {};
    known.startStamp = wish.process.startStamp;
    known.activity = wish.activity;
    known.round = mRound;
  }
  std::erase_if(mKnown, [this](const auto& known) { return known.second.round != mRound; });
}

CostlyReader::Due CostlyReader::DueOf(const CostlyWish& wish, std::int64_t now) const {
  Due due;
  due.oldest = now;
  const auto known = mKnown.find(wish.process.pid);
  if (known == mKnown.end()) return due;
  for (std::size_t i = 0; i < kCostlySourceCount; ++i) {
    const auto& source = known->second.sources[i];
    if ((wish.sources & CostlySource(i)) == 0) continue;
    const bool sleeps = wish.activity && source.activity == wish.activity &&
                        (CostlySource(i) & kHardlyChangeAsleep) != 0;
    const auto more = wish.isInSight ? kMoreRestAsleep : kMoreRestAsleepUnseen;
    if (now < source.due + (sleeps ? more : 0)) continue;
    due.sources |= CostlySource(i);
    due.hasNeverBeenRead |= !source.isRead;
    due.oldest = std::min(due.oldest, source.readAt);
  }
  return due;
}

std::vector<CostlyReading> CostlyReader::Read(ProcessIdentity process, FigureSources sources) {
  std::vector<CostlyReading> readings;
  const auto known = mKnown.find(process.pid);
  if (known == mKnown.end()) return readings;
  const FileDescriptor folder = mFiles.OpenFolder(process.pid);
  if (!folder.IsOpen() || !IsOf(process, folder.Get())) return readings;
  for (std::size_t i = 0; i < kCostlySourceCount; ++i) {
    const auto which = CostlySource(i);
    if ((sources & which) == 0) continue;
    CostlyReading reading{process, which, {}, 0};
    const auto begun = Now();
    const auto state = ReadSource(which, folder.Get(), known->second, reading.figures);
    const auto ended = Now();
    const auto rest = state == FigureState::kRefused
                          ? kRestAfterRefusal
                          : std::min((ended - begun) * kRestFactor, kLongestRest);
    known->second.sources[i] = {
        true, ended, ended + rest,
        state == FigureState::kKnown ? known->second.activity : std::nullopt};
    // Ended meanwhile, or nothing to open it with: no word on the figures.
    if (state == FigureState::kUnread) continue;
    if (state != FigureState::kKnown) SetAll(reading.figures, which, state);
    const bool isOfDump =
        (which & (kFromSockets | kFromUnitSockets)) != 0 && state == FigureState::kKnown;
    reading.age = isOfDump ? mDescriptors.SocketsAreOf() : ended;
    readings.push_back(std::move(reading));
  }
  const auto now = Now();
  for (auto& reading : readings) reading.age = now - reading.age;
  return readings;
}

bool CostlyReader::IsOf(ProcessIdentity process, int folder) {
  const auto bytes = mFiles.ReadIn(folder, "stat", mBuffer);
  if (bytes <= 0) return false;
  const auto stat = ParseProcStat({mBuffer.data(), static_cast<std::size_t>(bytes)});
  if (!stat || stat->pid != process.pid || stat->startStamp != process.startStamp) return false;
  const auto fields = ParseProcStatFields(*stat);
  mHasMemory = !fields || (*fields)[kVirtualSizeField] != 0;
  return true;
}

FigureState CostlyReader::ReadSource(FigureSource source, int folder, Known& known,
                                     ProcessFigures& figures) {
  errno = 0;
  const auto state = [&] {
    switch (source) {
      case kFromMemoryMap:
        return ReadMemoryMap(folder, figures);
      case kFromDescriptorCount:
        return ReadDescriptorCount(folder, figures);
      case kFromSockets:
        return mDescriptors.ReadSockets(folder, known.open, figures);
      case kFromUnitSockets:
        return mDescriptors.ReadSocketsOfUnit(folder, known.open, figures);
      case kFromGraphics:
        return mDescriptors.ReadGraphics(folder, known.open, figures);
      case kFromPorts:
        return mOpenFiles.ReadPorts(folder, figures);
      case kFromOpenFiles:
        return mOpenFiles.ReadFiles(folder, figures);
      default:
        return FigureState::kUnread;
    }
  }();
  if (state != FigureState::kUnread) return state;
  return errno == EACCES || errno == EPERM ? FigureState::kRefused : FigureState::kUnread;
}

FigureState CostlyReader::ReadMemoryMap(int folder, ProcessFigures& figures) {
  const auto bytes = mHasMemory ? mFiles.ReadIn(folder, "smaps_rollup", mBuffer) : 0;
  if (mHasMemory && bytes < 0 && errno == ENOENT) return FigureState::kUncounted;
  if (mHasMemory && bytes <= 0) return FigureState::kUnread;
  const std::string_view text(mBuffer.data(), static_cast<std::size_t>(bytes));
  for (std::size_t i = 0; i < kFigureCount; ++i) {
    const auto& origin = kFigures[i].origin;
    if (origin.source != kFromMemoryMap) continue;
    const auto figure = static_cast<Figure>(i);
    const auto size = mHasMemory ? KibibytesOf(text, origin.name) : 0;
    const auto other =
        mHasMemory && !origin.otherName.empty() ? KibibytesOf(text, origin.otherName) : 0;
    if (size && other) {
      figures.Set(figure, *size + *other);
    } else {
      figures.SetMissing(figure, FigureState::kUncounted);
    }
  }
  return FigureState::kKnown;
}

/// Newer kernels give it as the size of the folder, to everybody; the others have it listed.
FigureState CostlyReader::ReadDescriptorCount(int folder, ProcessFigures& figures) {
  struct stat status {};
  if (::fstatat(folder, "fd", &status, 0) != 0) return FigureState::kUnread;
  std::int64_t count = status.st_size;
  if (count <= 0 || !mFiles.FollowsProcesses()) {
    mNumbers.clear();
    if (!mFiles.ListNumbers(folder, "fd", mNumbers)) return FigureState::kUnread;
    count = static_cast<std::int64_t>(mNumbers.size());
  }
  figures.Set(FigureCalled("pid_descriptors"), count);
  return FigureState::kKnown;
}

}  // namespace lurkwell
