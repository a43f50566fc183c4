#include "monitor_windows/RememberedWindows.h"

#include <string>
#include <string_view>

#include "consolidator/ProcessQueries.h"
#include "platform/Assertion.h"
#include "preferences/PreferenceBatch.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr char kWatchdogUnit[] = "ProcessWatchdog";
constexpr char kUuidKey[] = "WINDOW_UUID";
constexpr char kStartKey[] = "PROCESS_START";

struct RectField {
  const char* key;
  std::int32_t WindowRect::*value;
};
constexpr RectField kRectFields[] = {{"WINDOW_RECT_LEFT", &WindowRect::left},
                                     {"WINDOW_RECT_TOP", &WindowRect::top},
                                     {"WINDOW_RECT_RIGHT", &WindowRect::right},
                                     {"WINDOW_RECT_BOTTOM", &WindowRect::bottom}};

/// In ticks since the machine was started; other processes of that pid have others.
std::string StartOf(std::int32_t pid) {
  return std::to_string(GetPidsStartStamp(pid));
}

bool HasUuid(const char* arrayName, std::int32_t index, std::string_view uuid) {
  char text[kRememberedTextSize];
  ReadRememberedText(arrayName, index, kUuidKey, text);
  return text == uuid;
}

}  // namespace

std::int32_t GetAppropriateIndexForUUID(const char* arrayName, const Uuid* uuid) {
  Require(arrayName != nullptr, kWatchdogUnit, "arrayName != NULL");
  Require(uuid != nullptr, kWatchdogUnit, "uuid != NULL");
  const auto text = uuid->Text();
  const auto count = GetPrefArrayCount(arrayName);
  for (std::int32_t index = 0; index < count; ++index)
    if (HasUuid(arrayName, index, text)) return index;
  return count;
}

std::int32_t SetPersistentClientInfo(const char* clientKind, const char* processName,
                                     const char* processKind, const WindowRect* rect,
                                     const Uuid* uuid) {
  Require(clientKind != nullptr, kWatchdogUnit, "clientKind");
  const auto index = GetAppropriateIndexForUUID(clientKind, uuid);
  const bool complete = processName != nullptr && processKind != nullptr && rect != nullptr;
  if (!complete && index >= GetPrefArrayCount(clientKind)) return -1;
  const auto text = uuid->Text();
  RememberedChanges changes(clientKind, index);
  if (processName != nullptr) changes.SetText("PROCESS_NAME", processName);
  if (processKind != nullptr) changes.SetText("PROCESS_KIND", processKind);
  if (rect != nullptr)
    for (const auto& field : kRectFields) changes.SetInt(field.key, rect->*field.value);
  changes.SetText(kUuidKey, text.c_str());
  return index;
}

void RememberProcess(const char* arrayName, std::int32_t index, std::int32_t pid) {
  const auto start = StartOf(pid);
  const bool hasOwner = IsPrefArrayValuePresent(arrayName, index, kRememberedOwnerKey);
  const auto owner = hasOwner ? std::string() : DescribeFollowed(pid).owner;
  RememberedChanges changes(arrayName, index);
  if (!owner.empty() && owner.size() < kRememberedTextSize)
    changes.SetText(kRememberedOwnerKey, owner.c_str());
  changes.SetInt(kRememberedPidKey, pid);
  changes.SetText(kStartKey, start.c_str());
}

bool IsRememberedProcess(const char* arrayName, std::int32_t index, std::int32_t pid) {
  char start[kRememberedTextSize];
  ReadRememberedText(arrayName, index, kStartKey, start);
  return ReadRememberedInt(arrayName, index, kRememberedPidKey, -1) == pid && start == StartOf(pid);
}

void RemovePersistentClientInfo(const char* arrayName, const Uuid* uuid) {
  Require(arrayName != nullptr, kWatchdogUnit, "arrayName != NULL");
  Require(uuid != nullptr, kWatchdogUnit, "uuid != NULL");
  const auto text = uuid->Text();
  const PreferenceBatch batch;
  for (std::int32_t index = GetPrefArrayCount(arrayName) - 1; index >= 0; --index)
    if (HasUuid(arrayName, index, text)) RemovePrefArrayElement(arrayName, index);
}

void ReadRememberedText(const char* arrayName, std::int32_t index, const char* key, char* buffer) {
  *buffer = '\0';
  if (IsPrefArrayValuePresent(arrayName, index, key))
    GetPrefArrayString(arrayName, index, key, buffer, kRememberedTextSize, false, "");
}

std::int32_t ReadRememberedInt(const char* arrayName, std::int32_t index, const char* key,
                               std::int32_t fallback) {
  if (!IsPrefArrayValuePresent(arrayName, index, key)) return fallback;
  return GetPrefArrayInt(arrayName, index, key, false, 0);
}

WindowRect ReadRememberedRect(const char* arrayName, std::int32_t index) {
  WindowRect rect;
  for (const auto& field : kRectFields)
    rect.*field.value = ReadRememberedInt(arrayName, index, field.key, 0);
  return rect;
}

RememberedChanges::RememberedChanges(const char* arrayName, std::int32_t index)
    : mArrayName(arrayName), mIndex(index) {}

RememberedChanges::~RememberedChanges() {
  // Another instance may have made the array shorter since the index was found.
  const bool canBeWritten = mIndex >= 0 && mIndex <= GetPrefArrayCount(mArrayName);
  if (canBeWritten && !mFields.empty()) SetPrefArrayFields(mArrayName, mIndex, mFields);
}

void RememberedChanges::SetInt(const char* key, std::int32_t value) {
  if (!IsPrefArrayValuePresent(mArrayName, mIndex, key) ||
      GetPrefArrayInt(mArrayName, mIndex, key, false, 0) != value)
    mFields.push_back({key, value});
}

void RememberedChanges::SetDouble(const char* key, double value) {
  constexpr double kSame = 0.001;
  const bool isThere = IsPrefArrayValuePresent(mArrayName, mIndex, key);
  const double change =
      isThere ? GetPrefArrayDouble(mArrayName, mIndex, key, false, 0) - value : 1.0;
  if (!(change > -kSame && change < kSame)) mFields.push_back({key, value});
}

void RememberedChanges::SetText(const char* key, const char* value) {
  char before[kRememberedTextSize];
  ReadRememberedText(mArrayName, mIndex, key, before);
  if (*value == '\0' || std::string_view(before) != value) mFields.push_back({key, value});
}

}  // namespace lurkwell
