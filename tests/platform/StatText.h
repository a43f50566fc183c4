#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lurkwell {

/// What a test says of a process, and its stat file as the kernel would write it.
struct StatText {
  std::int64_t pid = 1;
  std::string_view name = "init";
  char state = 'S';
  std::int64_t parentPid = 0;
  std::int64_t priority = 20;
  std::int64_t nice = 0;
  std::uint64_t startStamp = 1;
  std::int64_t threads = 1;

  std::string Text() const {
    std::string text = std::to_string(pid) + " (" + std::string(name) + ") " + state + ' ' +
                       std::to_string(parentPid);
    for (int field = 5; field <= 17; ++field) text += " -1";
    text += ' ' + std::to_string(priority) + ' ' + std::to_string(nice) + ' ' +
            std::to_string(threads) + " 0 " + std::to_string(startStamp);
    for (int field = 23; field <= 52; ++field) text += " 18446744073709551615";
    return text + '\n';
  }
};

}  // namespace lurkwell
