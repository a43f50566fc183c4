#pragma once

#include <string_view>

namespace lurkwell {

/// A column or row key as a small number, so that rows are arrays rather than maps. Numbers are
/// given out from 0 and never change; equal texts have equal numbers. Main thread only.
using KeyId = int;

inline constexpr KeyId kNoKey = -1;

KeyId InternKey(std::string_view key);

/// The text of a number that InternKey gave; NUL-terminated, valid for ever.
std::string_view KeyText(KeyId id);

/// Keys of a client's own, which no property has.
bool IsInternalKey(std::string_view key);

// ---- The keys that the table itself knows ------------------------------------------------------

extern const KeyId kMetaPid;
extern const KeyId kMetaName;
extern const KeyId kMetaActiveTime;
extern const KeyId kPidCommandName;
extern const KeyId kInternalIcon;
extern const KeyId kInternalIndicator;
extern const KeyId kInternalCPUPercent;
extern const KeyId kInternalMemGraph;
extern const KeyId kInternalCpuUsage;
extern const KeyId kPidRsz;
extern const KeyId kPidVsz;

}  // namespace lurkwell
