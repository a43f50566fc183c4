#include "monitor_windows/FollowedProcess.h"

#include <span>

#include "consolidator/WholeNames.h"
#include "platform/Machine.h"
#include "platform/ProcessTable.h"
#include "windows/PropertyText.h"

namespace lurkwell {

FollowedProcess DescribeFollowed(std::int32_t pid) {
  const auto described = TheMachine().processTable.Describe(std::span(&pid, 1));
  if (described.empty()) return {};
  const auto& process = described.front();
  return {process.owner, PlainText(process.owner), PlainText(process.commandLine)};
}

QString FollowedName(std::int32_t pid) {
  if (MayNameGoOn(pid)) LearnWholeNames(std::span(&pid, 1));
  return PlainText(WholeNameOf(pid));
}

}  // namespace lurkwell
