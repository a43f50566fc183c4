#include "main_window/RowDictionary.h"

namespace lurkwell {

double NumberOf(const RowValue& value) {
  if (const auto* integer = std::get_if<std::int64_t>(&value)) return static_cast<double>(*integer);
  if (const auto* real = std::get_if<double>(&value)) return *real;
  if (const auto* time = std::get_if<TimeValue>(&value)) return InSeconds(*time);
  return 0.0;
}

std::int64_t IntegerOf(const RowValue& value) {
  if (const auto* integer = std::get_if<std::int64_t>(&value)) return *integer;
  return 0;
}

}  // namespace lurkwell
