#pragma once

#include <QString>
#include <cstdint>
#include <string>

namespace lurkwell {

/// What tells a followed process from others of its name. Main thread; asking waits half a second
/// at most, and what is not known by then, or at all, is empty.
struct FollowedProcess {
  /// The user whose rights it has, any bytes.
  std::string owner;
  /// The same, and its command line, for people.
  QString ownerText;
  QString commandText;
};

FollowedProcess DescribeFollowed(std::int32_t pid);

/// The program's name for people, whole as far as it can be known; empty when there is no such
/// process. The first one who asks for a long name waits for the machine as above.
QString FollowedName(std::int32_t pid);

}  // namespace lurkwell
