#include "consolidator/MetaProcessInformation.h"

#include <tuple>

#include "platform/Assertion.h"

namespace lurkwell {

ClassicRecord::ClassicRecord(const std::byte* bytes) {
  std::memcpy(mBytes.data(), bytes, kSize);
  auto length = std::to_integer<std::size_t>(mBytes[kNameOffset]);
  // The terminator of a full name takes the place of its last character.
  if (length > kNameFieldSize - 2) length = kNameFieldSize - 2;
  mBytes[kNameOffset] = static_cast<std::byte>(length);
  mBytes[kNameOffset + 1 + length] = std::byte{0};
}

std::string_view ClassicRecord::Name() const {
  return {reinterpret_cast<const char*>(mBytes.data()) + kNameOffset + 1,
          std::to_integer<std::size_t>(mBytes[kNameOffset])};
}

bool ClassicRecord::IsLike(const ClassicRecord& other) const {
  const auto traits = [](const ClassicRecord& record) {
    return std::tuple(record.Type(), record.Signature(), record.Mode(), record.Location(),
                      record.Size(), record.Name());
  };
  return traits(*this) == traits(other);
}

std::uint64_t MetaProcessInformation::NextChangeStamp() {
  static std::uint64_t stamp = 0;
  return ++stamp;
}

MetaProcessInformation::~MetaProcessInformation() {
  Require(icon == nullptr, kUnit, "!\"we don't (yet) delete icon information when we otter!\"");
}

}  // namespace lurkwell
