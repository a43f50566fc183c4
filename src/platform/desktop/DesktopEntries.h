#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lurkwell {

/// What one desktop entry says of its application, as far as it is asked for. Any bytes.
struct DesktopEntry {
  /// The file's name below its folder, without ".desktop", folders joined with dashes.
  std::string id;
  /// Where the file lies.
  std::string path;
  /// In the user's language.
  std::string name;
  /// A name for the icon theme, or an absolute path.
  std::string icon;
  /// The last component of the program to be run; "" when it would tell nothing, as with
  /// interpreters and programs for the terminal.
  std::string executable;
  std::string startupClass;
  bool noDisplay = false;
  /// To be treated as if it were not there.
  bool hidden = false;
  bool fileManager = false;
};

/// The suffixes of localised keys to look for, best first: "de_AT@euro", "de_AT", "de@euro", "de".
/// None for "", "C" and "POSIX".
std::vector<std::string> LocaleVariants(std::string_view locale);

/// Reads the text of a file. Lines that make no sense are passed over, of several equal keys the
/// first counts; nothing when it is no application with a name. `id` and `path` are left empty.
/// Pure; any thread.
std::optional<DesktopEntry> ParseDesktopEntry(std::string_view text,
                                              const std::vector<std::string>& localeVariants);

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
