// The kernel's tables of sockets, a line each.
#include <arpa/inet.h>
#include <netinet/in.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

#include "platform/linux/DetailsFiles.h"
#include "platform/linux/DetailsText.h"

namespace lurkwell {
namespace {

template <typename Number>
std::optional<Number> SocketNumber(std::string_view text, int base) {
  Number number = 0;
  const char* const last = text.data() + text.size();
  const auto [end, error] = std::from_chars(text.data(), last, number, base);
  if (text.empty() || error != std::errc() || end != last) return std::nullopt;
  return number;
}

/// Which word of a line, from 0, has the number; from the end for negative ones.
int PlaceOfInode(SocketFile file) {
  switch (file) {
    case SocketFile::kUnix:
      return 6;
    case SocketFile::kNetlink:
    case SocketFile::kPacket:
      return -1;
    default:
      return 9;
  }
}

std::string_view NthWord(std::string_view line, int place) {
  std::string_view word;
  for (; place >= 0; --place) word = TakeWord(line);
  return word;
}

/// "0100007F:1F90" as "127.0.0.1:8080"; empty for anything else. The address is words of 32 bits
/// in this machine's order.
std::string AddressInWords(std::string_view text) {
  const auto digits = text.substr(0, text.find(':'));
  const auto port =
      SocketNumber<std::uint16_t>(text.substr(std::min(digits.size() + 1, text.size())), 16);
  if ((digits.size() != 8 && digits.size() != 32) || !port) return {};
  std::array<std::uint32_t, 4> words{};
  for (std::size_t i = 0; i < digits.size() / 8; ++i) {
    const auto word = SocketNumber<std::uint32_t>(digits.substr(8 * i, 8), 16);
    if (!word) return {};
    words[i] = *word;
  }
  std::array<char, INET6_ADDRSTRLEN> address{};
  const bool isLong = digits.size() == 32;
  if (::inet_ntop(isLong ? AF_INET6 : AF_INET, words.data(), address.data(), address.size()) ==
      nullptr)
    return {};
  const std::string name(address.data());
  return (isLong ? "[" + name + "]" : name) + ":" + std::to_string(*port);
}

const char* StateOfConnection(unsigned state) {
  static constexpr const char* kWords[] = {
      "established", "SYN sent",   "SYN received", "FIN wait 1", "FIN wait 2", "time wait",
      "closed",      "close wait", "last ACK",     "listening",  "closing",    "SYN received"};
  return state >= 1 && state <= std::size(kWords) ? kWords[state - 1] : "";
}

bool IsTcp(SocketFile file) {
  return file == SocketFile::kTcp || file == SocketFile::kTcp6;
}

const char* KindOf(SocketFile file) {
  switch (file) {
    case SocketFile::kTcp:
    case SocketFile::kTcp6:
      return "TCP";
    case SocketFile::kUdp:
    case SocketFile::kUdp6:
      return "UDP";
    case SocketFile::kRaw:
    case SocketFile::kRaw6:
      return "raw socket";
    case SocketFile::kUnix:
      return "Unix";
    case SocketFile::kNetlink:
      return "Netlink";
    case SocketFile::kPacket:
      return "packet";
  }
  return "socket";
}

std::string InternetTarget(SocketFile file, std::string_view line) {
  constexpr unsigned kListens = 10;
  const auto local = AddressInWords(NthWord(line, 1));
  const auto remote = AddressInWords(NthWord(line, 2));
  const auto state = SocketNumber<unsigned>(NthWord(line, 3), 16).value_or(0);
  const bool isConnected = !remote.empty() && !remote.ends_with(":0") && state != kListens;
  std::string text = local;
  if (isConnected) text += " → " + remote;
  const std::string word = StateOfConnection(state);
  if (IsTcp(file) && !word.empty()) text += " (" + word + ")";
  return text;
}

std::string UnixTarget(std::string_view line) {
  constexpr unsigned kAccepts = 0x10000;
  const auto flags = SocketNumber<unsigned>(NthWord(line, 3), 16).value_or(0);
  const auto type = SocketNumber<unsigned>(NthWord(line, 4), 16).value_or(0);
  for (int place = 0; place <= PlaceOfInode(SocketFile::kUnix); ++place) TakeWord(line);
  std::string text(line);
  if (!text.empty()) text += ' ';
  text += type == 1 ? "(stream" : type == 2 ? "(datagram" : type == 5 ? "(packets" : "(socket";
  return text + ((flags & kAccepts) != 0 ? ", listening)" : ")");
}

std::string NetlinkTarget(std::string_view line) {
  static constexpr std::pair<unsigned, const char*> kProtocols[] = {
      {0, "routing"},        {4, "socket diagnostics"}, {6, "transformations"}, {9, "audit"},
      {12, "packet filter"}, {15, "device events"},     {16, "generic"}};
  const auto number = SocketNumber<unsigned>(NthWord(line, 1), 10);
  for (const auto& [protocol, word] : kProtocols)
    if (protocol == number) return word;
  return number ? "protocol " + std::to_string(*number) : std::string();
}

}  // namespace

std::optional<std::uint64_t> InodeOfSocketLine(SocketFile file, std::string_view line) {
  const int place = PlaceOfInode(file);
  if (place >= 0) return SocketNumber<std::uint64_t>(NthWord(line, place), 10);
  const auto end = line.find_last_not_of(' ');
  line = line.substr(0, end + 1);
  return SocketNumber<std::uint64_t>(line.substr(line.find_last_of(' ') + 1), 10);
}

std::optional<SocketDetails> ParseSocket(SocketFile file, std::string_view line) {
  const auto inode = InodeOfSocketLine(file, line);
  if (!inode) return std::nullopt;
  SocketDetails socket{*inode, KindOf(file), {}};
  if (file == SocketFile::kUnix) {
    socket.target = UnixTarget(line);
  } else if (file == SocketFile::kNetlink) {
    socket.target = NetlinkTarget(line);
  } else if (file != SocketFile::kPacket) {
    socket.target = InternetTarget(file, line);
  }
  return socket;
}

}  // namespace lurkwell
