#include "query/QueryKeys.h"

#include <algorithm>
#include <cctype>
#include <utility>
#include <vector>

#include "consolidator/PropertyCatalogue.h"
#include "query/NearNames.h"

namespace lurkwell {
namespace {

constexpr QueryKey kKeys[] = {
    {"name", "meta_name"},
    {"pid", "meta_pid"},
    {"parent", "pid_parent_pid"},
    {"user", "pid_owner"},
    {"cpu", "pid_cpu_share"},
    {"time", "meta_active_time"},
    {"mem", "pid_rsz"},
    {"pss", "pid_pss"},
    {"swap", "pid_swap"},
    {"vsz", "pid_vsz"},
    {"read", "pid_disk_read_rate"},
    {"write", "pid_disk_write_rate"},
    {"nice", "pid_p_nice"},
    {"threads", "pid_threads"},
    {"state", "pid_state"},
    {"started", "pid_p_starttime"},
    {"runs", "pid_running_time"},
    {"command", "pid_command_line"},
    {"exe", "pid_executable"},
    {"tty", "pid_terminal"},
    {"unit", "pid_unit"},
    {"slice", "pid_slice"},
    {"cgroup", "pid_cgroup"},
    {"container", "pid_container"},
    {"label", "pid_label"},
};

bool IsSame(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](unsigned char left, unsigned char right) {
    return std::tolower(left) == std::tolower(right);
  });
}

}  // namespace

std::span<const QueryKey> QueryKeys() {
  return kKeys;
}

std::optional<std::string> PropertyOfQueryKey(std::string_view word) {
  for (const auto& key : kKeys)
    if (IsSame(key.word, word)) return std::string(key.property);
  for (const auto& name : AllPropertyNames())
    if (IsSame(name, word)) return name;
  return std::nullopt;
}

std::string NearQueryKeys(std::string_view word) {
  std::vector<std::string> names;
  for (const auto& key : kKeys) names.emplace_back(key.word);
  std::ranges::move(AllPropertyNames(), std::back_inserter(names));
  return NearNames(word, names);
}

}  // namespace lurkwell
