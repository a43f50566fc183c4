#include "platform/ProcessorSet.h"

#include <algorithm>
#include <charconv>

namespace lurkwell {
namespace {

constexpr std::size_t kBits = 64;
constexpr std::size_t kNumberOfNoProcessor = 16'384;

bool Has(const ProcessorSet& set, std::size_t number) {
  return number / kBits < set.size() && (set[number / kBits] >> number % kBits & 1) != 0;
}

/// Takes a number off the front of the list.
std::optional<std::size_t> TakeNumber(std::string_view& list) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(list.data(), list.data() + list.size(), number);
  if (error != std::errc() || number >= kNumberOfNoProcessor) return std::nullopt;
  list.remove_prefix(static_cast<std::size_t>(end - list.data()));
  return number;
}

bool Take(std::string_view& list, char character) {
  if (!list.starts_with(character)) return false;
  list.remove_prefix(1);
  return true;
}

}  // namespace

std::string ListOfProcessors(const ProcessorSet& set) {
  std::string list;
  for (std::size_t first = 0; first < set.size() * kBits; ++first) {
    if (!Has(set, first)) continue;
    std::size_t last = first;
    while (Has(set, last + 1)) ++last;
    if (!list.empty()) list += ',';
    list += std::to_string(first);
    if (last > first) list += '-' + std::to_string(last);
    first = last;
  }
  return list;
}

std::optional<ProcessorSet> ProcessorsOfList(std::string_view list) {
  std::string text(list);
  std::erase(text, ' ');
  std::string_view rest = text;
  ProcessorSet set;
  do {
    const auto first = TakeNumber(rest);
    if (!first) return std::nullopt;
    const auto last = Take(rest, '-') ? TakeNumber(rest) : first;
    if (!last || *last < *first) return std::nullopt;
    set.resize(std::max(set.size(), *last / kBits + 1));
    for (std::size_t number = *first; number <= *last; ++number)
      set[number / kBits] |= std::uint64_t{1} << number % kBits;
  } while (Take(rest, ','));
  if (!rest.empty()) return std::nullopt;
  return set;
}

bool AreAmong(const ProcessorSet& some, const ProcessorSet& all) {
  for (std::size_t word = 0; word < some.size(); ++word)
    if ((some[word] & ~(word < all.size() ? all[word] : 0)) != 0) return false;
  return true;
}

}  // namespace lurkwell
