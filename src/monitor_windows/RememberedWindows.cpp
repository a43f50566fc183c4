#include "monitor_windows/RememberedWindows.h"

#include <string_view>

#include "platform/Assertion.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/PreferencesRetrieval.h"

namespace lurkwell {
namespace {

constexpr char kUnit[] = "ProcessWatchdog";
constexpr char kUuidKey[] = "WINDOW_UUID";

struct RectField {
  const char* key;
  std::int32_t WindowRect::*value;
};
constexpr RectField kRectFields[] = {{"WINDOW_RECT_LEFT", &WindowRect::left},
                                     {"WINDOW_RECT_TOP", &WindowRect::top},
                                     {"WINDOW_RECT_RIGHT", &WindowRect::right},
                                     {"WINDOW_RECT_BOTTOM", &WindowRect::bottom}};

bool HasUuid(const char* arrayName, std::int32_t index, std::string_view uuid) {
  char text[kRememberedTextSize];
  ReadRememberedText(arrayName, index, kUuidKey, text);
  return text == uuid;
}

/// Another instance may have made the array shorter since the index was found.
bool CanBeWritten(const char* arrayName, std::int32_t index) {
  return index >= 0 && index <= GetPrefArrayCount(arrayName);
}

void WriteText(const char* arrayName, std::int32_t index, const char* key, const char* value) {
  if (!CanBeWritten(arrayName, index)) return;
  char before[kRememberedTextSize];
  ReadRememberedText(arrayName, index, key, before);
  if (*value == '\0' || std::string_view(before) != value)
    SetPrefArrayString(arrayName, index, key, value);
}

}  // namespace

std::int32_t GetAppropriateIndexForUUID(const char* arrayName, const Uuid* uuid) {
  Require(arrayName != nullptr, kUnit, "arrayName != NULL");
  Require(uuid != nullptr, kUnit, "uuid != NULL");
  const auto text = uuid->Text();
  const auto count = GetPrefArrayCount(arrayName);
  for (std::int32_t index = 0; index < count; ++index)
    if (HasUuid(arrayName, index, text)) return index;
  return count;
}

std::int32_t SetPersistentClientInfo(const char* clientKind, const char* processName,
                                     const char* processKind, const WindowRect* rect,
                                     const Uuid* uuid) {
  Require(clientKind != nullptr, kUnit, "clientKind");
  const auto index = GetAppropriateIndexForUUID(clientKind, uuid);
  const bool complete = processName != nullptr && processKind != nullptr && rect != nullptr;
  if (!complete && index >= GetPrefArrayCount(clientKind)) return -1;
  const PreferenceBatch batch;
  if (processName != nullptr) WriteText(clientKind, index, "PROCESS_NAME", processName);
  if (processKind != nullptr) WriteText(clientKind, index, "PROCESS_KIND", processKind);
  if (rect != nullptr)
    for (const auto& field : kRectFields)
      WriteRememberedInt(clientKind, index, field.key, rect->*field.value);
  WriteText(clientKind, index, kUuidKey, uuid->Text().c_str());
  return index;
}

void RemovePersistentClientInfo(const char* arrayName, const Uuid* uuid) {
  Require(arrayName != nullptr, kUnit, "arrayName != NULL");
  Require(uuid != nullptr, kUnit, "uuid != NULL");
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

void WriteRememberedInt(const char* arrayName, std::int32_t index, const char* key,
                        std::int32_t value) {
  if (!CanBeWritten(arrayName, index)) return;
  if (!IsPrefArrayValuePresent(arrayName, index, key) ||
      GetPrefArrayInt(arrayName, index, key, false, 0) != value)
    SetPrefArrayInt(arrayName, index, key, value);
}

void WriteRememberedDouble(const char* arrayName, std::int32_t index, const char* key,
                           double value) {
  if (!CanBeWritten(arrayName, index)) return;
  constexpr double kSame = 0.001;
  const bool isThere = IsPrefArrayValuePresent(arrayName, index, key);
  const double change = isThere ? GetPrefArrayDouble(arrayName, index, key, false, 0) - value : 1.0;
  if (!(change > -kSame && change < kSame)) SetPrefArrayDouble(arrayName, index, key, value);
}

}  // namespace lurkwell
