// The text of a stat file. What is understood is written down anew and has to be understood alike.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/ControlGroupPath.h"
#include "platform/ProcStat.h"
#include "platform/ProcessFigures.h"
#include "platform/StatText.h"
#include "platform/linux/UnitFiles.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lurkwell;
  // A copy of just that size, so that a look beyond its end is found out.
  const std::string text(reinterpret_cast<const char*>(data), size);
  const auto stat = ParseProcStat(text);
  static_cast<void>(ParseIdleTicks(text));
  const NamedFields fields(text);
  for (const auto& row : kFigures) {
    static_cast<void>(ParseWholeNumber(fields.Get(row.origin.name)));
    if (row.words != nullptr) static_cast<void>(row.words(static_cast<std::int64_t>(size)));
    if (row.origin.source == kFromThreads)
      static_cast<void>(ParseNthNumber(text, row.origin.field));
    if (row.origin.source == kFromUnit) static_cast<void>(SumOfNamed(text, row.origin.name));
  }
  const auto path = PathOfControlGroups(text);
  static_cast<void>(UnitOfPath(path) + SliceOfPath(path) + ContainerOfPath(path));
  static_cast<void>(ScopeOfControlGroups(text));
  if (!stat) return 0;
  static_cast<void>(ParseProcStatFields(*stat));
  if (stat->pid < 1 || stat->parentPid < 0) std::abort();
  if (text.find('(' + std::string(stat->name) + ')') == std::string::npos) std::abort();
  const std::string anew = StatText{stat->pid,      stat->name, stat->state,     stat->parentPid,
                                    stat->priority, stat->nice, stat->startStamp}
                               .Text();
  const auto again = ParseProcStat(anew);
  if (!again || again->pid != stat->pid || again->name != stat->name ||
      again->state != stat->state || again->parentPid != stat->parentPid ||
      again->priority != stat->priority || again->nice != stat->nice ||
      again->startStamp != stat->startStamp) {
    std::abort();
  }
  return 0;
}
