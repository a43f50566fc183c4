#pragma once

#include <cstdint>

#include "preferences/PreferenceArrays.h"

/// Every setting of the program is read and written here, in the installed machine's preference
/// domain. The rest of the program names its settings through Settings.h. A value is a number or a
/// text under a key, or an array of dictionaries of such values under a key; array indices are
/// 0-based and dense.
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

}  // namespace lurkwell
