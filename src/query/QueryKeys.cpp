#include "query/QueryKeys.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>
#include <vector>

#include "consolidator/PropertyCatalogue.h"

namespace lurkwell {
namespace {

/// How many letters must be put in, taken out or changed to make one name the other.
std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t changed = diagonal + (lower(a[i]) == lower(b[j]) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

std::vector<std::string> AllPropertyNames() {
  std::vector<std::string> names;
  char name[64];
  for (int i = 0; GetNthProcPropertyHeader(i, name, sizeof name); ++i) names.emplace_back(name);
  return names;
}

std::string NearNames(std::string_view word, std::span<const std::string> names) {
  std::vector<std::pair<std::size_t, std::string>> ranked;
  for (const auto& known : names) {
    const bool contains = known.find(word) != std::string::npos;
    const std::size_t distance = contains ? 1 : Distance(word, known);
    if (distance <= std::max<std::size_t>(2, word.size() / 3)) ranked.emplace_back(distance, known);
  }
  std::ranges::stable_sort(ranked, {}, &std::pair<std::size_t, std::string>::first);
  if (ranked.size() > 5) ranked.resize(5);
  std::string text;
  for (const auto& [distance, known] : ranked) text += (text.empty() ? "" : ", ") + known;
  return text;
}

namespace {

/// A short word that a query has for a property, as in "user:root".
struct QueryKey {
  std::string_view word;
  std::string_view property;
};

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
    {"port", "pid_ports"},
    {"listens", "pid_listening_ports"},
    {"file", "pid_open_files"},
};

bool IsSame(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](unsigned char left, unsigned char right) {
    return std::tolower(left) == std::tolower(right);
  });
}

}  // namespace

std::optional<std::string> PropertyOfQueryKey(std::string_view word) {
  for (const auto& key : kKeys)
    if (IsSame(key.word, word)) return std::string(key.property);
  for (const auto& name : AllPropertyNames())
    if (IsSame(name, word)) return name;
  return std::nullopt;
}

ListedValues ListedIn(std::string_view property) {
  if (property == "pid_ports" || property == "pid_listening_ports") return ListedValues::kNumbers;
  return property == "pid_open_files" ? ListedValues::kLines : ListedValues::kNone;
}

std::string NearQueryKeys(std::string_view word) {
  std::vector<std::string> names;
  for (const auto& key : kKeys) names.emplace_back(key.word);
  std::ranges::move(AllPropertyNames(), std::back_inserter(names));
  return NearNames(word, names);
}

namespace {

class VocabularyOfProcesses final : public QueryVocabulary {
 public:
  std::optional<std::string> PropertyOf(std::string_view word) const override {
    return PropertyOfQueryKey(word);
  }
  PropertyType TypeOf(const std::string& property) const override {
    return GetProcPropertyType(property.c_str(), nullptr);
  }
  std::string Near(std::string_view word) const override { return NearQueryKeys(word); }
};

}  // namespace

const QueryVocabulary& ProcessVocabulary() {
  static const VocabularyOfProcesses vocabulary;
  return vocabulary;
}

}  // namespace lurkwell
