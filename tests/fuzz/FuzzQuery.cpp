// The filter's field, --filter and rules of alerts: any text is one, or a mistake inside the text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "alerts/AlertRule.h"
#include "query/Query.h"
#include "query/TextPattern.h"

namespace {

/// Says of every property the same text, which is the query.
class Echo final : public lurkwell::QuerySubject {
 public:
  explicit Echo(std::string_view text) : mText(text) {}
  lurkwell::TypedValue ValueOf(const std::string&) const override { return std::string(mText); }
  bool ShowsTextLike(const lurkwell::TextPattern& pattern) const override {
    return pattern.Matches(mText);
  }

 private:
  std::string_view mText;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lurkwell;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto query = Query::Read(text);
  if (const auto* error = std::get_if<QueryError>(&query)) {
    if (error->position + error->length > size || error->Text().empty()) std::abort();
  } else if (std::get<Query>(query).IsEmpty() && !std::get<Query>(query).Properties().empty()) {
    std::abort();
  } else {
    std::get<Query>(query).IsFulfilledBy(Echo(text));
    std::get<Query>(query).VerdictOn(Echo(text));
  }
  const auto rule = AlertRule::Read(text);
  if (const auto* error = std::get_if<AlertRuleError>(&rule)) {
    if (error->position + error->length > size) std::abort();
  } else if (std::get<AlertRule>(rule).hold.count() < 0) {
    std::abort();
  }
  return 0;
}
