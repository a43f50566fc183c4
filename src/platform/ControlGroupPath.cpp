#include "platform/ControlGroupPath.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>
#include <vector>

namespace lurkwell {
namespace {

constexpr std::string_view kScope = ".scope";
constexpr std::string_view kService = ".service";
constexpr std::string_view kSlice = ".slice";

/// "\x2d" and the like as the bytes they stand for.
std::string UnescapedUnit(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    unsigned byte = 0;
    if (text.size() >= 4 && text.starts_with("\\x") &&
        std::from_chars(text.data() + 2, text.data() + 4, byte, 16).ptr == text.data() + 4 &&
        byte != 0) {
      plain += static_cast<char>(byte);
      text.remove_prefix(4);
    } else {
      plain += text.front();
      text.remove_prefix(1);
    }
  }
  return plain;
}

std::vector<std::string_view> FoldersOf(std::string_view path) {
  std::vector<std::string_view> folders;
  while (!path.empty()) {
    const auto end = std::min(path.find('/'), path.size());
    if (end > 0) folders.push_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return folders;
}

/// Between what stands before and behind it; empty when it stands somewhere else.
std::string_view Between(std::string_view text, std::string_view before, std::string_view behind) {
  if (text.size() <= before.size() + behind.size() || !text.starts_with(before) ||
      !text.ends_with(behind))
    return {};
  text.remove_prefix(before.size());
  text.remove_suffix(behind.size());
  return text;
}

/// "app-[LAUNCHER-]ID-RANDOM.scope" or "app-[LAUNCHER-]ID[@RANDOM].service"; nothing for any other
/// name. Dashes within an id are escaped.
std::optional<ApplicationScope> ScopeOfName(std::string_view name) {
  std::string_view id = name;
  if (name.ends_with(kScope)) {
    id = name.substr(0, name.rfind('-'));
  } else if (name.ends_with(kService)) {
    id = name.substr(0, std::min(name.find('@'), name.size() - kService.size()));
  } else {
    return {};
  }
  constexpr std::string_view kPrefix = "app-";
  if (!id.starts_with(kPrefix)) return {};
  id.remove_prefix(std::max(id.rfind('-') + 1, kPrefix.size()));
  if (id.empty()) return {};
  return ApplicationScope{std::string(name), UnescapedUnit(id), {}, {}};
}

/// The number in "user@1000.service"; nothing for any other name.
std::optional<std::uint32_t> UserOfManager(std::string_view folder) {
  const auto number = Between(folder, "user@", kService);
  const char* end = number.data() + number.size();
  std::uint32_t user = 0;
  const auto [at, error] = std::from_chars(number.data(), end, user);
  if (number.empty() || error != std::errc{} || at != end) return {};
  return user;
}

/// The first such folder below the slice of applications.
std::optional<ApplicationScope> ScopeOfPath(std::string_view path) {
  bool inSlice = false;
  std::optional<std::uint32_t> user;
  for (const auto folder : FoldersOf(path)) {
    if (!inSlice) {
      inSlice = folder == "app.slice";
      if (const auto manager = UserOfManager(folder)) user = manager;
    } else if (auto scope = ScopeOfName(folder)) {
      const auto end = folder.data() + folder.size() - path.data();
      scope->path = path.substr(0, static_cast<std::size_t>(end));
      scope->user = user;
      return scope;
    }
  }
  return {};
}

/// Takes a line "HIERARCHY:CONTROLLERS:PATH" off the text; the path may hold colons.
struct HierarchyLine {
  std::string_view number, controllers, path;
};
HierarchyLine TakeLine(std::string_view& text) {
  const auto end = std::min(text.find('\n'), text.size());
  auto rest = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  const auto take = [&rest] {
    const auto colon = std::min(rest.find(':'), rest.size());
    const auto part = rest.substr(0, colon);
    rest.remove_prefix(std::min(colon + 1, rest.size()));
    return part;
  };
  HierarchyLine line;
  line.number = take();
  line.controllers = take();
  line.path = rest;
  return line;
}

/// The number of a container is 64 digits, of which people know the first twelve.
constexpr std::size_t kNumberLength = 64;
constexpr std::size_t kShortNumber = 12;

bool IsNumber(std::string_view text) {
  return text.size() == kNumberLength &&
         text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

std::string Named(std::string_view kind, std::string_view name) {
  if (IsNumber(name)) name = name.substr(0, kShortNumber);
  return std::string(kind) + ' ' + UnescapedUnit(name);
}

/// Names of groups that say by themselves what they are, the name between the two.
struct GroupName {
  std::string_view kind, before, behind;
  bool hasNumber;
};
constexpr GroupName kGroupNames[] = {
    {"Docker", "docker-", kScope, true},
    {"Podman", "libpod-", kScope, true},
    {"Podman", "libpod-", "", true},
    {"Containerd", "cri-containerd-", kScope, true},
    {"CRI-O", "crio-", kScope, true},
    {"LXC", "lxc.payload.", "", false},
    {"nspawn", "systemd-nspawn@", kService, false},
    {"nspawn", "machine-", kScope, false},
};

/// Folders whose next folder is the container's name.
struct GroupFolder {
  std::string_view kind, folder;
  bool hasNumber;
};
constexpr GroupFolder kGroupFolders[] = {
    {"Docker", "docker", true},
    {"LXC", "lxc", false},
    {"LXC", "lxc.payload", false},
};

/// "app-flatpak-ID-NUMBER.scope".
std::string FlatpakOf(std::string_view folder) {
  const auto name = Between(folder, "app-flatpak-", kScope);
  const auto dash = name.rfind('-');
  return dash == std::string_view::npos || dash == 0 ? std::string()
                                                     : Named("Flatpak", name.substr(0, dash));
}

/// "snap.NAME.APPLICATION-NUMBER.scope" or "snap.NAME.APPLICATION.service".
std::string SnapOf(std::string_view folder) {
  auto name = Between(folder, "snap.", kScope);
  if (name.empty()) name = Between(folder, "snap.", kService);
  name = name.substr(0, name.find('.'));
  return name.empty() ? std::string() : Named("Snap", name);
}

std::string ContainerOfFolder(std::string_view folder, std::string_view parent) {
  for (const auto& [kind, before, behind, hasNumber] : kGroupNames) {
    const auto name = Between(folder, before, behind);
    if (!name.empty() && (!hasNumber || IsNumber(name))) return Named(kind, name);
  }
  for (const auto& [kind, its, hasNumber] : kGroupFolders)
    if (parent == its && (!hasNumber || IsNumber(folder))) return Named(kind, folder);
  const bool isPod = parent.starts_with("pod") || parent.starts_with("kubepods");
  if (isPod && IsNumber(folder)) return Named("Kubernetes", folder);
  // Seen from another container, whose engine is not told.
  if (parent == ".." && IsNumber(folder)) return Named("Container", folder);
  if (auto flatpak = FlatpakOf(folder); !flatpak.empty()) return flatpak;
  return SnapOf(folder);
}

std::string LastFolderEndingIn(std::string_view path, std::string_view ending) {
  std::string last;
  for (const auto folder : FoldersOf(path))
    if (folder.size() > ending.size() && folder.ends_with(ending)) last = folder;
  return last;
}

}  // namespace

std::optional<ApplicationScope> ScopeOfControlGroups(std::string_view text) {
  while (!text.empty())
    if (auto scope = ScopeOfPath(TakeLine(text).path)) return scope;
  return {};
}

std::string_view PathOfControlGroups(std::string_view text) {
  std::string_view unified, managers, longest;
  while (!text.empty()) {
    const auto line = TakeLine(text);
    if (line.number == "0" && line.controllers.empty()) {
      unified = line.path;
    } else if (line.controllers == "name=systemd") {
      managers = line.path;
    } else if (line.path.size() > longest.size()) {
      longest = line.path;
    }
  }
  for (const auto path : {unified, managers, longest})
    if (path.size() > 1) return path;
  return unified.empty() ? longest : unified;
}

std::string UnitOfPath(std::string_view path) {
  constexpr std::array kEndings = {kService, kScope, std::string_view(".socket"),
                                   std::string_view(".mount"), std::string_view(".swap")};
  std::string unit;
  for (const auto folder : FoldersOf(path))
    for (const auto ending : kEndings)
      if (folder.size() > ending.size() && folder.ends_with(ending)) unit = UnescapedUnit(folder);
  return unit;
}

std::string SliceOfPath(std::string_view path) {
  return LastFolderEndingIn(path, kSlice);
}

std::string ContainerOfPath(std::string_view path) {
  // The innermost one.
  std::string container;
  std::string_view parent;
  for (const auto folder : FoldersOf(path)) {
    if (auto found = ContainerOfFolder(folder, parent); !found.empty()) container = found;
    parent = folder;
  }
  return container;
}

}  // namespace lurkwell
