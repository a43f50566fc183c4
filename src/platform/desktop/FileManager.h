#pragma once

#include <string>

namespace lurkwell {

/// The desktop's file manager, reached over the session bus. Needs a QCoreApplication. Main thread
/// only.
class FileManager {
 public:
  /// `busAddress` is "" when there is no session bus.
  explicit FileManager(std::string busAddress) : mBusAddress(std::move(busAddress)) {}

  /// Asks it to show a file, selected, in its folder; nobody waits for the outcome. False when
  /// there is nobody to ask.
  bool Show(const std::string& path) const;

 private:
  std::string mBusAddress;
};

}  // namespace lurkwell
