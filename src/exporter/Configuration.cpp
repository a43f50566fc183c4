#include <ini.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "exporter/ExportOptions.h"
#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

// The library cuts longer lines, with the newline and the end.
constexpr std::size_t kLongestLine = INI_MAX_LINE - 2;

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == ',';
}

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  while (!text.empty()) {
    const auto begin = std::ranges::find_if_not(text, IsBlank);
    const auto end = std::find_if(begin, text.end(), IsBlank);
    if (begin != end) words.emplace_back(begin, end);
    text = {end, text.end()};
  }
  return words;
}

/// A file's name without a slash is one that the service manager hands over, or lies where the
/// program was started.
std::string FileOf(std::string_view value) {
  const char* const handedOver = std::getenv("CREDENTIALS_DIRECTORY");
  if (handedOver == nullptr || value.find('/') != std::string_view::npos) return std::string(value);
  return std::string(handedOver).append("/").append(value);
}

class ConfigurationReader {
 public:
  explicit ConfigurationReader(ExportOptions& options) : mOptions(options) {}

  /// What is wrong with one setting; empty for nothing.
  std::string Take(std::string_view section, std::string_view name, std::string_view value) {
    if (section == "server") return TakeServer(name, value);
    if (section == "groups") return TakeGroups(name, value);
    if (section == "figures") return TakeFigures(name, value);
    if (section.empty()) return "a section such as [server] has to come first";
    return "there is no section [" + PrintableText(section) +
           "]; there are [server], [groups] and [figures]";
  }

 private:
  static std::string Unknown(std::string_view name, std::string_view known) {
    return "there is no setting '" + PrintableText(name) + "' here; there are " +
           std::string(known);
  }

  static std::string TakeBool(std::string_view value, bool& place) {
    if (value != "yes" && value != "no") return "is 'yes' or 'no'";
    place = value == "yes";
    return {};
  }

  std::string TakeServer(std::string_view name, std::string_view value) {
    if (name == "open") return TakeBool(value, mOptions.isOpen);
    if (value.empty()) return "'" + PrintableText(name) + "' needs a value";
    if (name == "address") {
      mOptions.address = value;
    } else if (name == "certificate") {
      mOptions.certificate = FileOf(value);
    } else if (name == "key") {
      mOptions.key = FileOf(value);
    } else if (name == "passwords") {
      mOptions.passwords = FileOf(value);
    } else {
      return Unknown(name, "address, certificate, key, passwords and open");
    }
    return {};
  }

  std::string TakeGroups(std::string_view name, std::string_view value) {
    if (name == "kinds") return TakeKinds(value);
    if (name == "limit") return TakeLimit(value);
    const auto kind = std::ranges::find(kGroupKindNames, name);
    if (kind == kGroupKindNames.end())
      return Unknown(name, "kinds, limit, program, unit, container and user");
    auto& patterns =
        mOptions.rules.kinds[static_cast<std::size_t>(kind - kGroupKindNames.begin())].patterns;
    std::ranges::move(Words(value), std::back_inserter(patterns));
    return {};
  }

  std::string TakeKinds(std::string_view value) {
    const auto words = Words(value);
    for (const auto& word : words)
      if (std::ranges::find(kGroupKindNames, word) == kGroupKindNames.end())
        return "there is no kind of group '" + PrintableText(word) +
               "'; there are program, unit, container and user";
    for (std::size_t i = 0; i < kGroupKinds; ++i)
      mOptions.rules.kinds[i].isWanted =
          std::ranges::find(words, kGroupKindNames[i]) != words.end();
    return {};
  }

  std::string TakeLimit(std::string_view value) {
    std::size_t limit = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), limit);
    if (error != std::errc() || end != value.data() + value.size() || limit < 1 ||
        limit > GroupRules::kMostGroups)
      return "'limit' needs a number from 1 to " + std::to_string(GroupRules::kMostGroups);
    mOptions.rules.limit = limit;
    return {};
  }

  std::string TakeFigures(std::string_view name, std::string_view value) {
    auto& rules = mOptions.rules;
    if (name == "open_files") return TakeBool(value, rules.countsOpenFiles);
    if (name == "proportional_memory") return TakeBool(value, rules.readsProportionalMemory);
    if (name != "network") return Unknown(name, "open_files, proportional_memory and network");
    using enum GroupRules::Network;
    constexpr std::pair<std::string_view, GroupRules::Network> kWords[] = {
        {"no", kNone}, {"units", kUnits}, {"processes", kProcesses}};
    for (const auto& [word, network] : kWords)
      if (value == word) return rules.network = network, std::string();
    return "'network' is 'no', 'units' or 'processes'";
  }

  ExportOptions& mOptions;
};

struct Reading {
  ConfigurationReader reader;
  std::string_view text;
  int line = 0;
  /// The first complaint, and where.
  std::string complaint;
  int complaintLine = 0;
};

extern "C" {
/// As fgets does, from the text.
char* NextLine(char* buffer, int size, void* stream) {
  auto& reading = *static_cast<Reading*>(stream);
  if (reading.text.empty()) return nullptr;
  const auto length = std::min({reading.text.find('\n'), reading.text.size() - 1,
                                static_cast<std::size_t>(size) - 2}) +
                      1;
  reading.text.copy(buffer, length);
  buffer[length] = '\0';
  reading.text.remove_prefix(length);
  ++reading.line;
  return buffer;
}

/// 0 has the library remember the line.
int TakeSetting(void* user, const char* section, const char* name, const char* value) {
  auto& reading = *static_cast<Reading*>(user);
  auto complaint = reading.reader.Take(section, name, value);
  if (complaint.empty()) return 1;
  if (reading.complaintLine == 0) {
    reading.complaint = std::move(complaint);
    reading.complaintLine = reading.line;
  }
  return 0;
}
}

/// The number of the first line that the library would not read as it is; 0 for none.
int BadLine(const std::string& text) {
  int number = 1;
  std::size_t length = 0;
  for (const char c : text) {
    if (c == '\0' || length > kLongestLine) return number;
    length = c == '\n' ? 0 : length + 1;
    number += c == '\n';
  }
  return length > kLongestLine ? number : 0;
}

OptionsError At(const std::string& name, int line, const std::string& words) {
  return {name + ":" + std::to_string(line) + ": " + words};
}

}  // namespace

std::optional<OptionsError> AddConfiguration(const std::string& text, const std::string& name,
                                             ExportOptions& options) {
  if (const int line = BadLine(text); line != 0)
    return At(name, line,
              "the line has more than " + std::to_string(kLongestLine) +
                  " characters, or a zero byte (lists may be set several times)");
  Reading reading{ConfigurationReader(options), text, 0, {}, 0};
  const int line = ::ini_parse_stream(&NextLine, &reading, &TakeSetting, &reading);
  if (line == 0) return std::nullopt;
  if (line < 0) return OptionsError{name + ": cannot be read"};
  return At(
      name, line,
      line == reading.complaintLine ? reading.complaint : "is neither NAME = VALUE nor [SECTION]");
}

}  // namespace lurkwell
