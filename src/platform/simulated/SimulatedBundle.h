#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/Bundle.h"

namespace lurkwell {

/// Folders that the test names; nothing there is made or looked at. Without a name the bundle is
/// "/Lurkwell.app" and there is no folder for application data.
class SimulatedBundle final : public Bundle {
 public:
  std::string Path() const override { return mPath; }
  std::optional<std::string> ApplicationSupportFolder() const override { return mSupport; }

  void SetPath(std::string path) { mPath = std::move(path); }
  void SetApplicationSupportFolder(std::optional<std::string> folder) {
    mSupport = std::move(folder);
  }

 private:
  std::string mPath = "/Lurkwell.app";
  std::optional<std::string> mSupport;
};

}  // namespace lurkwell
