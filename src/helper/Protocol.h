#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What the application and its helper say to each other, and the bounds both keep.
namespace lurkwell::helper {

/// The question for the effective user id; the whole request.
inline constexpr std::string_view kUserQuestion = "geteuid";
/// First line of a request to act on a process; one verb line without a newline follows.
inline constexpr std::string_view kActionHeader = "Lkw Action Request:\n";
/// First line of a request for figures; one line a process follows.
inline constexpr std::string_view kFiguresHeader = "Lkw Info Extraction:\n";

/// One read takes a request of less than this many bytes; what fills it is refused.
inline constexpr std::size_t kRequestCapacity = 8192;
/// The longest answer, in bytes: what the application takes with one read.
inline constexpr std::size_t kAnswerCapacity = 8191;
/// Both pipes hold at least this many bytes, or an answer might come in pieces.
inline constexpr int kLowestPipeCapacity = 8192;
/// Longest path of a pipe, in bytes without the terminating NUL.
inline constexpr std::size_t kLongestPath = 1023;
/// Seconds until the helper gives up when the other ends are not opened.
inline constexpr unsigned kOpeningLimit = 10;

/// The highest pid that any Linux kernel hands out.
inline constexpr std::int32_t kHighestPid = 4194304;
inline constexpr std::int32_t kLowestNice = -20;
inline constexpr std::int32_t kHighestNice = 20;

/// How a process list shows the running helper; the first 16 characters are what others look for.
inline constexpr std::string_view kCommandName = "lkw_helper_daemon";

}  // namespace lurkwell::helper
