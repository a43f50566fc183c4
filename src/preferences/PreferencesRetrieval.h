#pragma once

#include <cstdint>
#include <span>
#include <variant>

/// Every setting of the program is read and written here, in the installed machine's preference
/// domain. A value is a number or a text under a key, or an array of dictionaries of such values
/// under a key; array indices are 0-based and dense.
///
/// Keys and texts are NUL-terminated Mac Roman bytes. Integers are 32-bit: what does not fit is a
/// failed conversion; a stored real is cut to its whole part for the integer getters, and a stored
/// integer serves the real getters. Booleans are integers 0 and 1.
///
/// Main thread only; a read-change-write of an array is not atomic between two running instances.
/// Callers own the buffers they pass; nothing else changes hands. Every write is on disk before it
/// returns (or before the PreferenceBatch around it ends), or counts for this run when the disk
/// refuses (see PreferenceDomain). Reading a scalar
/// neither allocates nor touches the disk, so it may be done in every update cycle.
///
/// No call returns an error. A broken precondition is a fatal assertion of the unit
/// PreferencesRetrieval, named with each function. A stored value of the wrong kind is never
/// fatal: it is a failed conversion, and what should be an array and is not counts as absent.
namespace lurkwell {

// ---- Scalars. A null key fails "prefKey != NULL".

/// Stores a text. A null value fails "prefValue != NULL".
void SetPrefString(const char* prefKey, const char* prefValue);
void SetPrefInt(const char* prefKey, std::int32_t prefValue);
void SetPrefDouble(const char* prefKey, double prefValue);

/// The value under `prefKey`. When there is none and `writeDefault` is set, the default is stored
/// and read back; with `writeDefault` clear an absent value gives 0, not the default. `found` (may
/// be null) receives 1 when a value was obtained and 0 otherwise. A failed conversion gives 0 and
/// `*found` 0.
std::int32_t GetPrefInt(const char* prefKey, std::uint8_t* found, bool writeDefault,
                        std::int32_t defaultValue);
double GetPrefDouble(const char* prefKey, std::uint8_t* found, bool writeDefault,
                     double defaultValue);

/// The same for a text: at most `bufferSize` bytes, terminator included. A text that is longer, or
/// that Mac Roman cannot show, is a failed conversion and leaves the buffer as it was, as an absent
/// one does.
void GetPrefString(const char* prefKey, char* buffer, std::int32_t bufferSize, std::uint8_t* found,
                   bool writeDefault, const char* defaultValue);

/// Removes whatever is stored under the key, so that its next reader meets it absent.
void RemovePref(const char* prefKey);

// ---- Arrays of dictionaries.

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
