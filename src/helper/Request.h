#pragma once

#include <cstdint>
#include <string_view>

namespace lurkwell::helper {

/// The groups of figures that a line can ask for; a set of bits.
enum Group : unsigned { kThreadTime = 1, kBasicInfo = 2, kEventsInfo = 4 };

/// One row of the permit table: an action that an application may ask for. What is not in the
/// table is refused.
struct Permit {
  /// The first word of the verb line, with the blank behind it.
  std::string_view verb;
  /// The signal to send; 0 for a change of the nice value.
  int signal;
  /// Whether the application at the other end is spared.
  bool sparesPeer;
};

struct ActionRequest {
  const Permit* permit = nullptr;
  std::int32_t pid = 0;
  std::int32_t nice = 0;
};

struct FiguresLine {
  std::int32_t pid = 0;
  unsigned groups = 0;
};

/// Reads the verb line of an action request, all of it. False, and `request` is of no use, when it
/// is not exactly one of the permitted forms with its numbers in range.
bool ParseAction(std::string_view line, ActionRequest& request);

/// Removes one line from the front of `text`. False when it is malformed or there is none.
bool TakeFiguresLine(std::string_view& text, FiguresLine& line);

/// Whether `text`, what follows the header, is at least one line and every line is well formed.
bool AreFiguresLines(std::string_view text);

}  // namespace lurkwell::helper
