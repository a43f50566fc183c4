#include "consolidator/PrintfOutputClient.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

#include "consolidator/ProcessQueries.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/PropertyValues.h"
#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

constexpr std::int32_t kPrintIntervalInMilliseconds = 1000;

// The sizes are asked for by other names than they are printed by, so that printing them costs
// nothing unless another client needs them.
constexpr std::string_view kNeededProperties[] = {"meta_active_time", "meta_name", "pid_parent_pid",
                                                  "rsz", "vsz"};

struct PrintedProperty {
  const char* name;
  int width;
};

constexpr PrintedProperty kPrintedProperties[] = {
    {"meta_name", 22}, {"meta_active_time", 11}, {"pid_parent_pid", 5}, {"RSZ", 9}, {"VSZ", 11}};

bool IsNeeded(const char* property) {
  return std::ranges::find(kNeededProperties, std::string_view(property)) !=
         std::end(kNeededProperties);
}

std::string Shown(const char* property, std::string_view value) {
  const bool isPSColumn = FindBuiltInProperty(property) == nullptr;
  return PrintableText(isPSColumn ? WithoutNewline(value) : value);
}

void PrintLine(std::FILE* out, std::int32_t pid) {
  std::fprintf(out, "%5d:", pid);
  for (const auto& property : kPrintedProperties) {
    char value[63] = " ";
    bool found = false;
    // A ps that does not know a column has no values for it.
    if (IsKnownProcProperty(property.name))
      GetPIDPropertyValue(pid, property.name, value, sizeof value, &found);
    std::fprintf(out, " %*s", property.width, found ? Shown(property.name, value).c_str() : " ");
  }
  std::fputc('\n', out);
}

}  // namespace

PrintfOutputInformationClient* gPrintfOutputInfoClient = nullptr;

PrintfOutputInformationClient::PrintfOutputInformationClient(std::FILE* out)
    : ProcessInformationClient(nullptr, kPrintIntervalInMilliseconds), mOut(out) {}

PrintfOutputInformationClient::~PrintfOutputInformationClient() {
  if (gPrintfOutputInfoClient == this) gPrintfOutputInfoClient = nullptr;
}

ProcessInformationClient::NeedLevel PrintfOutputInformationClient::NeedProcPropertiesForPid(int) {
  return kNeedSomeProcProperties;
}

ProcessInformationClient::NeedLevel PrintfOutputInformationClient::NeedPidsForProcProperty(
    const char* property) {
  return IsNeeded(property) ? kNeedAllPids : kNeedNoPids;
}

bool PrintfOutputInformationClient::NeedPidProcProperty(int, const char* property) {
  return IsNeeded(property);
}

void PrintfOutputInformationClient::NotifyProcessesHaveBeenUpdated() {
  for (const auto pid : PidBlob(kPidBlobAll)) PrintLine(mOut, pid);
  std::fflush(mOut);
}

void BeginPrintfOutput(PrintfOutputInformationClient* client) {
  gPrintfOutputInfoClient = client;
  AddProcessInformationClient(gPrintfOutputInfoClient);
}

}  // namespace lurkwell
