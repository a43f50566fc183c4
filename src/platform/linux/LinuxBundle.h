#pragma once

#include <string>

#include "platform/Bundle.h"

namespace lurkwell {

/// The application as it is installed: the program in PREFIX/bin, everything else in
/// PREFIX/lib/lurkwell. The user's data are below $XDG_DATA_HOME or ~/.local/share.
///
/// A build tree has the same shape and is marked by a file Contents/build-tree. There the data lie
/// in "Application Support" beside bin, so that no build ever runs the helper of another.
class LinuxBundle final : public Bundle {
 public:
  /// `executable`: where the running program lies.
  explicit LinuxBundle(const std::string& executable = RunningExecutable());

  std::string Path() const override { return mPrefix + "/lib/lurkwell"; }
  std::optional<std::string> ApplicationSupportFolder() const override;

  static std::string RunningExecutable();

 private:
  std::string mPrefix;
};

}  // namespace lurkwell
