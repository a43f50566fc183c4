#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "consolidator/MetaProcessInformation.h"
#include "consolidator/TypedValue.h"

namespace lurkwell {

/// Texts for property values, written into the caller's buffer and terminated. The first function
/// cuts what does not fit; the others then write an empty text and give false.
void RenderText(std::span<char> dest, std::string_view text);
bool RenderInteger(std::span<char> dest, std::int64_t value);
/// Seconds, a point, six digits of microseconds.
bool RenderTime(std::span<char> dest, TimeValue time);
/// A number of thousandths with its three digits.
bool RenderThousandths(std::span<char> dest, std::int64_t value);

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

// The same as values, where they are no plain texts; see CatalogueRow::read.
TypedValue ReadMetaPid(const MetaProcessInformation& record);
/// Whether it is one of the kernel's own, the idle task among them.
bool IsKernelThread(const MetaProcessInformation& record);
/// In this desktop's words: Application, Process, Kernel thread, Zombie, Classic.
TypedValue ReadMetaKind(const MetaProcessInformation& record);
TypedValue ReadClassicSize(const MetaProcessInformation& record);
TypedValue ReadClassicActiveTime(const MetaProcessInformation& record);
TypedValue ReadClassicFreeMemory(const MetaProcessInformation& record);

}  // namespace lurkwell
