#include "query/TextPattern.h"

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <cstdint>
#include <utility>

namespace lurkwell {
namespace {

// Some milliseconds at most, whatever is searched for.
constexpr std::uint32_t kMatchLimit = 50'000;
constexpr std::uint32_t kHeapLimitInKiB = 256;

struct ReleaseLibrarys {
  void operator()(pcre2_code* code) const { pcre2_code_free(code); }
  void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
  void operator()(pcre2_match_context* context) const { pcre2_match_context_free(context); }
};
template <typename T>
using Librarys = std::unique_ptr<T, ReleaseLibrarys>;

}  // namespace

struct TextPattern::Compiled {
  Librarys<pcre2_code> code;
  Librarys<pcre2_match_data> data;
  Librarys<pcre2_match_context> context;
};

void TextPattern::Release::operator()(Compiled* compiled) const {
  delete compiled;
}

TextPattern::TextPattern(Form form, std::string_view text,
                         std::unique_ptr<Compiled, Release> compiled)
    : mForm(form), mText(text), mCompiled(std::move(compiled)) {}

std::optional<TextPattern> TextPattern::Compile(Form form, std::string_view text, unsigned options,
                                                std::string* complaint) {
  int error = 0;
  std::size_t place = 0;
  Librarys<pcre2_code> code(pcre2_compile(
      reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(),
      options | PCRE2_UTF | PCRE2_CASELESS | PCRE2_MATCH_INVALID_UTF, &error, &place, nullptr));
  if (code == nullptr) {
    char words[200] = "";
    pcre2_get_error_message(error, reinterpret_cast<PCRE2_UCHAR*>(words), sizeof words);
    if (complaint != nullptr) *complaint = words;
    return std::nullopt;
  }
  // Where it is not to be had, the search is slower and finds the same.
  pcre2_jit_compile(code.get(), PCRE2_JIT_COMPLETE);
  Librarys<pcre2_match_data> data(pcre2_match_data_create(1, nullptr));
  Librarys<pcre2_match_context> context(pcre2_match_context_create(nullptr));
  if (data == nullptr || context == nullptr) throw std::bad_alloc();
  pcre2_set_match_limit(context.get(), kMatchLimit);
  pcre2_set_heap_limit(context.get(), kHeapLimitInKiB);
  return TextPattern(form, text,
                     std::unique_ptr<Compiled, Release>(
                         new Compiled{std::move(code), std::move(data), std::move(context)}));
}

std::optional<TextPattern> TextPattern::Part(std::string_view part) {
  return Compile(Form::kPart, part, PCRE2_LITERAL, nullptr);
}

std::optional<TextPattern> TextPattern::Whole(std::string_view text) {
  return Compile(Form::kWhole, text, PCRE2_LITERAL | PCRE2_ANCHORED | PCRE2_ENDANCHORED, nullptr);
}

std::optional<TextPattern> TextPattern::Expression(std::string_view expression,
                                                   std::string& complaint) {
  return Compile(Form::kExpression, expression, PCRE2_UCP, &complaint);
}

bool TextPattern::Matches(std::string_view text) const {
  return pcre2_match(mCompiled->code.get(), reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(),
                     0, 0, mCompiled->data.get(), mCompiled->context.get()) >= 0;
}

}  // namespace lurkwell
