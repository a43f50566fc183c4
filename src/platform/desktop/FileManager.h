#pragma once

#include <functional>
#include <memory>
#include <string>

namespace lurkwell {

/// The desktop's file manager, reached over the session bus. Needs a QCoreApplication. Main thread
/// only.
class FileManager {
 public:
  using Failure = std::function<void(const std::string& path)>;

  /// `busAddress` is "" when there is no session bus.
  explicit FileManager(std::string busAddress) : mBusAddress(std::move(busAddress)) {}

  /// Asks it to show a file, selected, in its folder; nobody waits for the outcome. False when
  /// there is no bus to ask on.
  bool Show(const std::string& path) const;

  /// Is told of each file that was asked for and, as the bus says later, is not shown. Not after
  /// the end of this.
  void WhenShowingFails(Failure failure) { *mFailure = std::move(failure); }

 private:
  std::string mBusAddress;
  /// Shared with the answers that are still to come.
  std::shared_ptr<Failure> mFailure = std::make_shared<Failure>();
};

}  // namespace lurkwell
