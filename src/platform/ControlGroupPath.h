#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lurkwell {

/// What the path of a control group says of the processes in it. Pure; any thread. Paths are what
/// others named: any bytes.

/// The application whose processes the session manager keeps in one control group.
struct ApplicationScope {
  /// The group's name, such as "app-gnome-org.example.Editor-4711.scope".
  std::string name;
  /// The desktop entry's id, such as "org.example.Editor".
  std::string entryId;
  /// The path of the group, which other users' groups of that name do not share.
  std::string path;
  /// Whose service manager has the group, by the path; nothing where that is cut off, as in a
  /// container.
  std::optional<std::uint32_t> user;

  friend bool operator==(const ApplicationScope&, const ApplicationScope&) = default;
};

/// The application's group in the text of a cgroup file; nothing when the process is in none.
std::optional<ApplicationScope> ScopeOfControlGroups(std::string_view text);

/// The path in the text of a cgroup file: that of the unified hierarchy; where everybody is in its
/// root, that of the service manager's own, else the longest of the others.
std::string_view PathOfControlGroups(std::string_view text);

/// The unit of the service manager that has the group, such as "cron.service": the last one in the
/// path, so that of a user's own manager before that of the manager itself. Empty for none.
std::string UnitOfPath(std::string_view path);

/// The last slice in the path; empty for none.
std::string SliceOfPath(std::string_view path);

/// Kind and name or short number of the container that the group is, such as "Docker 3f2a8c91d0be"
/// or "Flatpak org.example.Editor"; empty for none. What watches over a container is not in it.
std::string ContainerOfPath(std::string_view path);

}  // namespace lurkwell
