#pragma once

#include <algorithm>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

/// The rules of the helper's requests, read a second time and in another way than the helper does:
/// a request is taken apart into words, and each number is the text that it would be printed as.
namespace lurkwell::helper::testing {

struct Expectation {
  enum Kind { kRefused, kUser, kEffect, kFigures } kind = kRefused;
  /// For kEffect, as RecordingSystem writes it down.
  std::string effect = {};
};

inline std::optional<long> PrintedNumber(const std::string& text, long lowest, long highest) {
  if (text.empty() || text.size() > 8) return std::nullopt;
  const long value = std::strtol(text.c_str(), nullptr, 10);
  if (std::to_string(value) != text || value < lowest || value > highest) return std::nullopt;
  return value;
}

/// The pieces of `text` between the separators, empty ones too.
inline std::vector<std::string> Pieces(const std::string& text, char separator) {
  std::vector<std::string> pieces(1);
  for (const char character : text)
    if (character == separator)
      pieces.emplace_back();
    else
      pieces.back() += character;
  return pieces;
}

inline Expectation ReadFigures(const std::vector<std::string>& lines) {
  static const std::vector<std::string> kWords = [] {
    std::vector<std::string> words;
    for (int set = 0; set < 8; ++set)
      words.push_back(std::string("pid_internal") + (set & 1 ? "_thread_time" : "") +
                      (set & 2 ? "_basic_info" : "") + (set & 4 ? "_events_info" : ""));
    return words;
  }();
  if (lines.size() < 3 || !lines.back().empty()) return {};
  for (std::size_t i = 1; i + 1 < lines.size(); ++i) {
    const std::vector<std::string> words = Pieces(lines[i], ' ');
    if (words.size() != 2 || std::find(kWords.begin(), kWords.end(), words[0]) == kWords.end() ||
        !PrintedNumber(words[1], 0, 4194304))
      return {};
  }
  return {Expectation::kFigures};
}

/// `own` and `peer` are the helper and the application at the other end.
inline Expectation ReadRequest(const std::string& request, long own, long peer) {
  if (request == "geteuid") return {Expectation::kUser};
  const std::vector<std::string> lines = Pieces(request, '\n');
  if (lines[0] == "Lkw Info Extraction:") return ReadFigures(lines);
  if (lines[0] != "Lkw Action Request:" || lines.size() != 2) return {};
  const std::vector<std::string> words = Pieces(lines[1], ' ');
  if (words.size() < 2) return {};
  const std::optional<long> pid = PrintedNumber(words[1], 2, 4194304);
  if (!pid || *pid == own) return {};
  const std::string who = std::to_string(*pid);
  if (words[0] == "renice") {
    if (words.size() != 3 || !PrintedNumber(words[2], -20, 20)) return {};
    return {Expectation::kEffect, "nice " + who + ' ' + words[2]};
  }
  const std::vector<std::pair<std::string, int>> signals = {
      {"kill_normal", 15}, {"kill_harsh", 9}, {"kill_halt", 19}, {"kill_cont", 18}};
  for (const auto& [verb, number] : signals)
    if (words.size() == 2 && words[0] == verb && !(verb == "kill_halt" && *pid == peer))
      return {Expectation::kEffect, "signal " + who + ' ' + std::to_string(number)};
  return {};
}

}  // namespace lurkwell::helper::testing
