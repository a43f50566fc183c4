#pragma once

namespace lurkwell {

/// Ends the program over a broken invariant of its own: prints
/// "UNIT:LINE: failed assertion `CONDITION'" and a newline on standard error and aborts.
/// Any thread; does not allocate. Never reached by what the kernel, the helper, ps, an event or a
/// file says: such data is made to fit before it gets here.
[[noreturn]] void FailAssertion(const char* unit, unsigned line, const char* condition) noexcept;

/// Does nothing when `holds`, else calls FailAssertion with the caller's line.
/// `unit` is the name the message gives as the source, `condition` the text it quotes.
inline void Require(bool holds, const char* unit, const char* condition,
                    unsigned line = __builtin_LINE()) {
  if (!holds) [[unlikely]]
    FailAssertion(unit, line, condition);
}

}  // namespace lurkwell
