#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lurkwell {

/// What one desktop entry says of its application, as far as anybody asks. Any bytes.
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

}  // namespace lurkwell
