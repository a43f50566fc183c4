#pragma once

#include <cstdint>
#include <span>
#include <variant>

/// Settings that are arrays of dictionaries: the program's own records, an element each. What
/// PreferencesRetrieval.h says of values, buffers, threads and failures holds here too.
namespace lurkwell {

/// Stores an empty array when there is none. A null key fails "arrayKeyRef".
void EnsureArrayExists(const char* arrayKey);

/// The number of elements, 0 without an array. A null key fails "arrayKeyRef != NULL", here and in
/// all functions below.
std::int32_t GetPrefArrayCount(const char* arrayKey);

/// Removes an element; later ones move down by one. Fails "index >= 0" or "index < count".
void RemovePrefArrayElement(const char* arrayKey, std::int32_t index);

/// Appends one empty element when `index` equals the count; does nothing below it. Any other index
/// fails "(index >= 0) && (index <= count)".
void EnsureArrayItemExists(const char* arrayKey, std::int32_t index);

/// Store one value of one element, creating the array and, right behind its end, the element.
/// Fail as EnsureArrayItemExists does, "dictPrefKey != NULL" on a null dictionary key and
/// "prefValue != NULL" on a null text.
void SetPrefArrayInt(const char* arrayKey, std::int32_t index, const char* dictKey,
                     std::int32_t prefValue);
void SetPrefArrayDouble(const char* arrayKey, std::int32_t index, const char* dictKey,
                        double prefValue);
void SetPrefArrayString(const char* arrayKey, std::int32_t index, const char* dictKey,
                        const char* prefValue);

struct PrefArrayField {
  const char* dictKey;
  std::variant<std::int32_t, double, const char*> value;
};
/// Stores several values of one element at once, which costs one copy of the array instead of one
/// for each. Fails as the calls for one value do.
void SetPrefArrayFields(const char* arrayKey, std::int32_t index,
                        std::span<const PrefArrayField> fields);

/// True when the element is there and holds anything under the dictionary key. Never fails. A
/// caller that reads what another run may have left incomplete asks this before the two getters
/// below whose missing value is fatal.
bool IsPrefArrayValuePresent(const char* arrayKey, std::int32_t index, const char* dictKey);

/// One value of one element; never creates an element. An index outside the array fails
/// "(index >= 0) && (index < count)", a null dictionary key "dictPrefKey != NULL". A missing value
/// is stored and returned as the default when `writeDefault` is set, and is 0 otherwise.
std::int32_t GetPrefArrayInt(const char* arrayKey, std::int32_t index, const char* dictKey,
                             bool writeDefault, std::int32_t defaultValue);

/// The same, except that a missing value without `writeDefault` fails "val != NULL".
double GetPrefArrayDouble(const char* arrayKey, std::int32_t index, const char* dictKey,
                          bool writeDefault, double defaultValue);

/// The same for a text, into a buffer as GetPrefString. A missing value always fails "val != NULL":
/// with `writeDefault` the default is stored first, but the element is looked at as it was before.
void GetPrefArrayString(const char* arrayKey, std::int32_t index, const char* dictKey, char* buffer,
                        std::int32_t bufferSize, bool writeDefault, const char* defaultValue);

}  // namespace lurkwell
