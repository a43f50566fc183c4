#pragma once

#include <QString>
#include <Qt>
#include <cstdint>
#include <string>
#include <string_view>

#include "consolidator/TypedValue.h"
#include "platform/Clock.h"

namespace lurkwell {

/// From values to what the user reads. Main thread.

/// Texts of cells stand where lines begin; figures at the right in every language, unit below unit.
inline constexpr Qt::Alignment kAlignTexts = Qt::AlignLeft;
inline constexpr Qt::Alignment kAlignFigures = Qt::AlignRight | Qt::AlignAbsolute;

/// A span of time without its trailing zeros, but with two digits behind the point at least:
/// 12.34, 12.50, 12.00, 3.1415.
QString TimeText(TimeValue time);

/// A point in time in the user's preferred format, cut to so many characters; 0 or less is room for
/// all of it. Without a locale and in English as FormatDateString has it, else as the locale does.
QString DateText(TimeValue time, int width);

/// A span of time as [days-]hours:minutes:seconds, the way ps writes it.
QString ClockText(TimeValue time);

/// A process's own text on one line, as PrintableText has it.
QString PlainText(std::string_view text);

/// What a cell shows. `width` is the column's, in characters, which dates are fitted to. Dates of
/// made-up processes (`pid` below 0) are not shown. What is missing has a mark that no value has:
/// three dots when it is not known yet, a cross when it is not allowed, a dash when it is not
/// counted; where there is nothing of the kind, nothing.
QString DisplayText(PropertyType type, const TypedValue& value, int width, std::int32_t pid);

/// The same mark in words, for speech and copies; empty for a value.
QString MissingText(const TypedValue& value);

/// A sentence about it, with what would be needed to see the figure of this property; empty for a
/// value.
QString MissingTip(std::string_view key, const TypedValue& value);

/// The value as a number; 0 for texts and nothing.
double NumberOf(const TypedValue& value);
std::int64_t IntegerOf(const TypedValue& value);

/// What tells a followed process from others of its name. Main thread; asking waits half a second
/// at most, and what is not known by then, or at all, is empty.
struct FollowedProcess {
  /// The user whose rights it has, any bytes.
  std::string owner;
  /// The same, and its command line, for people.
  QString ownerText;
  QString commandText;
};

FollowedProcess DescribeFollowed(std::int32_t pid);

/// The program's name for people, whole as far as it can be known; empty when there is no such
/// process. The first that asks for a long name waits for the machine as above.
QString FollowedName(std::int32_t pid);

}  // namespace lurkwell
