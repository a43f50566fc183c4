#include "consolidator/PropertyRendering.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <string>

#include "consolidator/TextScan.h"
#include "platform/Assertion.h"
#include "preferences/MacRoman.h"

namespace lurkwell {
namespace {

/// Hexadecimal, padded with zeros to eight digits.
char* PutHex8(char* at, std::uint32_t value) {
  constexpr char kDigits[] = "0123456789abcdef";
  for (int shift = 28; shift >= 0; shift -= 4) *at++ = kDigits[value >> shift & 0xF];
  return at;
}

bool Finish(std::span<char> dest, const char* text, const char* end) {
  const auto length = static_cast<std::size_t>(end - text);
  if (dest.size() <= length) {
    RenderText(dest, {});
    return false;
  }
  RenderText(dest, {text, length});
  return true;
}

bool RenderHex(std::span<char> dest, std::uint32_t value) {
  char text[10] = {'0', 'x'};
  return Finish(dest, text, PutHex8(text + 2, value));
}

bool RenderCode(std::span<char> dest, FourCharCode code) {
  if (dest.size() < code.size() + 1) return false;
  std::memcpy(dest.data(), code.data(), code.size());
  dest[code.size()] = '\0';
  return true;
}

}  // namespace

void RenderText(std::span<char> dest, std::string_view text) {
  if (dest.empty()) return;
  dest[text.copy(dest.data(), dest.size() - 1)] = '\0';
}

bool RenderInteger(std::span<char> dest, std::int64_t value) {
  char text[24];
  return Finish(dest, text, std::to_chars(text, std::end(text), value).ptr);
}

bool RenderTime(std::span<char> dest, TimeValue time) {
  char text[40];
  char* at = std::to_chars(text, std::end(text), time.seconds).ptr;
  *at++ = '.';
  for (std::int32_t unit = 100'000, rest = time.microseconds; unit > 0; rest %= unit, unit /= 10)
    *at++ = static_cast<char>('0' + rest / unit);
  return Finish(dest, text, at);
}

bool RenderThousandths(std::span<char> dest, std::int64_t value) {
  char text[32];
  const double number = static_cast<double>(value) / 1000;
  return Finish(dest, text,
                std::to_chars(text, std::end(text), number, std::chars_format::fixed, 3).ptr);
}

bool RenderMetaPid(const MetaProcessInformation& record, std::span<char> dest) {
  return RenderInteger(dest, record.pid);
}

bool RenderMetaName(const MetaProcessInformation& record, std::span<char> dest) {
  RenderText(dest, record.name);
  return true;
}

bool RenderMetaActiveTime(const MetaProcessInformation& record, std::span<char> dest) {
  return RenderTime(dest, record.activeTime);
}

bool RenderMetaKind(const MetaProcessInformation& record, std::span<char> dest) {
  RenderText(dest, record.pid <= -2 ? "Classic" : record.psn.IsNone() ? "Darwin" : "OS X");
  return true;
}

bool RenderMetaPsn(const MetaProcessInformation& record, std::span<char> dest) {
  char text[17];
  char* at = PutHex8(text, record.psn.high);
  *at++ = ' ';
  return Finish(dest, text, PutHex8(at, record.psn.low));
}

bool RenderCarbonName(const MetaProcessInformation& record, std::span<char> dest) {
  RenderText(dest, record.carbonInfo->name);
  return true;
}

bool RenderCarbonType(const MetaProcessInformation& record, std::span<char> dest) {
  return RenderCode(dest, record.carbonInfo->type);
}

bool RenderCarbonSignature(const MetaProcessInformation& record, std::span<char> dest) {
  return RenderCode(dest, record.carbonInfo->signature);
}

bool RenderCarbonMode(const MetaProcessInformation& record, std::span<char> dest) {
  Require(dest.size() > 10, kUnit, "valueLength > 10");
  return RenderHex(dest, record.carbonInfo->mode);
}

bool RenderClassicName(const MetaProcessInformation& record, std::span<char> dest) {
  const std::string_view name = record.epir->Name();
  Require(dest.size() > name.size(), kUnit, "valueLength > mpi->epir->name[0]");
  const std::string text = Utf8FromMacRoman(name);
  RenderText(dest, WholeCharacters(text, dest.size() - 1));
  return true;
}

bool RenderClassicType(const MetaProcessInformation& record, std::span<char> dest) {
  Require(dest.size() > 4, kUnit, "valueLength > 4");
  return RenderCode(dest, record.epir->Type());
}

bool RenderClassicSignature(const MetaProcessInformation& record, std::span<char> dest) {
  Require(dest.size() > 4, kUnit, "valueLength > 4");
  return RenderCode(dest, record.epir->Signature());
}

bool RenderClassicMode(const MetaProcessInformation& record, std::span<char> dest) {
  Require(dest.size() > 10, kUnit, "valueLength > 10");
  return RenderHex(dest, record.epir->Mode());
}

bool RenderClassicLocation(const MetaProcessInformation& record, std::span<char> dest) {
  Require(dest.size() > 10, kUnit, "valueLength > 10");
  char text[16] = {'0', 'x'};
  return Finish(dest, text,
                std::to_chars(text + 2, std::end(text), record.epir->Location(), 16).ptr);
}

bool RenderClassicSize(const MetaProcessInformation& record, std::span<char> dest) {
  Require(dest.size() > 10, kUnit, "valueLength > 10");
  return RenderInteger(dest, record.epir->Size());
}

bool RenderClassicActiveTime(const MetaProcessInformation& record, std::span<char> dest) {
  Require(dest.size() > 8, kUnit, "valueLength > 8");
  return RenderInteger(dest, static_cast<std::int32_t>(record.epir->ActiveTime()));
}

bool RenderClassicFreeMemory(const MetaProcessInformation& record, std::span<char> dest) {
  Require(dest.size() > 10, kUnit, "valueLength > 10");
  return RenderInteger(dest, record.epir->FreeMemory());
}

TypedValue ReadMetaPid(const MetaProcessInformation& record) {
  return std::int64_t{record.pid};
}

bool IsKernelThread(const MetaProcessInformation& record) {
  // Every kernel thread is a child of this one.
  constexpr std::int32_t kKernelThreads = 2;
  const auto* block = record.pidInfo.get();
  return block != nullptr &&
         (record.pid == 0 || record.pid == kKernelThreads || block->parentPid == kKernelThreads);
}

TypedValue ReadMetaKind(const MetaProcessInformation& record) {
  const auto* block = record.pidInfo.get();
  if (block == nullptr) return record.pid <= -2 ? "Classic" : "Application";
  if (block->runState == RunState::kZombie) return "Zombie";
  if (!record.psn.IsNone()) return "Application";
  return IsKernelThread(record) ? "Kernel thread" : "Process";
}

TypedValue ReadClassicSize(const MetaProcessInformation& record) {
  return std::int64_t{record.epir->Size()};
}

TypedValue ReadClassicActiveTime(const MetaProcessInformation& record) {
  return std::int64_t{static_cast<std::int32_t>(record.epir->ActiveTime())};
}

TypedValue ReadClassicFreeMemory(const MetaProcessInformation& record) {
  return std::int64_t{record.epir->FreeMemory()};
}

}  // namespace lurkwell
