#pragma once

#include <QByteArray>
#include <QStringList>

namespace lurkwell {

/// Texts as one, in letters that every preference may have: a blank between two, percent signs for
/// the rest. Pure.

QStringList DecodedNames(const QByteArray& text);
/// Texts at the end go until what is left takes less than `room` bytes: what is too long could not
/// be read again.
QByteArray EncodedNames(QStringList& names, qsizetype room);

}  // namespace lurkwell
