#include "platform/linux/DetailsFiles.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <vector>

#include "platform/FileDescriptor.h"

namespace lurkwell {
namespace {

constexpr std::size_t kLineRoom = 65'536;

FileDescriptor OpenForDetails(int folder, const char* name) {
  return FileDescriptor(::openat(folder, name, O_RDONLY | O_CLOEXEC));
}

/// Negative on failure.
ssize_t ReadPiece(int file, char* place, std::size_t room) {
  ssize_t bytes = 0;
  do {
    bytes = ::read(file, place, room);
  } while (bytes < 0 && errno == EINTR);
  return bytes;
}

}  // namespace

std::optional<std::string> ReadWhole(int folder, const char* name, std::size_t most) {
  const auto file = OpenForDetails(folder, name);
  if (!file.IsOpen()) return std::nullopt;
  std::string text;
  std::vector<char> piece(kLineRoom);
  while (text.size() < most) {
    const auto bytes =
        ReadPiece(file.Get(), piece.data(), std::min(piece.size(), most - text.size()));
    if (bytes < 0) return std::nullopt;
    if (bytes == 0) break;
    text.append(piece.data(), static_cast<std::size_t>(bytes));
  }
  return text;
}

bool ReadLines(int folder, const char* name, const std::function<bool(std::string_view)>& take) {
  const auto file = OpenForDetails(folder, name);
  if (!file.IsOpen()) return false;
  std::vector<char> room(2 * kLineRoom);
  std::size_t kept = 0;
  bool isRestOfLong = false;
  for (;;) {
    const auto bytes = ReadPiece(file.Get(), room.data() + kept, room.size() - kept);
    if (bytes < 0) return false;
    std::string_view text(room.data(), kept + static_cast<std::size_t>(bytes));
    for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
      const bool goesOn = isRestOfLong || take(text.substr(0, std::min(end, kLineRoom)));
      isRestOfLong = false;
      if (!goesOn) return true;
      text.remove_prefix(end + 1);
    }
    if (bytes == 0) {
      if (!text.empty() && !isRestOfLong) take(text.substr(0, kLineRoom));
      return true;
    }
    if (text.size() > kLineRoom) {
      if (!isRestOfLong && !take(text.substr(0, kLineRoom))) return true;
      isRestOfLong = true;
      text = {};
    }
    std::ranges::copy(text, room.begin());
    kept = text.size();
  }
}

std::string_view TakeWord(std::string_view& line) {
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  const auto word = line.substr(0, line.find_first_of(" \t"));
  line.remove_prefix(word.size());
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  return word;
}

}  // namespace lurkwell
