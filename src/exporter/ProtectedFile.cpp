#include "exporter/ProtectedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "platform/FileDescriptor.h"
#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

constexpr std::size_t kLargestFile = 1 << 20;
constexpr ::mode_t kRightsOfOthers = S_IRWXO | S_IWGRP;

FileError ErrorOf(const std::string& path, const std::string& words) {
  return {PrintableText(path) + ": " + words};
}

}  // namespace

std::variant<std::string, FileError> ReadWholeFile(const std::string& path, Secrecy secrecy) {
  // A pipe without a writer must not keep it waiting.
  const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!file.IsOpen() || ::fstat(file.Get(), &status) != 0)
    return ErrorOf(path, std::strerror(errno));
  if (!S_ISREG(status.st_mode)) return ErrorOf(path, "is not a file");
  if (secrecy == Secrecy::kSecret) {
    if (status.st_uid != 0 && status.st_uid != ::geteuid())
      return ErrorOf(path, "belongs to another user, who could change it");
    if ((status.st_mode & kRightsOfOthers) != 0)
      return ErrorOf(path, "is open to others (chmod o=,g-w makes it secret)");
  }
  std::string text;
  std::array<char, 4096> piece;
  while (true) {
    const auto bytes = ::read(file.Get(), piece.data(), piece.size());
    if (bytes < 0 && errno == EINTR) continue;
    if (bytes < 0) return ErrorOf(path, std::strerror(errno));
    if (bytes == 0) return text;
    text.append(piece.data(), static_cast<std::size_t>(bytes));
    if (text.size() > kLargestFile) return ErrorOf(path, "is larger than a mebibyte");
  }
}

}  // namespace lurkwell
