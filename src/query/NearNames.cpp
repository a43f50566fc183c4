#include "query/NearNames.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

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

}  // namespace lurkwell
