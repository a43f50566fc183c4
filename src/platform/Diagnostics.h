#pragma once

namespace lurkwell {

/// Lines for the user who started the program, all on standard error: standard output is for data.
/// Each is written whole, so that lines of threads and of other programs do not mix. Any thread;
/// nothing fails. `format` is printf's, without a newline; texts of others are escaped by the
/// caller (PrintableText.h).

/// "lurkwell: " and the text.
[[gnu::format(printf, 1, 2)]] void Diagnose(const char* format, ...);

/// The text as it is, for lines that are known by their words.
[[gnu::format(printf, 1, 2)]] void DiagnoseVerbatim(const char* format, ...);

}  // namespace lurkwell
