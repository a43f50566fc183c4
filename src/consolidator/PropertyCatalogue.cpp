#include "consolidator/PropertyCatalogue.h"

#include <algorithm>
#include <array>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/PSHeaders.h"
#include "consolidator/PSValues.h"
#include "consolidator/PropertyRendering.h"

namespace lurkwell {
namespace {

constexpr bool kChanges = true;
constexpr bool kStays = false;

constexpr CatalogueRow Other(std::string_view name, PropertyType type, bool changes,
                             PropertyRenderer render, TypedPropertyReader read = nullptr) {
  return {name, type, changes, std::monostate{}, 0, render, read};
}

// Buffers hold the sign and ten digits of a 32-bit number and its terminator; a few rows differ.
constexpr std::size_t kUsualLength = 11;

constexpr CatalogueRow Pid(std::string_view name, PropertyType type, bool changes, PidField field,
                           std::size_t minimumLength = kUsualLength) {
  return {name, type, changes, field, minimumLength, nullptr, nullptr};
}

constexpr std::array kRows = {
    Other("meta_pid", kPropertyTypeInteger, kStays, RenderMetaPid, ReadMetaPid),
    Other("meta_name", kPropertyTypeString, kChanges, RenderMetaName),
    Other("meta_active_time", kPropertyTypeTime, kChanges, RenderMetaActiveTime,
          ReadMetaActiveTime),
    Other("meta_kind", kPropertyTypeString, kChanges, RenderMetaKind, ReadMetaKind),
    Other("meta_psn", kPropertyTypeString, kStays, RenderMetaPsn),
    Other("carbonpsn_name", kPropertyTypeString, kStays, RenderCarbonName),
    Other("carbonpsn_type", kPropertyTypeString, kStays, RenderCarbonType),
    Other("carbonpsn_signature", kPropertyTypeString, kStays, RenderCarbonSignature),
    Other("carbonpsn_mode", kPropertyTypeInteger, kStays, RenderCarbonMode),
    Other("classicpsn_name", kPropertyTypeString, kStays, RenderClassicName),
    Other("classicpsn_type", kPropertyTypeString, kStays, RenderClassicType),
    Other("classicpsn_signature", kPropertyTypeString, kStays, RenderClassicSignature),
    Other("classicpsn_mode", kPropertyTypeInteger, kStays, RenderClassicMode),
    Other("classicpsn_location", kPropertyTypeInteger, kStays, RenderClassicLocation),
    Other("classicpsn_size", kPropertyTypeInteger, kStays, RenderClassicSize, ReadClassicSize),
    Other("classicpsn_active_time", kPropertyTypeInteger, kChanges, RenderClassicActiveTime,
          ReadClassicActiveTime),
    Other("classicpsn_free_mem", kPropertyTypeInteger, kChanges, RenderClassicFreeMemory,
          ReadClassicFreeMemory),
    Pid("pid_p_comm", kPropertyTypeString, kChanges, &PidBlock::commandName),
    Pid("pid_p_priority", kPropertyTypeInteger, kChanges, &PidBlock::priority, 6),
    Pid("pid_parent_pid", kPropertyTypeInteger, kStays, &PidBlock::parentPid, 6),
    Pid("pid_p_nice", kPropertyTypeInteger, kChanges, &PidBlock::nice),
    Pid("pid_p_starttime", kPropertyTypeDate, kChanges, &PidBlock::startTime),
    Pid("pid_user_time", kPropertyTypeTime, kChanges, &PidBlock::userTime, 14),
    Pid("pid_system_time", kPropertyTypeTime, kChanges, &PidBlock::systemTime),
    Pid("pid_vsz", kPropertyTypeMemory, kChanges, &PidBlock::virtualSize),
    Pid("pid_rsz", kPropertyTypeMemory, kChanges, &PidBlock::residentSize),
    Pid("pid_suspend_count", kPropertyTypeInteger, kChanges, &PidBlock::suspendCount),
    Pid("pid_terminated_user_time", kPropertyTypeTime, kChanges, &PidBlock::terminatedUserTime, 14),
    Pid("pid_terminated_system_time", kPropertyTypeTime, kChanges, &PidBlock::terminatedSystemTime,
        14),
    Pid("pid_policy", kPropertyTypeInteger, kChanges, &PidBlock::policy),
    Pid("pid_faults", kPropertyTypeInteger, kChanges, &PidBlock::faults),
    Pid("pid_pageins", kPropertyTypeInteger, kChanges, &PidBlock::pageins),
    Pid("pid_cow_faults", kPropertyTypeInteger, kChanges, &PidBlock::copyOnWriteFaults),
    Pid("pid_messages_sent", kPropertyTypeInteger, kChanges, &PidBlock::messagesSent),
    Pid("pid_messages_received", kPropertyTypeInteger, kChanges, &PidBlock::messagesReceived),
    Pid("pid_syscalls_mach", kPropertyTypeInteger, kChanges, &PidBlock::machSystemCalls),
    Pid("pid_syscalls_unix", kPropertyTypeInteger, kChanges, &PidBlock::unixSystemCalls),
    Pid("pid_csw", kPropertyTypeInteger, kChanges, &PidBlock::contextSwitches),
};
static_assert(kRows.size() == 38 && kRows.size() <= ValueStates::kCapacity);

/// FNV-1a; the key set is fixed, so that a table of 128 places built by the compiler does.
constexpr std::size_t kPlaces = 128;

constexpr std::size_t Place(std::string_view name) {
  std::uint32_t hash = 2166136261u;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
  return (hash ^ hash >> 15) % kPlaces;
}

constexpr std::array<std::int8_t, kPlaces> BuildPlaces() {
  std::array<std::int8_t, kPlaces> places{};
  places.fill(-1);
  for (std::size_t row = 0; row < kRows.size(); ++row) {
    std::size_t place = Place(kRows[row].name);
    while (places[place] >= 0) place = (place + 1) % kPlaces;
    places[place] = static_cast<std::int8_t>(row);
  }
  return places;
}

constexpr auto kRowAtPlace = BuildPlaces();

}  // namespace

std::span<const CatalogueRow> BuiltInProperties() {
  return kRows;
}

std::size_t PlaceOf(const CatalogueRow& row) {
  return static_cast<std::size_t>(&row - kRows.data());
}

const CatalogueRow* FindBuiltInProperty(std::string_view name) {
  for (std::size_t place = Place(name); kRowAtPlace[place] >= 0; place = (place + 1) % kPlaces) {
    const CatalogueRow& row = kRows[static_cast<std::size_t>(kRowAtPlace[place])];
    if (row.name == name) return &row;
  }
  return nullptr;
}

PropertyType GetProcPropertyType(const char* name, int* changes) {
  if (const CatalogueRow* row = FindBuiltInProperty(name)) {
    if (changes != nullptr) *changes = row->changes ? 1 : 0;
    return row->type;
  }
  const auto facts = FactsOfPSColumn(name);
  if (changes != nullptr) *changes = facts.changes ? 1 : 0;
  return facts.type;
}

bool IsKnownProcProperty(const char* name) {
  return FindBuiltInProperty(name) != nullptr || gPSHeaders.Find(name) != nullptr;
}

int CountBuiltInProcPropertyHeaders() {
  return static_cast<int>(kRows.size());
}

int CountProcPropertyHeaders() {
  return CountBuiltInProcPropertyHeaders() + GetPSHeaderCount();
}

bool GetNthProcPropertyHeader(int n, char* dest, int length) {
  if (n < 0 || n >= CountProcPropertyHeaders()) return false;
  if (n >= CountBuiltInProcPropertyHeaders()) {
    GetNthPSHeader(n - CountBuiltInProcPropertyHeaders(), dest, length, nullptr);
    return true;
  }
  if (length > 0)
    RenderText({dest, static_cast<std::size_t>(length)}, kRows[static_cast<std::size_t>(n)].name);
  return true;
}

}  // namespace lurkwell
