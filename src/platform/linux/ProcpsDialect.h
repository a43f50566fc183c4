#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Tools.h"

namespace lurkwell {

/// What is known beforehand of the columns of procps's ps (figures of version 4). What another
/// version has beyond it is served all the same, as text. All of it is pure.

/// The kind of a column by the name under which it is offered; nothing for an unknown one. Signal
/// masks and addresses are texts: as ps prints them they sort as they are.
std::optional<ToolColumn> ProcpsColumnNamed(std::string_view name);

/// The keyword that prints the same column as this one and is the better known of the two; empty
/// when there is none.
std::string_view ProcpsKeywordFor(std::string_view alias);

/// Whether a keyword is none to be offered: widths for ps's own tests, priorities on the scales of
/// bygone systems' ps, and the session under a name that other systems print as an address (it
/// has another keyword).
bool IsProcpsOddity(std::string_view keyword);

/// Whether a keyword never has the name of its header, which a better known one has.
bool HasProcpsNameOfItsOwn(std::string_view keyword);

/// What the ps of this system prints for a keyword.
struct PsColumn {
  std::string keyword;
  /// What ps prints above the column by itself.
  std::string header;
  /// What we have it print. Two keywords have one name when they are one column.
  std::string name;
};

/// The columns of one listing ("ps L": a keyword and a header on each line), in its order. Left out
/// is what could not be used as a property: keywords that stand twice, that are no columns for
/// people (padding, test scales), or hold anything but letters, digits, '_' and '%'; headers that
/// are empty or longer than 62 bytes. Of a header of several words the first counts, as the reader
/// of a column's output takes just that.
///
/// A header that several columns share names one of them: the one whose keyword it is, else the
/// first. The others are named by their keywords in capitals (COMM is what the keyword comm
/// prints), or, should there be such a header, by both: "TTY(tty9)". Pure.
std::vector<PsColumn> ParsePsListing(std::string_view listing);

/// The keywords for "/bin/ps -Lww": one line, a blank between two words, at most 1,023 characters
/// with its newline. Each name gets its first keyword before any name gets a second one, and so on
/// until no more fit; the listing's order is kept. Pure.
std::string KeywordLine(const std::vector<PsColumn>& columns);

/// The answer to "/bin/ps 0 -o KEYWORD": the name and a newline; empty for an unknown keyword.
/// Pure.
std::string HeaderLine(const std::vector<PsColumn>& columns, std::string_view keyword);

/// What a command line of the ps feeder asks for.
struct PsCommand {
  enum class Kind { kKeywords, kHeader, kColumn };
  Kind kind;
  /// Of kHeader and kColumn; holds the same characters as a listed one.
  std::string keyword;
};

/// Nothing when the line is none of the three. Pure.
std::optional<PsCommand> ParsePsCommand(std::string_view commandLine);

/// The programs to run, as argument vectors: for the listing, and for one column of all processes.
std::vector<std::string> PsListingArguments();
std::vector<std::string> PsColumnArguments(const std::vector<PsColumn>& columns,
                                           const std::string& keyword);

}  // namespace lurkwell
