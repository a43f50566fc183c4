#include "platform/desktop/DesktopEntries.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <optional>

namespace lurkwell {
namespace {

constexpr std::string_view kSuffix = ".desktop";
constexpr off_t kLargestEntry = 512 * 1024;
constexpr int kDeepestFolder = 8;
constexpr std::size_t kMostEntries = 10000;

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

std::string LastPart(const std::string& id) {
  return id.substr(id.rfind('.') + 1);
}

/// A file's text; nothing unless it is an ordinary file of a sensible size. Anybody may put a named
/// pipe there, so opening must not wait.
std::optional<std::string> ReadOrdinaryFile(const std::string& path) {
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
  if (descriptor < 0) return {};
  struct stat status {};
  std::optional<std::string> text;
  if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
      status.st_size <= kLargestEntry) {
    text.emplace(static_cast<std::size_t>(status.st_size), '\0');
    const ssize_t bytes = ::read(descriptor, text->data(), text->size());
    text->resize(static_cast<std::size_t>(std::max<ssize_t>(bytes, 0)));
  }
  ::close(descriptor);
  return text;
}

std::filesystem::file_time_type TimeOf(const std::string& folder) {
  std::error_code none;
  return std::filesystem::last_write_time(folder, none);
}

}  // namespace

DesktopEntries::DesktopEntries(std::vector<std::string> folders, std::string_view locale,
                               std::chrono::milliseconds lookInterval)
    : mFolders(std::move(folders)),
      mLocaleVariants(LocaleVariants(locale)),
      mLookInterval(lookInterval) {}

bool DesktopEntries::Refresh() {
  const auto now = Clock::now();
  if (mWereRead && now < mNextLook) return false;
  mNextLook = now + mLookInterval;
  if (mWereRead && !AnythingChanged()) return false;
  ReadAll();
  mWereRead = true;
  return true;
}

bool DesktopEntries::AnythingChanged() const {
  return std::ranges::any_of(mFolderTimes,
                             [](const auto& known) { return TimeOf(known.first) != known.second; });
}

void DesktopEntries::ReadAll() {
  mFolderTimes.clear();
  mIds.clear();
  for (Index* index : {&mById, &mByLastPart, &mByStartupClass, &mByExecutable}) index->clear();
  for (const auto& folder : mFolders) ReadFolder(folder, "", 0);
}

/// In order of names, so that which of two equals counts does not depend on the disk.
void DesktopEntries::ReadFolder(const std::filesystem::path& folder, const std::string& idPrefix,
                                int depth) {
  namespace fs = std::filesystem;
  mFolderTimes.emplace_back(folder.string(), TimeOf(folder.string()));
  std::error_code error;
  std::map<std::string, fs::directory_entry> entries;
  for (fs::directory_iterator i(folder, error), end; !error && i != end; i.increment(error)) {
    if (entries.size() < kMostEntries) entries.emplace(i->path().filename().string(), *i);
  }
  for (const auto& [name, entry] : entries) {
    std::error_code none;
    if (name.ends_with(kSuffix)) {
      ReadFile(entry.path(), idPrefix + name.substr(0, name.size() - kSuffix.size()));
    } else if (depth < kDeepestFolder && entry.is_directory(none) && !entry.is_symlink(none)) {
      ReadFolder(entry.path(), idPrefix + name + '-', depth + 1);
    }
  }
}

void DesktopEntries::ReadFile(const std::filesystem::path& file, std::string id) {
  if (mIds.size() >= kMostEntries || mIds.contains(id)) return;
  const auto text = ReadOrdinaryFile(file.string());
  if (!text) return;
  auto entry = ParseDesktopEntry(*text, mLocaleVariants);
  if (!entry) return;
  mIds.insert(id);
  if (entry->hidden) return;
  entry->id = std::move(id);
  entry->path = file.string();
  IndexEntry(std::make_shared<const DesktopEntry>(std::move(*entry)));
}

/// Of several entries the first counts, but one that menus show before one that they do not.
void DesktopEntries::IndexEntry(const Entry& entry) {
  const auto add = [&](Index& index, const std::string& key) {
    if (key.empty()) return;
    const auto [place, isNew] = index.emplace(key, entry);
    if (!isNew && place->second->noDisplay && !entry->noDisplay) place->second = entry;
  };
  add(mById, Lower(entry->id));
  add(mByLastPart, Lower(LastPart(entry->id)));
  add(mByStartupClass, entry->startupClass);
  add(mByExecutable, entry->executable);
}

DesktopEntries::Entry DesktopEntries::WithId(std::string_view id) const {
  const auto found = mById.find(Lower(id));
  return found == mById.end() ? nullptr : found->second;
}

DesktopEntries::Entry DesktopEntries::WithIdOrLastPart(const std::string& name) const {
  if (name.empty()) return nullptr;
  if (auto entry = WithId(name)) return entry;
  const auto found = mByLastPart.find(Lower(name));
  return found == mByLastPart.end() ? nullptr : found->second;
}

DesktopEntries::Entry DesktopEntries::Match(const std::string& windowClass,
                                            const std::string& instance,
                                            const std::string& executable) const {
  for (const auto& name : {windowClass, instance}) {
    if (const auto found = mByStartupClass.find(name); found != mByStartupClass.end()) {
      return found->second;
    }
  }
  for (const auto& name : {windowClass, instance}) {
    if (auto entry = WithIdOrLastPart(name)) return entry;
  }
  const auto found = mByExecutable.find(executable);
  return found == mByExecutable.end() ? nullptr : found->second;
}

}  // namespace lurkwell
