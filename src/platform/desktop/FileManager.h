#pragma once

#include <functional>
#include <memory>
#include <string>

namespace lurkwell {

/// Has the desktop open a folder or an address. `failed` is called, now or later, when it does not:
/// the toolkit's own way would not say so. Needs a QCoreApplication. Main thread only.
void OpenByTheDesktop(const QString& folderOrAddress, const std::function<void()>& failed);

/// The desktop's file manager, reached over the session bus. Needs a QCoreApplication. Main thread
/// only.
class FileManager {
 public:
  using Failure = std::function<void(const std::string& path)>;

  /// `busAddress` is "" when there is no session bus.
  explicit FileManager(std::string busAddress) : mBusAddress(std::move(busAddress)) {}

  /// Asks it to show a file, selected, in its folder; the outcome is not waited for. False when
  /// there is no bus to ask on.
  bool Show(const std::string& path) const;

  /// The same, or else its folder, by whatever shows folders here. `failed` is called when no
  /// program shows either, now or later.
  void ShowFileOrFolder(const std::string& path, std::function<void()> failed) const;

  /// Is told of each file that Show was asked for and, as the bus says later, is not shown. Not
  /// after the end of this.
  void WhenShowingFails(Failure failure) { *mFailure = std::move(failure); }

 private:
  /// False when there is no file manager to ask; else `failed` may be called later.
  bool Ask(const std::string& path, std::function<void()> failed) const;

  std::string mBusAddress;
  /// Shared with the answers that are still to come.
  std::shared_ptr<Failure> mFailure = std::make_shared<Failure>();
};

}  // namespace lurkwell
