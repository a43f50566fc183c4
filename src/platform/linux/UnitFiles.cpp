#include "platform/linux/UnitFiles.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <optional>

namespace lurkwell {
namespace {

/// Some machines have the old hierarchies there and the unified one in a folder of its own.
constexpr const char* kMountPoints[] = {"/sys/fs/cgroup", "/sys/fs/cgroup/unified"};
constexpr std::size_t kLongestUnitFile = 1 << 20;

FileDescriptor OpenHierarchy(const std::string& path) {
  return FileDescriptor(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

FileDescriptor FindHierarchy() {
  for (const char* path : kMountPoints) {
    FileDescriptor folder = OpenHierarchy(path);
    struct statfs system {};
    if (::fstatfs(folder.Get(), &system) == 0 && system.f_type == CGROUP2_SUPER_MAGIC)
      return folder;
  }
  return {};
}

/// Nothing, and errno, when it cannot be read.
std::optional<std::string> ReadAll(const FileDescriptor& root, const std::string& path) {
  const FileDescriptor file(::openat(root.Get(), path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.IsOpen()) return std::nullopt;
  std::string text;
  std::array<char, 4096> piece;
  while (text.size() < kLongestUnitFile) {
    const auto bytes = ::read(file.Get(), piece.data(), piece.size());
    if (bytes < 0) return std::nullopt;
    if (bytes == 0) break;
    text.append(piece.data(), static_cast<std::size_t>(bytes));
  }
  return text;
}

}  // namespace

FileDescriptor OpenUnifiedHierarchy(const std::string& root) {
  return root.empty() ? FindHierarchy() : OpenHierarchy(root);
}

std::optional<std::string_view> UnifiedGroupOf(std::string_view text) {
  // The unified hierarchy's line; the others have numbers.
  constexpr std::string_view kBegin = "0::/";
  while (!text.empty()) {
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (!line.starts_with(kBegin)) continue;
    const auto path = line.substr(kBegin.size() - 1);
    // Beside or above our own namespace's root, and so nowhere in the tree that we see.
    if (path.starts_with("/..")) return std::nullopt;
    return path;
  }
  return std::nullopt;
}

UnitFiles::UnitFiles(const std::string& root) : mRoot(OpenUnifiedHierarchy(root)) {}

void UnitFiles::BeginPass() {
  ++mPass;
  std::erase_if(mGroups, [](const auto& group) { return group.second.expired(); });
}

std::shared_ptr<ControlGroup> UnitFiles::Find(std::string_view text) {
  const auto path = UnifiedGroupOf(text);
  if (!path) return nullptr;
  auto& known = mGroups[std::string(*path)];
  auto group = known.lock();
  if (group == nullptr)
    known = group = std::make_shared<ControlGroup>(ControlGroup{std::string(*path), {}, 0});
  return group;
}

std::optional<std::uint64_t> UnitFiles::NumberOf(const ControlGroup& group) const {
  struct stat status {};
  if (::fstatat(mRoot.Get(), ("." + group.path).c_str(), &status, 0) != 0) return std::nullopt;
  return status.st_ino;
}

const ProcessFigures& UnitFiles::FiguresOf(ControlGroup& group) {
  if (group.pass != mPass) Read(group);
  group.pass = mPass;
  return group.figures;
}

void UnitFiles::Read(ControlGroup& group) {
  const auto text = ReadAll(mRoot, "." + group.path + "/io.stat");
  const bool isRefused = !text && (errno == EACCES || errno == EPERM);
  const auto why = isRefused ? FigureState::kRefused : FigureState::kUncounted;
  bool isOther = group.stamp == 0;
  for (const Figure figure : kFiguresFrom<kFromUnit>) {
    const auto stateBefore = group.figures.StateOf(figure);
    const auto before = group.figures.Get(figure);
    if (text) {
      group.figures.Set(figure, SumOfNamed(*text, RowOf(figure).origin.name));
    } else {
      group.figures.SetMissing(figure, why);
    }
    isOther |= group.figures.StateOf(figure) != stateBefore || group.figures.Get(figure) != before;
  }
  if (isOther) group.stamp = ++mLastStamp;
}

std::int64_t SumOfNamed(std::string_view text, std::string_view name) {
  std::uint64_t sum = 0;
  while (!text.empty()) {
    const auto word = text.substr(0, text.find_first_of(" \n"));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    if (!word.starts_with(name) || !word.substr(name.size()).starts_with('=')) continue;
    const auto digits = word.substr(name.size() + 1);
    std::uint64_t number = 0;
    const char* const last = digits.data() + digits.size();
    if (std::from_chars(digits.data(), last, number).ptr == last) sum += number;
  }
  return static_cast<std::int64_t>(sum);
}

}  // namespace lurkwell
