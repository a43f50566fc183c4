#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/desktop/DesktopEntryFile.h"

namespace lurkwell {

/// The desktop entries of this machine. Read when first asked for and again when a folder has
/// changed, which is looked at only now and then. Files may hold anything; those that are too big,
/// too deep or too many are left out. Main thread only.
class DesktopEntries {
 public:
  using Entry = std::shared_ptr<const DesktopEntry>;

  /// `folders` hold "*.desktop" files, the most important folder first: of two files with the same
  /// id its one counts, also when it says that there is none.
  DesktopEntries(std::vector<std::string> folders, std::string_view locale,
                 std::chrono::milliseconds lookInterval);

  /// Reads what is new, if it is time to look; true when entries have been read.
  bool Refresh();

  /// The entry with this id, without regard to case; null when there is none.
  Entry WithId(std::string_view id) const;

  /// The entry of an application whose windows have this class and instance name and whose program
  /// is `executable`; null when there is none.
  Entry Match(const std::string& windowClass, const std::string& instance,
              const std::string& executable) const;

 private:
  using Index = std::unordered_map<std::string, Entry>;
  using Clock = std::chrono::steady_clock;

  bool AnythingChanged() const;
  void ReadAll();
  void ReadFolder(const std::filesystem::path& folder, const std::string& idPrefix, int depth);
  void ReadFile(const std::filesystem::path& file, std::string id);
  void IndexEntry(const Entry& entry);
  Entry WithIdOrLastPart(const std::string& name) const;

  std::vector<std::string> mFolders;
  std::vector<std::string> mLocaleVariants;
  std::chrono::milliseconds mLookInterval;
  Clock::time_point mNextLook{};
  bool mWereRead = false;
  /// Every folder below, also those that were not there.
  std::vector<std::pair<std::string, std::filesystem::file_time_type>> mFolderTimes;
  std::set<std::string> mIds;
  Index mById, mByLastPart, mByStartupClass, mByExecutable;
};

}  // namespace lurkwell
