#pragma once

#include <chrono>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "platform/FileDescriptor.h"
#include "platform/PreferenceDomain.h"
#include "platform/linux/PreferenceFile.h"
#include "platform/linux/PropertyListDocument.h"

namespace lurkwell {

/// An advisory lock between running instances, on a file of its own. Goes with the object or its
/// process, whichever ends first; the file stays. Any thread.
class FileLock {
 public:
  enum class State {
    kHeld,
    kBusy,         ///< another process held it all the time
    kUnavailable,  ///< the file cannot be opened or locked
  };

  /// Opens `path` (made with mode 0600 where it is missing; its folder must exist; a link is not
  /// followed) and takes the lock, trying for at most `patience`; zero makes one try. An instance
  /// that comes while others wait lets one of them go first.
  FileLock(const std::string& path, std::chrono::milliseconds patience);

  State Outcome() const { return mState; }

 private:
  bool Try();
  void WaitInTheCrowd(std::chrono::milliseconds patience);

  FileDescriptor mFile;
  State mState = State::kUnavailable;
};

/// The user's folder for settings: $XDG_CONFIG_HOME where that is absolute, else .config in the
/// home folder; empty when there is no home.
std::string UserConfigurationFolder();

/// The settings as the property list com.velquarin.lurkwell.plist, held in memory.
///
/// Only Synchronize and the constructor touch the disk. A synchronised write is a temporary file of
/// mode 0600, synchronised, renamed over the old one, and its folder synchronised; the system calls
/// of another instance in between are kept out by a lock file. Changes of this instance since its
/// last write go over what another one has written, key by key.
///
/// A file that is damaged, closed to the user, larger than 4 MiB or nested beyond 32 levels is
/// moved aside under a dated name and reported, and the defaults count; where even that fails
/// nothing is ever written over it. What the file holds beyond preferences survives.
class PropertyListDomain final : public PreferenceDomain {
 public:
  static constexpr const char* kFileName = "com.velquarin.lurkwell.plist";

  /// Reads the file in `folder` if there is one, and removes what killed runs left beside it.
  explicit PropertyListDomain(const std::string& folder = UserConfigurationFolder());

  const PreferenceValue* Value(std::string_view key) override;
  void SetValue(std::string_view key, PreferenceValue value) override;
  void RemoveValue(std::string_view key) override;
  bool Synchronize() override;
  std::string TakeComplaint() override { return std::exchange(mComplaint, {}); }

 private:
  enum class Intake { kDone, kUnfit, kFailed };

  FileLock Lock();
  bool Merge();
  Intake TakeIn();
  bool SetAside();
  void Adopt(PropertyListDocument document);
  bool BringChangesIntoDocument();
  bool Write();
  void Complain(const char* what, const FileFault& fault);
  void Say(const std::string& complaint);

  PreferenceFile mFile;
  bool mHasFolder;
  PropertyListDocument mDocument;
  PreferenceValues mValues;
  // Set or removed since the last write that succeeded; mValues has what they are.
  std::set<std::string, std::less<>> mPending;
  // The document holds what the disk does not.
  bool mIsDocumentAhead = false;
  // Why the file is unfit, for the report.
  FileFault mUnfitness;
  bool mLockWasBusy = false;
  std::set<std::pair<std::string, std::string>> mReported;
  // It has not been taken yet.
  std::string mComplaint;
};

}  // namespace lurkwell
