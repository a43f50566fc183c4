#include "platform/desktop/DesktopEntries.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <unordered_map>

namespace lurkwell {
namespace {

using Keys = std::unordered_map<std::string_view, std::string_view>;

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const auto begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// Takes the text up to `delimiter` off the front of `rest`.
std::string_view TakeUpTo(char delimiter, std::string_view& rest) {
  const auto end = std::min(rest.find(delimiter), rest.size());
  const auto taken = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return taken;
}

Keys KeysOfMainGroup(std::string_view text) {
  Keys keys;
  bool inGroup = false;
  while (!text.empty()) {
    const auto line = Trimmed(TakeUpTo('\n', text));
    if (line.starts_with('[')) {
      inGroup = line == "[Desktop Entry]";
    } else if (const auto equals = line.find('=');
               inGroup && !line.starts_with('#') && equals != std::string_view::npos) {
      keys.emplace(Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1)));
    }
  }
  return keys;
}

std::string UnescapedValue(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      plain += text[i];
      continue;
    }
    const char code = text[++i];
    constexpr std::string_view kCodes = "sntr\\";
    constexpr std::string_view kMeanings = " \n\t\r\\";
    const auto which = kCodes.find(code);
    if (which == std::string_view::npos) plain += '\\';
    plain += which == std::string_view::npos ? code : kMeanings[which];
  }
  return plain;
}

std::string TextOf(const Keys& keys, std::string_view key) {
  const auto found = keys.find(key);
  return found == keys.end() ? std::string() : UnescapedValue(found->second);
}

bool IsTrue(const Keys& keys, std::string_view key) {
  const auto found = keys.find(key);
  return found != keys.end() && found->second == "true";
}

bool HasItem(const Keys& keys, std::string_view key, std::string_view item) {
  const auto found = keys.find(key);
  if (found == keys.end()) return false;
  for (auto rest = found->second; !rest.empty();) {
    if (TakeUpTo(';', rest) == item) return true;
  }
  return false;
}

std::string LocalisedName(const Keys& keys, const std::vector<std::string>& variants) {
  for (const auto& variant : variants) {
    if (auto name = TextOf(keys, "Name[" + variant + "]"); !name.empty()) return name;
  }
  return TextOf(keys, "Name");
}

/// The next word of a command line, without its quotes.
std::string TakeWord(std::string_view& rest) {
  rest = Trimmed(rest);
  std::string word;
  bool quoted = false;
  std::size_t i = 0;
  for (; i < rest.size() && (quoted || rest[i] != ' '); ++i) {
    if (rest[i] == '"') {
      quoted = !quoted;
    } else {
      if (quoted && rest[i] == '\\' && i + 1 < rest.size()) ++i;
      word += rest[i];
    }
  }
  rest.remove_prefix(i);
  return word;
}

/// Programs that run others: that a process runs one of them does not tell which entry it is of.
bool RunsOthers(std::string_view program) {
  constexpr std::array<std::string_view, 16> kPrograms = {
      "sh",   "bash", "dash", "env",  "flatpak", "snap",        "perl",     "ruby",
      "java", "mono", "wine", "node", "gjs",     "gjs-console", "electron", "pkexec"};
  return program.starts_with("python") || std::ranges::find(kPrograms, program) != kPrograms.end();
}

std::string ProgramOf(const Keys& keys) {
  if (IsTrue(keys, "Terminal")) return {};
  const std::string command = TextOf(keys, "Exec");
  std::string_view rest = command;
  std::string word = TakeWord(rest);
  const auto isSetting = [](const std::string& text) {
    return text == "env" || text.ends_with("/env") || text.find('=') != std::string::npos;
  };
  while (isSetting(word)) word = TakeWord(rest);
  const std::string program = word.substr(word.rfind('/') + 1);
  return RunsOthers(program) ? std::string() : program;
}

}  // namespace

std::vector<std::string> LocaleVariants(std::string_view locale) {
  const auto at = std::min(locale.find('@'), locale.size());
  const std::string modifier(locale.substr(at));
  const std::string base(locale.substr(0, std::min(at, locale.find('.'))));
  if (base.empty() || base == "C" || base == "POSIX") return {};
  const std::string language = base.substr(0, base.find('_'));
  std::vector<std::string> variants;
  for (const auto& name : {base, language}) {
    if (!modifier.empty()) variants.push_back(name + modifier);
    variants.push_back(name);
  }
  return variants;
}

std::optional<DesktopEntry> ParseDesktopEntry(std::string_view text,
                                              const std::vector<std::string>& localeVariants) {
  const Keys keys = KeysOfMainGroup(text);
  DesktopEntry entry;
  entry.hidden = IsTrue(keys, "Hidden");
  if (entry.hidden) return entry;
  entry.name = LocalisedName(keys, localeVariants);
  if (TextOf(keys, "Type") != "Application" || entry.name.empty()) return {};
  entry.icon = TextOf(keys, "Icon");
  entry.executable = ProgramOf(keys);
  entry.startupClass = TextOf(keys, "StartupWMClass");
  entry.noDisplay = IsTrue(keys, "NoDisplay");
  entry.fileManager =
      HasItem(keys, "Categories", "FileManager") || HasItem(keys, "MimeType", "inode/directory");
  return entry;
}

namespace {

constexpr std::string_view kSuffix = ".desktop";
constexpr off_t kLargestEntry = off_t{512} * 1024;
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
