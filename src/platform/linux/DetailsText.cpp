#include "platform/linux/DetailsText.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "platform/ProcStat.h"
#include "platform/linux/DetailsFiles.h"

namespace lurkwell {
namespace {

std::optional<std::uint64_t> Unsigned(std::string_view text, int base) {
  std::uint64_t number = 0;
  const char* const last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, number, base);
  if (text.empty() || error != std::errc() || end != last) return std::nullopt;
  return number;
}

std::string_view WithoutBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return text.substr(0, text.find_last_not_of(" \t\n") + 1);
}

std::string FlagsInWords(std::uint64_t flags) {
  static constexpr std::pair<int, const char*> kWords[] = {
      {O_APPEND, "append"},      {O_NONBLOCK, "nonblocking"}, {O_DIRECT, "direct"},
      {O_DSYNC, "synchronised"}, {O_ASYNC, "signals"},        {O_CLOEXEC, "cloexec"}};
  const auto has = [flags](int flag) { return (flags & static_cast<unsigned>(flag)) != 0; };
  const auto access = flags & O_ACCMODE;
  std::string text = has(O_PATH)          ? "path only"
                     : access == O_RDONLY ? "read"
                     : access == O_WRONLY ? "write"
                                          : "read, write";
  for (const auto& [flag, word] : kWords)
    if (has(flag)) text.append(", ").append(word);
  return text;
}

}  // namespace

std::optional<MappingDetails> ParseMapping(std::string_view line) {
  const auto range = TakeWord(line);
  const auto dash = range.find('-');
  if (dash == std::string_view::npos) return std::nullopt;
  const auto begin = Unsigned(range.substr(0, dash), 16);
  const auto end = Unsigned(range.substr(dash + 1), 16);
  if (!begin || !end || *end < *begin) return std::nullopt;
  MappingDetails mapping;
  mapping.begin = *begin;
  mapping.end = *end;
  mapping.permissions = TakeWord(line);
  mapping.offset = static_cast<std::int64_t>(Unsigned(TakeWord(line), 16).value_or(0));
  TakeWord(line);
  TakeWord(line);
  mapping.file = line;
  return mapping;
}

void AddMappingSize(std::string_view line, MappingDetails& mapping) {
  const auto name = TakeWord(line);
  auto* size = name == "Rss:"    ? &mapping.resident
               : name == "Pss:"  ? &mapping.proportional
               : name == "Swap:" ? &mapping.swapped
                                 : nullptr;
  constexpr std::uint64_t kMost = std::uint64_t{1} << 52;
  if (size != nullptr)
    *size =
        static_cast<std::int64_t>(std::min(Unsigned(TakeWord(line), 10).value_or(0), kMost)) * 1024;
}

std::int64_t ParseEnvironment(std::string_view text, std::size_t most,
                              std::vector<VariableDetails>& variables) {
  std::int64_t count = 0;
  while (!text.empty()) {
    const auto line = text.substr(0, text.find('\0'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    // A program may have overwritten what lies there.
    if (line.empty()) continue;
    if (static_cast<std::size_t>(count++) >= most) continue;
    const auto sign = line.find('=');
    VariableDetails variable;
    if (sign != std::string_view::npos) variable.name = line.substr(0, sign);
    variable.value = sign != std::string_view::npos ? line.substr(sign + 1) : line;
    variables.push_back(std::move(variable));
  }
  return count;
}

std::optional<LimitDetails> ParseLimit(std::string_view line) {
  // The kernel writes columns of 25, 20 and 20 characters and a blank behind each.
  constexpr std::size_t kNameWidth = 26;
  if (!line.starts_with("Max ") || line.size() < kNameWidth) return std::nullopt;
  LimitDetails limit;
  limit.name = WithoutBlanks(line.substr(0, kNameWidth));
  line.remove_prefix(kNameWidth);
  for (auto* bound : {&limit.soft, &limit.hard}) {
    const auto word = TakeWord(line);
    const auto number = Unsigned(word, 10);
    if (!number && word != "unlimited") return std::nullopt;
    constexpr std::uint64_t kMost = INT64_MAX;
    if (number) *bound = static_cast<std::int64_t>(std::min(*number, kMost));
  }
  limit.unit = WithoutBlanks(line);
  return limit;
}

void TakeDescriptorInfo(std::string_view text, DescriptorDetails& descriptor) {
  const NamedFields fields(text);
  const auto position = Unsigned(fields.Get("pos"), 10);
  const bool hasPosition = descriptor.kind == "file" || descriptor.kind == "memfd" ||
                           descriptor.kind == "device" || descriptor.kind == "directory";
  if (position && hasPosition) descriptor.position = static_cast<std::int64_t>(*position);
  const auto flags = Unsigned(fields.Get("flags"), 8);
  if (flags) descriptor.flags = FlagsInWords(*flags);
  if (flags && (*flags & O_DIRECTORY) != 0 && descriptor.kind == "file")
    descriptor.kind = "directory";
  if (descriptor.kind == "pidfd") descriptor.target = "process " + std::string(fields.Get("Pid"));
}

void TakeDescriptorLink(std::string_view link, DescriptorDetails& descriptor) {
  constexpr std::string_view kAnonymous = "anon_inode:";
  descriptor.kind = "file";
  descriptor.target = link;
  if (link.starts_with("/memfd:")) {
    descriptor.kind = "memfd";
    descriptor.target = link.substr(7);
  } else if (link.starts_with("/dev/") && !link.starts_with("/dev/shm/")) {
    descriptor.kind = "device";
  } else if (link.starts_with(kAnonymous)) {
    auto name = link.substr(kAnonymous.size());
    if (name.starts_with('[') && name.ends_with(']')) name = name.substr(1, name.size() - 2);
    descriptor.kind = name;
    descriptor.target.clear();
  } else if (const auto number = link.find(":[");
             number != std::string_view::npos && !link.starts_with('/')) {
    // "pipe:[4711]"
    descriptor.kind = link.substr(0, number);
  }
}

std::optional<std::uint64_t> SocketOfLink(std::string_view link) {
  constexpr std::string_view kBegin = "socket:[";
  if (!link.starts_with(kBegin) || !link.ends_with(']')) return std::nullopt;
  return Unsigned(link.substr(kBegin.size(), link.size() - kBegin.size() - 1), 10);
}

}  // namespace lurkwell
