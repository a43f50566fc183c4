#pragma once

#include <string_view>

#include "platform/LogFiles.h"

namespace lurkwell {

/// Log files in lurkwell/logs below $XDG_DATA_HOME, or below ~/.local/share where that is not an
/// absolute path. Folders that are missing are made, for the user alone. Main thread.
class LinuxLogFiles final : public LogFiles {
 public:
  Creation Create(std::string_view name) override;
};

}  // namespace lurkwell
