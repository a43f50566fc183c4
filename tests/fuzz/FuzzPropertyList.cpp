// Any bytes as a preference file: refused with a reason, or taken in and written back the same.
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/linux/PropertyListDocument.h"

namespace {

void Expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lurkwell;
  const char* why = nullptr;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  auto document = PropertyListDocument::Parse(text, why);
  Expect(document.has_value() == (why == nullptr));
  if (!document) return 0;
  for (const auto& [key, value] : document->Values()) {
    document->Value(key);
    document->Set(key, value);
  }
  document->Set("NEW", PreferenceArray{{{"A", 1.0}}, {}});
  const std::string written = document->Text();
  const auto again = PropertyListDocument::Parse(written, why);
  Expect(again.has_value());
  Expect(again->Value("NEW") == document->Value("NEW"));
  Expect(again->Values().size() == document->Values().size());
  return 0;
}
