// Any bytes, after one that says what they are, as what the kernel writes about single processes:
// nothing beyond the text is looked at, and what comes out is part of what went in.
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "platform/linux/ControlGroupLimits.h"
#include "platform/linux/DetailsText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lurkwell;
  if (size == 0) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  const auto check = [](bool holds) {
    if (!holds) std::abort();
  };
  switch (data[0] % 6) {
    case 0: {
      auto mapping = ParseMapping(text);
      if (!mapping) mapping.emplace();
      check(mapping->begin <= mapping->end && text.ends_with(mapping->file));
      AddMappingSize(text, *mapping);
      check(mapping->resident >= 0 && mapping->proportional >= 0 && mapping->swapped >= 0);
      break;
    }
    case 1: {
      std::vector<VariableDetails> variables;
      const auto count = ParseEnvironment(text, 3, variables);
      check(variables.size() <= 3 && count >= static_cast<std::int64_t>(variables.size()));
      for (const auto& variable : variables)
        check(text.find(variable.name) != text.npos && text.find(variable.value) != text.npos);
      break;
    }
    case 2: {
      const auto limit = ParseLimit(text);
      if (limit) check(limit->soft.value_or(0) >= 0 && limit->hard.value_or(0) >= 0);
      break;
    }
    case 3: {
      DescriptorDetails descriptor;
      TakeDescriptorLink(text, descriptor);
      check(text.find(descriptor.target) != text.npos);
      TakeDescriptorInfo(text, descriptor);
      break;
    }
    case 4:
      for (int file = 0; file <= static_cast<int>(SocketFile::kPacket); ++file) {
        const auto kind = static_cast<SocketFile>(file);
        const auto socket = ParseSocket(kind, text);
        check(!socket || socket->inode == InodeOfSocketLine(kind, text));
      }
      break;
    default:
      check(ShareOfQuota(text).value_or(0) >= 0);
  }
  return 0;
}
