#include "monitor_windows/RememberedPrograms.h"

#include <algorithm>

#include "monitor_windows/RememberedWindows.h"
#include "platform/Uuid.h"
#include "preferences/PreferenceArrays.h"

namespace lurkwell {
namespace {

std::string KeyOf(const char* name, const char* kind) {
  std::string program(name);
  program += '\0';
  return program += kind;
}

}  // namespace

std::string RememberedPrograms::ProgramAt(std::int32_t index) const {
  if (!IsPrefArrayValuePresent(mArrayName, index, "PROCESS_NAME") ||
      !IsPrefArrayValuePresent(mArrayName, index, "PROCESS_KIND"))
    return {};
  char name[kRememberedTextSize];
  char kind[kRememberedTextSize];
  ReadRememberedText(mArrayName, index, "PROCESS_NAME", name);
  ReadRememberedText(mArrayName, index, "PROCESS_KIND", kind);
  char uuid[kRememberedTextSize];
  ReadRememberedText(mArrayName, index, "WINDOW_UUID", uuid);
  return Uuid::FromText(uuid) ? KeyOf(name, kind) : std::string();
}

void RememberedPrograms::Refresh() {
  mIndices.clear();
  mPids.clear();
  mHaveOwners = false;
  mCount = GetPrefArrayCount(mArrayName);
  for (std::int32_t index = 0; index < mCount; ++index)
    if (auto program = ProgramAt(index); !program.empty()) {
      mIndices[std::move(program)].push_back(index);
      mHaveOwners = mHaveOwners || IsPrefArrayValuePresent(mArrayName, index, kRememberedOwnerKey);
      mPids.insert(ReadRememberedInt(mArrayName, index, kRememberedPidKey, -1));
    }
}

std::int32_t RememberedPrograms::Known(const std::string& program, std::int32_t startIndex) const {
  const auto at = mIndices.find(program);
  if (at == mIndices.end()) return -1;
  const auto index = std::ranges::lower_bound(at->second, startIndex);
  return index != at->second.end() ? *index : -1;
}

bool RememberedPrograms::IsOneMissing(const std::set<Program>& running) {
  Refresh();
  return std::ranges::any_of(mIndices, [&](const auto& remembered) {
    const auto& key = remembered.first;
    const auto end = key.find('\0');
    return !running.contains({key.substr(0, end), key.substr(end + 1)});
  });
}

std::int32_t RememberedPrograms::Find(const char* name, const char* kind, std::int32_t startIndex) {
  if (GetPrefArrayCount(mArrayName) != mCount) Refresh();
  const auto program = KeyOf(name, kind);
  const auto index = Known(program, startIndex);
  if (index < 0 || ProgramAt(index) == program) return index;
  // Another instance has changed the records under us.
  Refresh();
  return Known(program, startIndex);
}

}  // namespace lurkwell
