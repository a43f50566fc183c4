#pragma once

#include <string>
#include <variant>

namespace lurkwell {

/// What is wrong, in a sentence that begins with the file's name.
struct FileError {
  std::string words;
};

enum class Secrecy {
  kOpen,
  /// It belongs to root or to this program's user; others than its owner and its group have no
  /// rights at it, and the group may not write.
  kSecret,
};

/// A file as a whole, of a mebibyte at most.
std::variant<std::string, FileError> ReadWholeFile(const std::string& path, Secrecy secrecy);

}  // namespace lurkwell
