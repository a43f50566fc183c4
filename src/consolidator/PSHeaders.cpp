#include "consolidator/PSHeaders.h"

#include <string>

#include "consolidator/ConsolidatorState.h"
#include "consolidator/PropertyRendering.h"
#include "platform/Assertion.h"

namespace lurkwell {
namespace {

void CopyOut(std::string_view text, char* dest, int length) {
  if (dest != nullptr && length >= 2) RenderText({dest, static_cast<std::size_t>(length)}, text);
}

}  // namespace

int GetPSHeaderCount() {
  const ConsolidatorGuard guard;
  return gPSHeaders.Count();
}

int FindPSHeader(std::string_view header) {
  const ConsolidatorGuard guard;
  const auto* found = gPSHeaders.Find(header);
  return found == nullptr ? -1 : found->index;
}

void GetNthPSHeader(int index, char* dest, int length, bool* isCurrent) {
  const ConsolidatorGuard guard;
  const auto& header = gPSHeaders.Nth(index);
  CopyOut(header.keyword, dest, length);
  if (isCurrent != nullptr) *isCurrent = header.generation == gGenerationCount[kInformationKindPS];
}

int GetNthPSHeadersGeneratingOptionCount(int index) {
  const ConsolidatorGuard guard;
  return static_cast<int>(gPSHeaders.Nth(index).generatingOptions.size());
}

void GetNthPSHeadersNthGeneratingOption(int index, int n, char* dest, int length) {
  const ConsolidatorGuard guard;
  const auto& options = gPSHeaders.Nth(index).generatingOptions;
  Require(n >= 0 && n < static_cast<int>(options.size()), kUnit, "successfullyRetrievedTheOption");
  CopyOut(options[options.size() - 1 - static_cast<std::size_t>(n)], dest, length);
}

void EnsureThatPSProcPropertyExists(const char* keyword, const char* option) {
  const ConsolidatorGuard guard;
  auto* header = gPSHeaders.Find(keyword);
  if (header == nullptr) {
    Require(option != nullptr, kUnit, "inPSOptionThatGeneratedProperty != NULL");
    header = &gPSHeaders.Add(keyword);
  }
  if (option != nullptr) header->generatingOptions.emplace_back(option);
  header->generation = gGenerationCount[kInformationKindPS];
}

}  // namespace lurkwell
