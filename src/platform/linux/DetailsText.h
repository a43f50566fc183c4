#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ProcessDetails.h"

namespace lurkwell {

/// What the kernel writes about single processes, taken apart. Pure; any thread; whatever the bytes
/// are, nothing beyond the text is looked at.

/// The first line of a mapping, without its sizes; nothing for any other line.
std::optional<MappingDetails> ParseMapping(std::string_view line);

/// Adds a line about its sizes ("Rss:   12 kB") to the mapping before it.
void AddMappingSize(std::string_view line, MappingDetails& mapping);

/// The variables in the memory of a process, with a NUL behind each; at most `most`. Their number.
std::int64_t ParseEnvironment(std::string_view text, std::size_t most,
                              std::vector<VariableDetails>& variables);

/// A line of the limits; nothing for the title.
std::optional<LimitDetails> ParseLimit(std::string_view line);

/// Position and flags from what the kernel says of a descriptor.
void TakeDescriptorInfo(std::string_view text, DescriptorDetails& descriptor);

/// Kind and target from where the link of a descriptor points. What has no name has no target.
void TakeDescriptorLink(std::string_view link, DescriptorDetails& descriptor);

/// The number in "socket:[NUMBER]"; nothing when it is no socket.
std::optional<std::uint64_t> SocketOfLink(std::string_view link);

/// A socket in words.
struct SocketDetails {
  std::uint64_t inode = 0;
  std::string kind;
  std::string target;
};

/// The tables of sockets that the kernel writes.
enum class SocketFile : std::uint8_t {
  kTcp,
  kTcp6,
  kUdp,
  kUdp6,
  kRaw,
  kRaw6,
  kUnix,
  kNetlink,
  kPacket
};

/// The socket of a line; nothing for the title.
std::optional<SocketDetails> ParseSocket(SocketFile file, std::string_view line);

/// The number by which sockets are told apart in a line; nothing where there is none.
std::optional<std::uint64_t> InodeOfSocketLine(SocketFile file, std::string_view line);

}  // namespace lurkwell
