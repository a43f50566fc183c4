// Any bytes as what the kernel says of descriptors of graphics devices, separated by a byte 30, at
// two looks: shares stay between nothing and all, names come from the text.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/linux/GraphicsUsage.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lurkwell;
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  std::vector<GraphicsClient> looks[2];
  std::size_t place = 0;
  for (auto rest = all; !rest.empty() && place < 8; ++place) {
    const auto text = rest.substr(0, rest.find('\x1e'));
    rest.remove_prefix(std::min(text.size() + 1, rest.size()));
    if (auto client = ParseGraphicsClient(text)) looks[place % 2].push_back(*client);
  }
  GraphicsAccount account;
  account.Update(looks[0], 1'000'000'000);
  const auto use = account.Update(looks[1], 2'000'000'000);
  const auto check = [](bool holds) {
    if (!holds) std::abort();
  };
  if (use.share) check(*use.share >= 0 && *use.share <= 100'000);
  check(all.find(use.engine) != all.npos);
  for (const auto& look : looks)
    for (const auto& client : look) check(client.engines.size() <= GraphicsClient::kMostEngines);
  return 0;
}
