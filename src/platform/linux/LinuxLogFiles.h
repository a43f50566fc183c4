#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/LogFiles.h"

namespace lurkwell {

/// Log files in $TMPDIR, or in /tmp where that is not an absolute path. Main thread.
class LinuxLogFiles final : public LogFiles {
 public:
  /// `randomText` gives the ends of names, another one at each call.
  explicit LinuxLogFiles(std::function<std::string()> randomText = RandomText)
      : mRandomText(std::move(randomText)) {}

  Creation Create(std::string_view prefix) override;

 private:
  static std::string RandomText();

  std::function<std::string()> mRandomText;
};

}  // namespace lurkwell
