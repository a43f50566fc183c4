// Any bytes as the beats of a recording, a second call's behind a byte 30: what can be read can be
// written and read again, and is shown by the process table without a broken promise.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

#include "recording/BeatDecoder.h"
#include "recording/BeatEncoder.h"

namespace {

void Check(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lurkwell;
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  const auto end = std::min(all.find('\x1e', size / 2), size);
  BeatDecoder decoder(RecordedLayout::Own());
  BeatEncoder encoder;
  BeatDecoder again(RecordedLayout::Own());
  for (const auto part : {all.substr(0, end), all.substr(std::min(end + 1, size))}) {
    if (!decoder.Begin(part)) break;
    while (decoder.Next()) {
      const auto beat = decoder.TakeBeat();
      const auto bytes = encoder.Encode(std::span(&beat, 1));
      Check(again.Begin(bytes) && again.Next());
      const auto living = decoder.Living();
      Check(again.Living().size() == living.size());
    }
    if (decoder.HasFailed()) break;
  }
  return 0;
}
