#include "consolidator/PropertyCatalogue.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <type_traits>

#include "consolidator/PSHeaders.h"
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

/// What stands in the process table's entries themselves.
constexpr CatalogueRow Listed(std::string_view name, PropertyType type, PidField field,
                              std::size_t minimumLength = kUsualLength,
                              FigureSources sources = kFromStat) {
  return {.name = name,
          .type = type,
          .changes = kChanges,
          .field = field,
          .minimumLength = minimumLength,
          .render = nullptr,
          .read = nullptr,
          .sources = sources};
}

TypedValue ReadMetaActiveTime(const MetaProcessInformation& record) {
  static const std::size_t kUserTime = PlaceOf(*FindBuiltInProperty("pid_user_time"));
  const auto* block = record.pidInfo.get();
  if (block != nullptr && !block->states.IsKnown(kUserTime)) return block->states.Why(kUserTime);
  return record.activeTime;
}

/// All but the figures.
constexpr std::array kOtherRows = {
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
    Listed("pid_p_comm", kPropertyTypeString, &PidBlock::commandName),
    Listed("pid_p_priority", kPropertyTypeInteger, &PidBlock::priority, 6,
           kFromStat | kFromScheduler),
    Listed("pid_parent_pid", kPropertyTypeInteger, &PidBlock::parentPid, 6),
    Listed("pid_p_nice", kPropertyTypeInteger, &PidBlock::nice, kUsualLength,
           kFromStat | kFromScheduler),
    Listed("pid_p_starttime", kPropertyTypeDate, &PidBlock::startTime),
};

constexpr PropertyType TypeOf(FigureKind kind) {
  switch (kind) {
    case FigureKind::kBytes:
      return kPropertyTypeMemory;
    case FigureKind::kMicroseconds:
      return kPropertyTypeTime;
    case FigureKind::kElapsed:
      return kPropertyTypeClock;
    case FigureKind::kShare:
    case FigureKind::kCPUShare:
      return kPropertyTypeShare;
    case FigureKind::kBytesPerSecond:
      return kPropertyTypeRate;
    case FigureKind::kWords:
    case FigureKind::kText:
      return kPropertyTypeString;
    case FigureKind::kNumber:
      break;
  }
  return kPropertyTypeInteger;
}

constexpr CatalogueRow OfFigure(Figure figure) {
  const FigureRow& its = RowOf(figure);
  auto row = Listed(its.property, TypeOf(its.kind), figure, its.minimumLength, SourcesOf(its));
  row.group = its.group;
  row.changes = its.changes;
  return row;
}

constexpr auto kRows = [] {
  std::array<CatalogueRow, kOtherRows.size() + kFigureCount> rows{};
  std::ranges::copy(kOtherRows, rows.begin());
  for (std::size_t i = 0; i < kFigureCount; ++i)
    rows[kOtherRows.size() + i] = OfFigure(static_cast<Figure>(i));
  return rows;
}();
static_assert(kRows.size() <= ValueStates::kCapacity);

/// The key set is fixed, so that a table built by the compiler does.
constexpr std::size_t kPlaces = 512;
constexpr std::size_t kWordLength = 8;

/// In the machine's order of bytes, for the compiler as well.
constexpr std::uint64_t WordAt(const char* text) {
  std::array<char, kWordLength> characters{};
  if (std::is_constant_evaluated()) {
    std::copy_n(text, kWordLength, characters.begin());
  } else {
    std::memcpy(characters.data(), text, kWordLength);
  }
  return std::bit_cast<std::uint64_t>(characters);
}

/// Values are read by name, so this counts: eight characters at a time, the last eight once more.
constexpr std::size_t Place(std::string_view name) {
  std::uint64_t hash = name.size();
  const auto add = [&hash](std::uint64_t word) {
    hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 29;
  };
  if (name.size() < kWordLength) {
    for (const char c : name) add(static_cast<unsigned char>(c));
  } else {
    for (std::size_t at = 0; at + kWordLength <= name.size(); at += kWordLength)
      add(WordAt(name.data() + at));
    add(WordAt(name.data() + name.size() - kWordLength));
  }
  return (hash >> 32) % kPlaces;
}

constexpr std::array<std::int16_t, kPlaces> BuildPlaces() {
  std::array<std::int16_t, kPlaces> places{};
  places.fill(-1);
  for (std::size_t row = 0; row < kRows.size(); ++row) {
    std::size_t place = Place(kRows[row].name);
    while (places[place] >= 0) place = (place + 1) % kPlaces;
    places[place] = static_cast<std::int16_t>(row);
  }
  return places;
}

constexpr auto kRowAtPlace = BuildPlaces();

}  // namespace

std::span<const CatalogueRow> BuiltInProperties() {
  return kRows;
}

std::span<const CatalogueRow> FigureProperties() {
  return std::span(kRows).subspan(kOtherRows.size());
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
  return FindBuiltInProperty(name) != nullptr || FindPSHeader(name) >= 0;
}

bool IsReadInBackground(std::string_view name) {
  const auto* row = FindBuiltInProperty(name);
  return row != nullptr && (row->sources & kCostlyFigureSources) != 0;
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
