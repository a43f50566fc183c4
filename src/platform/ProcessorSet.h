#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lurkwell {

/// A bit for each processor of a machine. Pure; any thread.
using ProcessorSet = std::vector<std::uint64_t>;

/// The numbers of the set's processors as the kernel's lists have them: "0-3,6".
std::string ListOfProcessors(const ProcessorSet& set);

/// The set of such a list, in which blanks, repetitions and any order are fine; nothing for any
/// other text, an empty set and numbers of 16,384 and above, which no kernel has.
std::optional<ProcessorSet> ProcessorsOfList(std::string_view list);

/// Whether all of `some` are among `all`.
bool AreAmong(const ProcessorSet& some, const ProcessorSet& all);

}  // namespace lurkwell
