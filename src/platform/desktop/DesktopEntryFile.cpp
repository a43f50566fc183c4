#include "platform/desktop/DesktopEntryFile.h"

#include <algorithm>
#include <array>
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

}  // namespace lurkwell
