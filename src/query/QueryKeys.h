#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "consolidator/TypedValue.h"

namespace lurkwell {

/// The names of all properties, built-in ones first, then the ps columns. Main thread.
std::vector<std::string> AllPropertyNames();

/// The five of `names` at most that a mistyped `word` may have meant, nearest first and separated
/// by commas; empty when none comes near. Case counts for nothing.
std::string NearNames(std::string_view word, std::span<const std::string> names);

/// The property that a query means by `word`: one of the short words, the name of a property, or
/// the header of a ps column, in any case. Nothing when there is none. Main thread.
std::optional<std::string> PropertyOfQueryKey(std::string_view word);

/// Properties whose text has several values, each of which a condition looks at.
enum class ListedValues : std::uint8_t { kNone, kNumbers, kLines };
ListedValues ListedIn(std::string_view property);

/// The words and names that come nearest to what was typed, separated by commas; empty when none
/// does.
std::string NearQueryKeys(std::string_view word);

/// What the keys of a query mean. Main thread.
class QueryVocabulary {
 public:
  virtual ~QueryVocabulary() = default;
  /// What a condition with this key is about; nothing when there is no such key.
  virtual std::optional<std::string> PropertyOf(std::string_view word) const = 0;
  virtual PropertyType TypeOf(const std::string& property) const = 0;
  /// Keys that come near to what was typed, separated by commas; empty when none does.
  virtual std::string Near(std::string_view word) const = 0;
};

/// The one of processes, whose keys are those above.
const QueryVocabulary& ProcessVocabulary();

}  // namespace lurkwell
