#include "main_window/ProcessAddress.h"

#include <charconv>
#include <system_error>

namespace lurkwell {

std::optional<std::int32_t> PidOfAddress(std::string_view address) {
  constexpr std::string_view kBeginning = "lurkwell://pid/";
  if (!address.starts_with(kBeginning)) return {};
  address.remove_prefix(kBeginning.size());
  // Browsers put one behind an address.
  if (address.ends_with('/')) address.remove_suffix(1);
  const char* end = address.data() + address.size();
  std::int32_t pid = 0;
  const auto [at, error] = std::from_chars(address.data(), end, pid);
  if (error != std::errc{} || at != end || pid < 1) return {};
  return pid;
}

}  // namespace lurkwell
