#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "consolidator/MetaProcessInformation.h"

namespace lurkwell {

/// Texts for property values, written into the caller's buffer and terminated. The first function
/// cuts what does not fit; the others then write an empty text and give false.
void RenderText(std::span<char> dest, std::string_view text);
bool RenderInteger(std::span<char> dest, std::int64_t value);
/// Seconds, a point, six digits of microseconds.
bool RenderTime(std::span<char> dest, TimeValue time);

// The properties outside the per-pid block, one function each; see CatalogueRow::render.
bool RenderMetaPid(const MetaProcessInformation& record, std::span<char> dest);
bool RenderMetaName(const MetaProcessInformation& record, std::span<char> dest);
bool RenderMetaActiveTime(const MetaProcessInformation& record, std::span<char> dest);
bool RenderMetaKind(const MetaProcessInformation& record, std::span<char> dest);
bool RenderMetaPsn(const MetaProcessInformation& record, std::span<char> dest);
bool RenderCarbonName(const MetaProcessInformation& record, std::span<char> dest);
bool RenderCarbonType(const MetaProcessInformation& record, std::span<char> dest);
bool RenderCarbonSignature(const MetaProcessInformation& record, std::span<char> dest);
bool RenderCarbonMode(const MetaProcessInformation& record, std::span<char> dest);
bool RenderClassicName(const MetaProcessInformation& record, std::span<char> dest);
bool RenderClassicType(const MetaProcessInformation& record, std::span<char> dest);
bool RenderClassicSignature(const MetaProcessInformation& record, std::span<char> dest);
bool RenderClassicMode(const MetaProcessInformation& record, std::span<char> dest);
bool RenderClassicLocation(const MetaProcessInformation& record, std::span<char> dest);
bool RenderClassicSize(const MetaProcessInformation& record, std::span<char> dest);
bool RenderClassicActiveTime(const MetaProcessInformation& record, std::span<char> dest);
bool RenderClassicFreeMemory(const MetaProcessInformation& record, std::span<char> dest);

}  // namespace lurkwell
