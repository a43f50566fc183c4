#pragma once

#include <QStringList>
#include <QUrl>

namespace lurkwell {

/// The addresses that were opened last, the latest first. Main thread.
QStringList RecentFleets();
void RememberFleet(const QUrl& address);

}  // namespace lurkwell
