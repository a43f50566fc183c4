#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "consolidator/MetaProcessInformation.h"
#include "consolidator/TypedValue.h"
#include "platform/ProcessFigures.h"

namespace lurkwell {

/// The catalogue of properties. A property is an ASCII key whose prefix says where its value comes
/// from: "meta_" the record itself, "pid_" the kernel's table or the helper, "carbonpsn_" the
/// desktop, "classicpsn_" the Classic environment; any other name is a ps column under the header
/// that ps prints. Names beginning "internal_" are a client's own and never come here.
///
/// Any thread, but for what concerns ps columns, which belongs to the main thread and to code
/// that holds the consolidator's region.

/// The type of a property; `changes`, if given, receives 1 when its value can change during the
/// life of a process and 0 when not. Unknown names are texts that change.
PropertyType GetProcPropertyType(const char* name, int* changes);

/// Whether there is such a property, built-in or a ps column that was found at start-up.
bool IsKnownProcProperty(const char* name);

/// Whether its values come some time after they are asked for, from CostlyFigures.
bool IsReadInBackground(std::string_view name);

int CountBuiltInProcPropertyHeaders();

/// The built-in properties and the ps columns together.
int CountProcPropertyHeaders();

/// Copies the n-th name, built-ins first, then the ps columns by index. False, with `dest` left
/// alone, when there is no n-th.
bool GetNthProcPropertyHeader(int n, char* dest, int length);

// ---- The rows, for the consolidator itself ------------------------------------------------------

using PidField = std::variant<std::monostate, char (PidBlock::*)[kCommandNameCapacity],
                              std::int32_t PidBlock::*, TimeValue PidBlock::*, Figure>;

/// Writes a value that does not lie in the per-pid block; false leaves `dest` an empty text.
using PropertyRenderer = bool (*)(const MetaProcessInformation& record, std::span<char> dest);

/// The same as a value, of a record that has the part in which the property lies.
using TypedPropertyReader = TypedValue (*)(const MetaProcessInformation& record);

/// One built-in property: everything the program knows of it.
struct CatalogueRow {
  std::string_view name;
  PropertyType type;
  bool changes;
  PidField field;             ///< where a "pid_" value lies
  std::size_t minimumLength;  ///< the smallest buffer a "pid_" value is written to, in bytes
  PropertyRenderer render;    ///< all others
  TypedPropertyReader read;   ///< of those, all that are no plain texts
  /// Which of the table's sources have to be those of now for its value to be.
  FigureSources sources = 0;
  /// In which of the helper's groups it is, if it is in one.
  FigureGroup group = kNoGroup;
};

std::span<const CatalogueRow> BuiltInProperties();

/// Those of the figures, in the order of kFigures.
std::span<const CatalogueRow> FigureProperties();

/// The row's place among the built-in properties, from 0.
std::size_t PlaceOf(const CatalogueRow& row);

/// The row of a built-in property, or null. Constant time.
const CatalogueRow* FindBuiltInProperty(std::string_view name);

}  // namespace lurkwell
