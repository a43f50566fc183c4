#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace lurkwell {

/// What texts are searched for: a part of them, or a Perl regular expression. Upper and lower case
/// are the same, in every script. Texts may be any bytes: those that are no UTF-8 match nothing. A
/// search is bounded whatever the expression; one that reaches the bound finds nothing. One thread
/// at a time.
class TextPattern {
 public:
  enum class Form : std::uint8_t { kPart, kWhole, kExpression };

  /// Nothing when `part` is no UTF-8.
  static std::optional<TextPattern> Part(std::string_view part);
  /// The same, for the whole text.
  static std::optional<TextPattern> Whole(std::string_view text);
  /// Nothing when `expression` is none; `complaint` then says why, in English.
  static std::optional<TextPattern> Expression(std::string_view expression, std::string& complaint);

  bool Matches(std::string_view text) const;

  /// What it was made of, for those who have others search.
  Form HowItLooks() const { return mForm; }
  const std::string& Text() const { return mText; }

 private:
  struct Compiled;
  struct Release {
    void operator()(Compiled* compiled) const;
  };

  static std::optional<TextPattern> Compile(Form form, std::string_view text, unsigned options,
                                            std::string* complaint);
  TextPattern(Form form, std::string_view text, std::unique_ptr<Compiled, Release> compiled);

  Form mForm;
  std::string mText;
  std::unique_ptr<Compiled, Release> mCompiled;
};

}  // namespace lurkwell
