#include "main_window/InternalRepresentations.h"

#include <cstdio>

namespace lurkwell {

const RowValue& InternalRepresentations::Find(std::int32_t pid, KeyId key) const {
  static const RowValue kNothing;
  const auto found = mByPid.find(pid);
  return found == mByPid.end() ? kNothing : found->second.Get(key);
}

std::string internalRepresentationKey(std::int32_t pid, std::string_view key) {
  char digits[16];
  std::snprintf(digits, sizeof digits, "%06d_", pid);
  return digits + std::string(key);
}

double NumberOf(const RowValue& value) {
  if (const auto* integer = std::get_if<std::int64_t>(&value)) return static_cast<double>(*integer);
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* time = std::get_if<TimeValue>(&value))
    return static_cast<double>(time->seconds) + time->microseconds / 1e6;
  return 0.0;
}

std::int64_t IntegerOf(const RowValue& value) {
  if (const auto* integer = std::get_if<std::int64_t>(&value)) return *integer;
  return 0;
}

}  // namespace lurkwell
