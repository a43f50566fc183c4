#include "platform/Diagnostics.h"

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <string_view>

namespace lurkwell {
namespace {

constexpr std::size_t kLongestLine = 4096;

[[gnu::format(printf, 2, 0)]] void WriteLine(std::string_view beginning, const char* format,
                                             std::va_list arguments) {
  std::array<char, kLongestLine> line;
  auto* end = std::ranges::copy(beginning, line.data()).out;
  const auto room = line.size() - beginning.size() - 1;
  const int length = std::vsnprintf(end, room, format, arguments);
  if (length > 0) end += std::min(static_cast<std::size_t>(length), room - 1);
  *end++ = '\n';
  std::fwrite(line.data(), 1, static_cast<std::size_t>(end - line.data()), stderr);
}

}  // namespace

void Diagnose(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  WriteLine("lurkwell: ", format, arguments);
  va_end(arguments);
}

void DiagnoseVerbatim(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  WriteLine({}, format, arguments);
  va_end(arguments);
}

}  // namespace lurkwell
