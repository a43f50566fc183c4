#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "platform/PreferenceDomain.h"

namespace lurkwell {

/// The largest property list that is read or written, in bytes.
inline constexpr std::size_t kMaximumPropertyListSize = std::size_t{4} * 1024 * 1024;
/// How many elements may be open inside each other.
inline constexpr std::size_t kMaximumPropertyListDepth = 32;

/// Checks the outline of an XML property list before a parser sees it: size, depth, elements that
/// are all closed, one root, nothing behind it, no definitions of its own and so no entities. Null
/// when all is well, else why not, in words. Does not check the values. Any thread; no allocation.
const char* WhyNotAPropertyList(std::string_view text);

struct PreferenceKeyHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view key) const { return std::hash<std::string_view>{}(key); }
};
using PreferenceValues =
    std::unordered_map<std::string, PreferenceValue, PreferenceKeyHash, std::equal_to<>>;

/// A property list whose root is a dictionary, with everything that was in the file it came from;
/// what a preference cannot hold (dates, data, nested containers) is kept but not shown. Reads and
/// writes numbers the same way under every locale. One thread at a time.
class PropertyListDocument {
 public:
  /// An empty one.
  PropertyListDocument();
  ~PropertyListDocument();
  PropertyListDocument(PropertyListDocument&& other) noexcept
      : mRoot(std::exchange(other.mRoot, nullptr)) {}
  PropertyListDocument& operator=(PropertyListDocument&& other) noexcept {
    std::swap(mRoot, other.mRoot);
    return *this;
  }

  /// From the XML form; nothing when it is damaged or beyond the bounds, and then `why` says so.
  static std::optional<PropertyListDocument> Parse(std::string_view text, const char*& why);

  /// The XML form.
  std::string Text() const;

  /// All values that preferences can hold, made to fit: truth values are 0 and 1, an integer beyond
  /// 64 bits is a real, an array element that is no dictionary an empty one.
  PreferenceValues Values() const;

  /// One of them; nothing when it is missing or of another kind.
  std::optional<PreferenceValue> Value(const std::string& key) const;

  /// Replaces a value. What array elements hold beyond the preference kinds stays with them, also
  /// when elements before them were removed or behind them appended.
  void Set(const std::string& key, const PreferenceValue& value);

  /// Removes a value, of whatever kind; false when there was none.
  bool Remove(const std::string& key);

 private:
  explicit PropertyListDocument(void* root) : mRoot(root) {}

  void* mRoot;
};

}  // namespace lurkwell
