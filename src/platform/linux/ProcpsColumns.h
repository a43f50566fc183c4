#pragma once

#include <optional>
#include <string_view>

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

}  // namespace lurkwell
