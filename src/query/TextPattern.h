#pragma once

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
  /// Nothing when `part` is no UTF-8.
  static std::optional<TextPattern> Part(std::string_view part);
  /// The same, for the whole text.
  static std::optional<TextPattern> Whole(std::string_view text);
  /// Nothing when `expression` is none; `complaint` then says why, in English.
  static std::optional<TextPattern> Expression(std::string_view expression, std::string& complaint);

  bool Matches(std::string_view text) const;

 private:
  struct Compiled;
  struct Release {
    void operator()(Compiled* compiled) const;
  };

  static std::optional<TextPattern> Compile(std::string_view text, unsigned options,
                                            std::string* complaint);
  explicit TextPattern(std::unique_ptr<Compiled, Release> compiled);

  std::unique_ptr<Compiled, Release> mCompiled;
};

}  // namespace lurkwell
