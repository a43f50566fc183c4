#pragma once

#include <QDBusMessage>
#include <QString>
#include <QVariantList>
#include <optional>

#include "platform/EventBus.h"

namespace lurkwell {

/// Events as messages of the bus; see ClassicNames.h for their form. Any thread.

/// The arguments of Deliver.
QVariantList EventArguments(const Event& event);

/// What a call of Deliver carries; nothing when it is not of that form, has too many parameters or
/// is larger than `mostBytes` altogether.
std::optional<Event> ReadEvent(const QDBusMessage& message, std::size_t mostBytes);

/// A code of exactly four Latin-1 characters; nothing from another text.
std::optional<FourCharCode> CodeFromText(const QString& text);
QString TextOfCode(FourCharCode code);

}  // namespace lurkwell
